#include "ScreenStatements.h"

namespace orvane {

namespace {

const char* const sessionAndNumbers[] = {
    "select top 1 SNO from UserActivities order by SNO desc",
    "select * from UserActivities where SNO=12",
    "select MAX(cast(SUBSTRING(consultID, 7, 7)as bigint))  as ID from hRecords WHERE   (SUBSTRING(consultID, 4, 3) = "
    "'OFL') and (SUBSTRING(consultID, 1, 3)='001 ')",
    "select MAX(SUBSTRING(consultID, 4, 7)) AS ID From hRecords WHERE     (SUBSTRING(consultID, 1, 3) = 'OFL')",
    "select MAX(cast(SUBSTRING(consultID, 8, 6)as bigint))  as ID from hRecordsPublic WHERE  (SUBSTRING(consultID, 1, "
    "3)='001 ')",
    "select MAX(cast(SUBSTRING(ReceiptNo, 6, 7)as bigint))  as ID from Payments WHERE  SUBSTRING(ReceiptNo, 4, "
    "2)='OP ' and SUBSTRING(ReceiptNo, 1, 3)='001 '",
    "select MAX(cast(SUBSTRING(ReceiptNo, 3, 7)as bigint))  as ID from Payments WHERE  (SUBSTRING(ReceiptNo, 1, 2)='OP "
    "')",
    "select clinicType,Code,ClinicID,rctcode from vwClinicCode where consultID ='001OFL0000001'",
    "select ItemName,ItemCode ,clinicType from vwClinicCodePublic where consultID ='001/26/000001'",
};

const char* const attendance[] = {
    "select * from vwhpatients where fullname like 'ADE%'",
    "select pno from qryhVisitsForToday where recdate='2026-03-14' and pno='P/0001' and attendedTo = 0",
    "select clientcatID,coyname,occupation,pno,oldpNo,policytype,ref,expirydate from hpatients where pNo='P/0001'",
    "select ApptDate,pno,clinictype,remarks,consultID from qryhAppt where pno='P/0001' and attendedto =0  ",
    "select top 1 consultID,recDate from hrecords where pNo='P/0001' order by consultID desc",
    "select * from hRecords where recID=12",
    "update billaccum set consultID='001OFL0000001' where pno = 'P/0001' and consultID = ''",
    "Update hreferal set attendedTo = 1 where ConsultID = '001OFL0000001'",
    "Update hpatients set clientCatID='HMO',ref='YES' where pno = 'P/0001'",
    "delete from hrecords where recID = '12'",
    "select * from qryhVisitsOffline",
    "update hPatients set coyname='0201', clientCatID ='HMO'   where pno ='P/0001'",
    "update hRecords set coyname='0201', clientCat ='HMO'   where consultID ='001OFL0000001'",
    "update billingDetails set coyname='0201', billto ='0201'   where billno ='001OFL0000001'",
    "update billing set ClientID='0201'  where billno ='001OFL0000001'",
    "update billAccum set coyname='0201', billto ='0201'   where consultID ='001OFL0000001'",
    "select pno as FileNo,oldpno as [Old FileNo],psurname as Surname,pfirstname as Firstname ,homeAddress from "
    "hpatients where psurname like 'ADE%'",
    "select pno as FileNo,oldpno as [Old FileNo],psurname as Surname,pfirstname as Firstname ,homeAddress from "
    "hpatients where pno like 'P/0001'",
    "select bDate,BalanceDate,billNo,pNo,Fullname,Balance from qryhBillingbalanceForPrivate where pNo='P/0001'",
    "select * from qryhVisits where pno='P/0001'",
    "select bdate,pno,billno,clientID from qryBillingBalanceDueForPrivate where billno='001OFL0000001'",
    "select bdate,pno,billno,clientID from qryBillingBalanceDueForPrivate where pno='P/0001'",
    "SELECT pno,Fullname,ConsultID as BillNo,Date,Time,Client,Debt,Clinic,ClientCatID as ClientCat from "
    "vwhConsultingVisitsForBilling where date='2026-03-14' order by fullname asc ",
    "SELECT pno,Fullname,ConsultID as BillNo,Date,Time,Client,Debt,Clinic,ClientCatID as ClientCat from "
    "vwhConsultingVisitsForBilling where date between '2026-03-01' and '2026-03-14'   order by fullname asc ",
    "select Recdate as Date,Time,ConsultID as BillNo,Fullname from qryhvisits where pno='P/0001' and recdate between "
    "'2026-03-01' and '2026-03-14' order by recdate desc",
};

const char* const items[] = {
    "select distinct  * from vwDrugNHIS where Drug ='PARACETAMOL 500MG'   and  coyID='0001'",
    "select distinct  * from vwLabServiceNHIS where LabItem ='FULL BLOOD COUNT'and coyID='0001'",
    "select distinct  * from vwServiceNHIS where service ='WOUND DRESSING'   and coyID='0001'",
    "select distinct  * from drugs where drgname ='PARACETAMOL 500MG'",
    "select distinct  * from labservices where drgname ='FULL BLOOD COUNT'",
    "select distinct  * from hServices where service ='WOUND DRESSING'",
    "select top 1 SNo   from DrugNHIS where drgName ='PARACETAMOL 500MG'   and  company='0001' order by SNo",
    "select distinct  retainID,RetainCode,cdate,cTime,ref,BillRemarks,company,prescription,Diagnosis,Investigate,"
    "services,consultID,clientcat,pno,remarks,treatedby,Age from vwhConsultingDetailsForBillingAlt where "
    "consultID='001OFL0000001' order by cdate desc",
    "update BillAccum set CoyName='0001' where CoyName is null and consultID = '001OFL0000001'",
    "update BillAccum set capitated='NO' where capitated='' and consultID = '001OFL0000001'",
    "select distinct * from qrybillAccumHome   where consultID='001OFL0000001'",
    "update hrecords set referal='YES' where consultID='001OFL0000001'",
    "select top 1 SNO from billaccum order by SNo desc",
    "update BillAccum set attendedTo=1,isbilled=1 where SNO =12",
    "select  PNo,Subtotal from vwBillingProcessDetailsGrouped where billno='001OFL0000001'",
    "select * from Billing where billno = '001OFL0000001'",
    "update  billing set AmountBilledInWord='XXX', amountBilled= 12.5 where billno = '001OFL0000001'",
    "select distinct * from vwbillInfo   where consultID='001OFL0000001'",
};

const char* const collation[] = {
    "select * from billing where isprocess=1 and billNo='001OFL0000001'",
    "select distinct  Date,Remarks,coyname,pno,fullname,consultID from vwhConsultingVisitsList where consultid "
    "='001OFL0000001'",
    "select distinct  Date,Remarks,coyname,pno,fullname,consultID from vwhConsultingVisitsList where date between "
    "'2026-03-01' and '2026-03-14' and isbilled=0",
    "select * from vwAdmissionAndDischargeInfo  where consultID='001OFL0000001'",
    "select AdmDate,DischDate from Billing  where billNo='001OFL0000001'",
    "select pCatid,recdate,consultID,clientcat as clientcatID,referal,retainID,RetainName from qryhVisitsForAttend "
    "where consultid ='001OFL0000001'",
    "Select recdate from qryhvisits where  pno='P/0001' order by recdate desc",
    "select distinct ClientCatID,ClientCatID as ClientCat,Referal,billtype,SNo,conID,[Date],Capitated ,ConsultID,"
    "Service,Dosage,UnitPrice,Qty,Subtotal,CoyName,BillTo,RevType from qryBillAccum where consultid='001OFL0000001'",
    "select distinct [Date],Service,ClientCatID,ClientCatID as ClientCat,Referal,billtype,SNo,conID,case AttendedTo "
    "when 1  then 'YES' else 'NO' end as AttendedTo ,Capitated ,Qty,UnitPrice,Subtotal as Amount,RevType,CoyName,"
    "BillTo,ConsultID,Dosage from qryBillAccum where consultid='001OFL0000001' order by Service",
    "select * from qryBillAccum where attendedTo=0  and  consultID='001OFL0000001'  and ClientCat not in "
    "('HMO','PHIS','NHIS')  and SNo not in (Select SNo from BillingDetails)",
    "select * from qryBillAccum where referal = 'YES' and AttendedTo=0 and consultID='001OFL0000001' and SNo not in "
    "(Select SNo from BillingDetails)",
    "select * from billAccum where attendedTo=1 and capitated='NO' and  consultID='001OFL0000001' and SNo not in "
    "(Select SNo from BillingDetails)",
    "select SNo,DrgName from billAccum where  consultID='001OFL0000001' and SNo not in (Select SNo from "
    "BillingDetails)",
    "update BillAccum set attendedTo=1,isBilled=1,capitated='NO' where consultID = '001OFL0000001' and SNo='12'",
    "update billingDetails set BillType ='SERVICE' where billtype='' and BillNo='001OFL0000001'",
    "delete from Billingdetails  where subtotal=0 and billno = '001OFL0000001'",
    "update  hrecords set exitDate=recdate, BillDate=recdate  where consultID = '001OFL0000001'",
    "select recDate,BillDate from vwhrecords where consultID = '001OFL0000001'",
    "select * from hApprvCode where consultID='001OFL0000001'",
    "select SNo,billDate,BillItem,subtotal ,revtype,AccountNo from vwRctForAcctDetails where billno='001OFL0000001'",
    "update BillAccum set isRct=1 where consultID = '001OFL0000001' and drgName ='CONSULTATION'",
    "update billingDetails set isRct=1 where billNo = '001OFL0000001' and drgName ='CONSULTATION'",
    "select  recDate from hRecords where substring(consultID,1,12)='001OFL000001'",
    "select consultid,prescription,treatedby,policytype from qryhconsulting where consultid='001OFL0000001'",
    "select attendedto,consultID from hconsulting where consultid='001OFL0000001' AND attendedTo = 0 ",
    "select sum(isnull(subtotal,0)) as Subtotal from BillAccum where consultid='001OFL0000001' and billtype='DRUG'",
    "delete from billingdetails where BillNo = '001OFL0000001'",
    "select sno from billingdetails where sno=12",
    "delete from billingdetails where SNO = '12'",
    "delete from billAccum where SNO = '12'",
    "select  PNo,Amountbilled,Subtotal,Diff from vwBillingProcessDetailsGroupedVerify where billno='001OFL0000001'",
    "update BillAccum set revType=(select max(m.revType) from drugMaster m where m.drgName=BillAccum.drgName and "
    "m.revType <> '') where consultID='001OFL0000001' and (revType is null or revType in ('','OTHERS'))",
    "update BillingDetails set revType=(select max(m.revType) from labservices m where "
    "m.Drgname=BillingDetails.drgName "
    "and m.revType <> '') where billNo='001OFL0000001' and not exists (select 1 from Billing b where "
    "b.billNo='001OFL0000001' and b.isProcess=1)",
    "select * from qryBillAccum where attendedTo=0  and  consultID='001OFL0000001'  and ClientCat not in "
    "('HMO','PHIS','NHIS')  and SNo not in (Select SNo from BillingDetails) and SNo=12",
    "select * from qryBillAccum where AttendedTo=0 and consultID='001OFL0000001' and capitated='NO' and SNo not in "
    "(Select SNo from BillingDetails)",
    "update BillAccum set isRct=1 where consultID = '001OFL0000001' and (drgName ='CONSULTATION' or SNo=12)",
    "update billingDetails set isRct=1 where billNo = '001OFL0000001' and (drgName ='CONSULTATION' or SNo=12)",
    "select  top 1 batchVal,coyCode  from vwBillsForClientsBatchVal where coycode='0001' order by batchval desc ",
    "select distinct date,pno,fullname,billno from vwBilling where  date between '2026-03-01' and '2026-03-14 '",
    "select distinct  CoyName,Fullname,Date,consultID as billNo from vwhConsultingVisits where   Date between "
    "'2026-03-01' and '2026-03-14' and  clientCatID <> '0001' order by fullname ",
    "select * from qryhPreConsultForClinics where consultID='001OFL0000001'",
};

const char* const receipts[] = {
    "select distinct billno,fullname from qryBillingBalanceDueForPrivate  where  date between '2026-03-01' and "
    "'2026-03-14' order by fullname",
    "select distinct Date,billno,pno,amountbilled,currentDebt,prevDebt,AmountPaid from qryBillingBalanceDueForPrivate "
    "where billno='001OFL0000001'",
    "SELECT ReceiptDate, Fullname,AmountBilled, AmountPaid,(AmountBilled-AmountPaid) as AmountDue, PaymentFor, "
    "ReceiptNo, BillNO,retainName as Company,pno as PatNo From qryPayments where ReceiptDate='2026-03-14' order by "
    "fullname",
    "SELECT ReceiptDate, Fullname,AmountBilled, AmountPaid,(AmountBilled-AmountPaid) as AmountDue, PaymentFor, "
    "ReceiptNo, BillNO,retainName as Company,pno as PatNo From qryPayments where BillNo='001OFL0000001' order by "
    "ReceiptNo desc",
    "select distinct recdate,pno,fullname,consultID from qryhVisits where  recdate between '2026-03-01' and "
    "'2026-03-14 '",
    "select fullname,coyname,pcatID,clientcatID,debt from qryhfullname where pno='P/0001'",
    "SELECT     ReceiptDate AS Date, rTime as Time, ReceiptNo, Fullname, AmountBilled, AmountPaid,(AmountBilled- "
    "AmountPaid) as Balance, PaymentFor, AmountInWord, PayType, clinicID AS Clinic, Receivedby, BillNO, CoyName FROM "
    "qryhBillingReceipt where receiptdate='2026-03-14'",
    "SELECT sum(AmountPaid) as AmountPaid fROM qryhBillingReceipt where receiptdate='2026-03-14'",
    "select pno,debt from vwDebtInfoForPatUnionGrouped where pno='P/0001'",
    "select AdmDate,WardID,fullname,consultID from qryhAdmission where consultID='001OFL0000001'",
    "select top 1 RunningTotal from Tranxaction where PNo='P/0001' order by SNo Desc",
    "update hPatients set DebtBF=-12.5where pno = 'P/0001'",
    "select  BillNo,sum(AmountPaid) as AmountPaid from payments where billno='001OFL0000001' group by BillNo",
    "select top 1 recDate from hrecords where pno = 'P/0001' order by recID asc",
    "select  * from vwhpatients where Pno = 'P/0001'",
    "select  * from vwhpatients where oldPno = 'C-17'",
    "SELECT     SNO, AttndDate, BillDate, FullName, PNo,Remarks as Items,  Bill, AmountPaid,RunningTotal as Debt,"
    "BillNo,  Comapany FROM   vwTranxaction where pno='P/0001' order by SNo",
    "SELECT     SNO, AttndDate, BillDate, FullName,Remarks as Items,  Bill, AmountPaid,RunningTotal as Debt,BillNo,  "
    "Comapany, PNo FROM   vwTranxaction where pno='P/0001' and AttndDate between '2026-03-01' and '2026-03-14' order "
    "by SNo",
    "select * from qryhBillingReceipt where receiptNo='001OP0000001'",
    "select * from qryhBillingReceiptPublic where receiptNo='001LB0000001'",
    "select distinct receiptNo,fullname,retainName,receiptDate as date from qrypayments where receiptdate between "
    "'2026-03-01' AND '2026-03-14' order by fullname",
    "select * from qryhBillingbalanceForPrivate where bdate = '2026-03-14' order by bdate desc,fullname asc",
    "select * from qryhBillingIncome where receiptdate = '2026-03-14' order by receiptNo",
    "select * from qryreceiptCancelled where receiptdate ='2026-03-14' order by receiptdate desc",
    "select distinct recID,pno,fullname,consultID as billno from qryhVisits where  recdate between '2026-03-14' and "
    "'2026-03-14 '",
    "update Billing set AmountPaid=isnull(AmountPaid,0)+1000 where BillNo = '001OFL0000001'",
};

template <std::size_t N>
void add(QStringList& list, const char* const (&statements)[N]) {
    for (const char* statement : statements)
        list += QString::fromUtf8(statement);
}

} // namespace

QStringList screenStatements() {
    QStringList list;
    add(list, sessionAndNumbers);
    add(list, attendance);
    add(list, items);
    add(list, collation);
    add(list, receipts);
    return list;
}

} // namespace orvane
