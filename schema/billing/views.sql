-- Views of the billing database. A view that is asked by a key has the table that bears the key in front and fetches
-- sums by subqueries over an indexed column: a filter is not pushed into a grouped view on every engine.
-- "coyName" in the tables is a client's retainID; a visit that names no client is its patient's client's. A balance or
-- debt of less than half a kobo is nothing.

-- The server's clock, one row.
create view qrySysDateTime as
select getdate() as sysDT
go

-- Users
-- -----

-- One row per user and role.
create view vwUsers as
select u.EmpID, u.Fullname, u.Username as username, r.LoginRole as loginrole, h.Hname as hname,
    isnull(u.hospID, h.hospID) as hospID, u.BranchCode as Branchcode, u.Password, u.AccountStatus
from ApplicationUsers u
inner join UserRoles k on k.Username = u.Username
inner join Roles r on r.RoleID = k.RoleID
left join HospList h on h.hospID = isnull(u.hospID, (select min(f.hospID) from HospList f))
go
-- The users who hold a role.
create view qryUserRole as
select k.RoleID, r.LoginRole, u.Username, u.Fullname, u.AccountStatus
from UserRoles k
inner join Roles r on r.RoleID = k.RoleID
inner join ApplicationUsers u on u.Username = k.Username
go

-- Patients and clients
-- --------------------

-- Every registered patient, for the searches by name and by number.
create view vwhpatients as
select p.PNo, p.OldPNo as oldPno, p.fullname as fullName, p.psurname as Surname, p.pfirstname as Firstname,
    p.clientcatID, p.coyName as coyname, r.retainName as Company,
    case when abs(p.DebtBF) < 0.005 then 0 else p.DebtBF end as Debt, p.sex, p.pPhoneNo, p.expirydate,
    case when p.expirydate <= cast(getdate() as date) then 1 else 0 end as expired
from hPatients p
left join hRetainership r on r.retainID = p.coyName
go
-- A patient with the balance of the account: minus is owed.
create view qryhfullname as
select p.PNo as pno, p.fullname, p.coyName, p.pCatID as pcatID, p.clientcatID,
    case when abs(p.DebtBF) < 0.005 then 0 else p.DebtBF end as Debt
from hPatients p
go
-- A patient with the debt as a debt report shows it: plus is owed, the opposite of hPatients.DebtBF. The name is no bare
-- column, so that a report sorts its few debtors instead of walking every patient by name.
create view qryhFullnameHosp as
select p.PNo, isnull(p.fullname, '') as FullName, p.clientcatID, p.coyName, r.retainName as Company, p.pPhoneNo,
    case when abs(isnull(p.DebtBF, 0)) < 0.005 then 0 else 0 - p.DebtBF end as debtBF
from hPatients p
left join hRetainership r on r.retainID = p.coyName
go
-- What a patient owes (minus) or has in credit (plus).
create view vwDebtInfoForPatUnionGrouped as
select p.PNo as pno, case when abs(p.DebtBF) < 0.005 then 0 else p.DebtBF end as Debt
from hPatients p
go
-- The same for statements that know it by this name.
create view vwDebtInfo as
select p.PNo as pno, case when abs(p.DebtBF) < 0.005 then 0 else p.DebtBF end as debt
from hPatients p
go
-- The running account with charges and money received apart.
create view vwTranxaction as
select t.SNo as SNO, isnull(h.recDate, t.entryDate) as AttndDate, h.BillDate, p.fullname as FullName, t.PNo,
    t.Remarks, case when t.Amount < 0 then 0 - t.Amount else 0 end as Bill,
    case when t.Amount > 0 then t.Amount else 0 end as AmountPaid, t.RunningTotal, t.billNo as BillNo,
    r.retainName as Comapany
from Tranxaction t
left join hRecords h on h.consultID = t.billNo
left join hPatients p on p.PNo = t.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
go
-- Patients whose card is valid: it has no last day, or one after today.
create view qryhCardNotExpired as
select p.PNo as pNo, p.psurname as pSurname, p.pfirstname, p.fullname, p.expirydate
from hPatients p
where p.expirydate is null or p.expirydate > cast(getdate() as date)
go
-- Every client.
create view vwhretainership as
select r.retainCode as RetainCode, r.retainID, r.retainName as ClientName, r.ClientType, r.clientcatID as Category,
    r.Address, r.PhoneNo, r.Email, r.Contact, r.Active, r.Debt, r.BillEndDate, r.AcctID
from hRetainership r
go
-- The client codes in use as numbers.
create view vwhRetainCode as
select cast(r.retainCode as bigint) as retaincode
from hRetainership r
go
-- The accounts that a screen may pick.
create view vwAccountsInfo as
select a.SNo, a.AccountNo, a.AccountName, a.groupID
from ChartOfAccounts a
go

-- Visits
-- ------

-- Every visit with what was billed on it, and what its items under a fixed fee are worth.
create view qryhVisits as
select h.recID as recid, h.PNo as pno, p.fullname as Fullname, h.consultID as ConsultID, h.recDate, h.htime as Time,
    h.clinicType, h.Remarks, h.clientCat, isnull(h.coyName, p.coyName) as retainID, r.retainName as Company,
    (select sum(d.SubTotal) from BillingDetails d where d.billNo = h.consultID) as Bill,
    (select sum(a.SubTotal) from BillAccum a where a.consultID = h.consultID and (a.Capitated = 'YES' or (isnull(a.Capitated, '') = '' and
        a.attendedto = 1 and not exists (select l.detID from BillingDetails l where l.SNo = a.SNo)))) as Capitation
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
go
-- The visits of today and those of any day that nobody has attended to.
create view qryhVisitsForToday as
select h.recID, h.PNo as pno, p.fullname as Fullname, h.consultID as ConsultID, h.recDate as recdate, h.htime as Time,
    h.clinicType, h.Remarks, h.attendedto as attendedTo
from hRecords h
left join hPatients p on p.PNo = h.PNo
where h.recDate = cast(getdate() as date) or h.attendedto = 0
go
-- The attendance list: visits whose bill was not saved yet. Surname is filled in a name search only.
create view qryhVisitsOffline as
select h.recID, h.recDate as Date, h.htime as Time, p.fullname, h.PNo as patno, h.consultID, h.clinicType,
    h.clientCat, h.Remarks, h.referal, h.empID, h.attendedto as attendedTo, '' as Surname
from hRecords h
left join hPatients p on p.PNo = h.PNo
where h.BillDate is null
go
-- A visit with its client, for collation and for receipts.
create view qryhVisitsForAttend as
select h.consultID, h.PNo as pno, p.fullname, h.recDate, h.clientCat as clientcat, h.clientCat as clientcatID,
    h.clinicType, h.referal, p.pCatID as pCatid, isnull(h.coyName, p.coyName) as retainID, r.retainName, r.retainCode
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
go
-- A visit with its billing date.
create view vwhRecords as
select h.recID as RecID, h.recID as SNo, h.consultID as ConsultID, h.PNo, p.fullname as FullName,
    h.recDate as RecDate, h.BillDate, r.retainName as RetainName
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
go
-- Today's appointments.
create view qryhAppt as
select a.ApptDate, a.PNo as pno, a.clinicType as clinictype, a.Remarks, a.ConsultID as consultID,
    a.attendedTo as attendedto
from hreferal a
where a.ApptDate = cast(getdate() as date)
go
-- Patients whose appointment falls due today and is still open.
create view qryhNextAppt as
select a.PNo as pno, p.fullname as Fullname, a.ApptDate, a.clinicType, a.Remarks, a.ConsultID
from hreferal a
left join hPatients p on p.PNo = a.PNo
where a.ApptDate = cast(getdate() as date) and a.attendedTo = 0
go
-- The consultations of a visit.
create view qryhconsulting as
select c.consultID as consultid, c.CDate, c.PNo as pno, c.Diagnosis as diagnosis, c.prescription, c.treatplan,
    c.treatedby, p.policyType
from hconsulting c
left join hPatients p on p.PNo = c.PNo
go
-- A visit with each of its consultations, once without any when no doctor has written one.
create view vwhConsultingDetailsForBillingAlt as
select h.consultID, h.PNo, p.fullname as fullName, year(h.recDate) - year(p.DOB) as Age, h.clientCat,
    h.clientCat as clientcatID, h.referal as ref, h.Remarks, isnull(h.coyName, p.coyName) as retainID, r.retainCode,
    r.retainName, r.retainName as Company, c.CDate, c.cTime as ctime, c.Diagnosis as diagnosis,
    c.Investigate as investigate, c.prescription, c.services, c.treatedby, c.billRemarks
from hRecords h
left join hconsulting c on c.consultID = h.consultID
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
go
-- One row a visit that a doctor has finished with and whose bill was not saved yet.
create view vwhConsultingVisitsForBilling as
select h.PNo as pno, p.fullname as Fullname, h.consultID as ConsultID, h.recDate as Date, h.htime as Time,
    r.retainName as Client, case when abs(p.DebtBF) < 0.005 then 0 else p.DebtBF end as Debt,
    h.clinicType as Clinic, h.clientCat as ClientCatID
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
where h.BillDate is null
    and exists (select c.SNo from hconsulting c where c.consultID = h.consultID and c.attendedto = 1)
go
-- One row a visit; isbilled tells whether its bill was saved.
create view vwhConsultingVisitsList as
select h.recDate as Date, h.Remarks, r.retainName as coyname, h.PNo as pno, p.fullname as fullName, h.consultID,
    isnull(h.coyName, p.coyName) as retainID, case when h.BillDate is null then 0 else 1 end as isbilled
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
go
-- One row a visit of a patient who was taken into a ward, until he has left it and his bill, saved, bears that day.
create view vwhConsultingVisitsAdmission as
select h.recDate as Date, h.Remarks, r.retainName as coyname, h.PNo as pno, p.fullname, h.consultID
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
left join Billing b on b.billNo = h.consultID
where exists (select a.SNo from hAdmission a where a.consultID = h.consultID and
    (a.DischDate is null or h.BillDate is null or b.DischDate is null))
go
-- One row a visit that may need an approval code; a private patient needs none.
create view vwhConsultingVisits as
select h.recDate as Date, h.consultID, h.PNo as pno, p.fullname as fullName, r.retainName as CoyName,
    h.clientCat as clientCatID
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
where isnull(h.clientCat, 'PRIVATE') <> 'PRIVATE'
go
-- A visit with what an approval shows of its patient.
create view qryhPreConsultForClinics as
select h.consultID, h.PNo, p.fullname, p.sex, year(h.recDate) - year(p.DOB) as Age, r.retainName as Company,
    h.referal as ref, h.recDate, h.clientCat
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
go
-- The last admission of a visit.
create view vwAdmissionAndDischargeInfo as
select a.consultID, a.PNo, a.admdate, a.DischDate, a.wardid
from hAdmission a
where a.SNo = (select max(l.SNo) from hAdmission l where l.consultID = a.consultID)
go
-- The visits whose patient is in a ward now.
create view qryhAdmission as
select a.consultID, a.PNo, p.fullname, a.admdate, a.wardid
from hAdmission a
left join hPatients p on p.PNo = a.PNo
where a.DischDate is null
go
-- A visit's clinic with the code of its receipts.
create view vwClinicCode as
select h.recID as ID, h.consultID, h.clinicType, c.ClinicID, c.Code, c.rctCode
from hRecords h
inner join clinicTypes c on c.ClinicID = h.clinicType
go
-- An outlet visit's outlet with the code of its receipts.
create view vwClinicCodePublic as
select h.ID, h.consultID, h.clinicType, o.ItemName, o.ItemCode
from hRecordsPublic h
inner join hOutletTypes o on o.ItemName = h.clinicType
go
-- Every code of receipts, and whether a clinic of the hospital or an outlet bears it.
create view vwHospAndOutletCodes as
select c.rctCode as RctCode, 'Hospital' as Rctsource
from clinicTypes c
where c.rctCode is not null
union all
select o.ItemCode as RctCode, 'Outlet' as Rctsource
from hOutletTypes o
where o.ItemCode is not null
go
-- The serial numbers in use on outlet visits of every hospital.
create view qryidgenConPublic as
select cast(SUBSTRING(h.consultID, 8, 6) as bigint) as conIdVal
from hRecordsPublic h
where SUBSTRING(h.consultID, 7, 1) = '/'
go

-- Tariff
-- ------

-- The price of a drug for a client, beside the drug's category and its stock in the retail store (one store: 0001).
create view vwDrugNHIS as
select t.SNo, t.drgName as Drug, t.company as coyID, '0001' as LocID, t.Price, t.Capitated, t.RevType as revType,
    d.drgCatName as Category, s.UnitsInStock
from DrugNHIS t
left join drugs d on d.drgName = t.drgName
left join StockItemsRetail s on s.ItemID = t.drgName
go
-- The price of a laboratory item for a client.
create view vwLabServiceNHIS as
select t.SNo, t.drgName as LabItem, t.company as coyID, t.Price, t.Capitated, t.RevType as revType,
    (select min(l.drgCatName) from labservices l where l.Drgname = t.drgName) as Category
from LabServiceNHIS t
go
-- The price of a service for a client.
create view vwServiceNHIS as
select t.SNo, t.service, t.company as coyID, t.Price, t.Capitated, t.RevType as revType,
    (select min(v.Category) from hservices v where v.service = t.service) as Category
from hServiceNHIS t
go
-- Every drug with its stock.
create view vwDrugsforGrid as
select d.drgName as Drug, d.drgCatName as Category, s.UnitsInStock as UnitsinStock
from drugs d
left join StockItemsRetail s on s.ItemID = d.drgName
go
-- Every drug with its cost and the group of its category.
create view qryhDrugs as
select d.drgName as Drgname, d.drgCatName, c.catremarks, d.qtyPerUnit, d.Cost
from drugs d
left join drugcategories c on c.drgCatname = d.drgCatName
go
-- The cost of a drug, or of a fee that stands among them.
create view qryhdrugPrice as
select d.drgName as drgname, d.Cost as cost
from drugs d
go
-- Every service.
create view qryhServices as
select v.SNo, v.service, v.Category, v.revType
from hservices v
go

-- Bills
-- -----

-- The items of a visit with the visit's category and referral.
create view qryBillAccum as
select b.SNo, b.dtDate, b.dtDate as Date, b.consultID as ConsultID, isnull(b.PNo, h.PNo) as PNo, b.drgName as Service,
    b.Category, b.Price, b.Price as UnitPrice, b.Qty, b.SubTotal as Subtotal, isnull(b.dosage, b.usage) as Dosage,
    b.billType as billtype, b.conID, b.Capitated, b.coyName as CoyName, b.billTo as BillTo, b.revType as RevType,
    b.attendedto as AttendedTo, b.isBilled, b.isRct, isnull(h.clientCat, '') as ClientCat,
    isnull(h.clientCat, '') as ClientCatID, h.referal as Referal
from BillAccum b
left join hRecords h on h.consultID = b.consultID
go
-- The items of every visit, of an outlet too.
create view qryBillAccumAll as
select b.SNo, b.consultID as ConsultID, b.drgName as Service, b.Price as UnitPrice, b.Qty, b.SubTotal as Subtotal,
    isnull(b.dosage, b.usage) as Dosage, b.billType as billtype, b.conID, b.Capitated, b.coyName as CoyName,
    b.billTo as BillTo, b.revType as RevType, b.attendedto as AttendedTo,
    isnull(h.clientCat, isnull(q.clientCat, '')) as ClientCatID, isnull(h.referal, q.referal) as Referal
from BillAccum b
left join hRecords h on h.consultID = b.consultID
left join hRecordsPublic q on q.consultID = b.consultID
go
-- The items of a visit as the item screens list them.
create view qrybillAccumHome as
select b.SNo, b.consultID, b.drgName as Service, b.drgName as Drug, b.Category, b.Price as UnitPrice, b.Qty,
    b.SubTotal, b.usage, b.Capitated, b.billType, b.billTo, b.coyName, b.revType
from BillAccum b
go
-- The items of outlet visits with their customer and, where there is one, their bill; of the visit's day.
create view qryBillAccumPublic as
select b.SNo, h.recDate as Date, b.consultID as ConsultID, b.PNo as patno,
    (select max(q.fullname) from hPatientsPublic q where q.PNo = h.PNo) as fullname, h.Remarks,
    r.retainName as coyname, b.drgName as Service, b.Price as UnitPrice, b.Qty, b.SubTotal as Subtotal,
    b.billType as billtype, b.revType, b.conID, b.attendedto as attendedTo, i.Amountbilled, i.AmountPaid, i.profFee,
    i.isPaid
from BillAccum b
inner join hRecordsPublic h on h.consultID = b.consultID
left join hRetainership r on r.retainID = h.coyName
left join Billing i on i.billNo = b.consultID
go
-- The total of a bill's lines: a row as soon as there is a line, with or without a row in Billing.
create view vwBillingProcessDetailsGrouped as
select h.consultID as billno, h.PNo,
    (select sum(d.SubTotal) from BillingDetails d where d.billNo = h.consultID) as SubTotal,
    b.Amountbilled as amountBilled, b.bdate, b.InvNo as invNo, isnull(b.isProcess, 0) as isprocess,
    r.retainCode as coycode
from hRecords h
left join Billing b on b.billNo = h.consultID
left join hRetainership r on r.retainID = h.coyName
where exists (select d.detID from BillingDetails d where d.billNo = h.consultID)
union all
select h.consultID as billno, h.PNo,
    (select sum(d.SubTotal) from BillingDetails d where d.billNo = h.consultID) as SubTotal,
    b.Amountbilled as amountBilled, b.bdate, b.InvNo as invNo, isnull(b.isProcess, 0) as isprocess,
    r.retainCode as coycode
from hRecordsPublic h
left join Billing b on b.billNo = h.consultID
left join hRetainership r on r.retainID = h.coyName
where exists (select d.detID from BillingDetails d where d.billNo = h.consultID)
go
-- A bill with the total of its lines and how far the bill's figure lies above it.
create view vwBillingProcessDetailsGroupedVerify as
select b.billNo as billno, b.PNo, b.Amountbilled,
    (select sum(d.SubTotal) from BillingDetails d where d.billNo = b.billNo) as SubTotal,
    case when abs(isnull(b.Amountbilled, 0) - isnull((select sum(d.SubTotal) from BillingDetails d where d.billNo = b.billNo), 0)) < 0.005
        then 0 else isnull(b.Amountbilled, 0) - isnull((select sum(d.SubTotal) from BillingDetails d where d.billNo = b.billNo), 0) end as Diff
from Billing b
where exists (select d.detID from BillingDetails d where d.billNo = b.billNo)
go
-- The headings under which a client's invoice may show an item.
create view vwBillheading as
select t.revType as headName from hRevenueType t where t.Active = 'YES'
go
-- What a visit has generated (every item, capitated ones too), what was billed and paid, and the balance.
create view vwbillInfo as
select h.consultID, (select sum(a.SubTotal) from BillAccum a where a.consultID = h.consultID) as amountGen,
    isnull(b.Amountbilled, 0) as Amountbilled, isnull(b.AmountPaid, 0) as AmountPaid,
    case when abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) < 0.005 then 0
        else isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) end as AmountBal
from hRecords h
left join Billing b on b.billNo = h.consultID
union all
select h.consultID, (select sum(a.SubTotal) from BillAccum a where a.consultID = h.consultID) as amountGen,
    isnull(b.Amountbilled, 0) as Amountbilled, isnull(b.AmountPaid, 0) as AmountPaid,
    case when abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) < 0.005 then 0
        else isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) end as AmountBal
from hRecordsPublic h
left join Billing b on b.billNo = h.consultID
go
-- The lines of a bill that no receipt covers yet, with the ledger account of their revenue type.
create view vwRctForAcctDetails as
select d.SNo, d.billNo, d.dtDate as BillDate, d.drgName as BillItem, d.drgName, d.SubTotal, d.revType, t.AccountNo
from BillingDetails d
left join hRevenueType t on t.revType = d.revType
where d.isRct = 0
go
-- Every bill with its patient or outlet customer.
create view vwBilling as
select b.bdate as Date, b.PNo as pno,
    isnull(p.fullname, (select max(q.fullname) from hPatientsPublic q where q.PNo = b.PNo)) as Fullname,
    b.billNo as BillNo, b.Amountbilled as AmountBilled, b.AmountPaid, isnull(b.AmtBF, 0) as AmtCF,
    case when abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) < 0.005 then 0
        else isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) end as Balance, b.AmountBIlledInWord as AmountBilledInWord,
    r.retainName as CoyName, isnull(h.clientCat,
    (select max(o.clientCat) from hRecordsPublic o where o.consultID = b.billNo)) as clientcatID
from Billing b
left join hPatients p on p.PNo = b.PNo
left join hRecords h on h.consultID = b.billNo
left join hRetainership r on r.retainID = b.clientID
go
-- Every bill of a private visit.
create view qryBillingBalanceForPrivate as
select b.billNo, b.bdate, h.recDate as Date, b.PNo, p.fullname as fullName, p.empNo, b.clientID,
    r.retainName as clientName, b.diagnosis, b.Amountbilled as AmountBilled,
    b.AmountBIlledInWord as AmountBilledInWord, b.AmountPaid, b.AmtBF, b.profFee,
    case when abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) < 0.005 then 0
        else isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) end as AmountDue
from Billing b
inner join hRecords h on h.consultID = b.billNo
left join hPatients p on p.PNo = b.PNo
left join hRetainership r on r.retainID = b.clientID
where h.clientCat = 'PRIVATE'
union all
select b.billNo, b.bdate, h.recDate as Date, b.PNo,
    (select max(q.fullname) from hPatientsPublic q where q.PNo = b.PNo) as fullName, null as empNo, b.clientID,
    r.retainName as clientName, b.diagnosis, b.Amountbilled as AmountBilled,
    b.AmountBIlledInWord as AmountBilledInWord, b.AmountPaid, b.AmtBF, b.profFee,
    case when abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) < 0.005 then 0
        else isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) end as AmountDue
from Billing b
inner join hRecordsPublic h on h.consultID = b.billNo
left join hRetainership r on r.retainID = b.clientID
where h.clientCat = 'PRIVATE'
go
-- The bills of private visits whose billed and paid amounts differ, in either direction. A bill of which only the lines
-- are there yet is one too: a receipt may be the first to save it.
create view qryBillingBalanceDueForPrivate as
select b.billNo, b.bdate, h.recDate as Date, b.PNo, p.fullname as fullName, b.clientID, r.retainName as clientName,
    b.diagnosis, b.Amountbilled as amountbilled, b.AmountPaid, b.AmtBF, b.profFee,
    isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) as AmountDue,
    isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) as currentDebt, isnull(b.AmtBF, 0) as prevDebt
from Billing b
inner join hRecords h on h.consultID = b.billNo
left join hPatients p on p.PNo = b.PNo
left join hRetainership r on r.retainID = b.clientID
where h.clientCat = 'PRIVATE' and abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) >= 0.005
union all
select h.consultID as billNo, null as bdate, h.recDate as Date, h.PNo, p.fullname as fullName, h.coyName as clientID,
    r.retainName as clientName, h.diagnosis,
    isnull((select sum(d.SubTotal) from BillingDetails d where d.billNo = h.consultID), 0) as amountbilled,
    isnull((select sum(y.AmountPaid) from Payments y where y.billNo = h.consultID), 0) as AmountPaid, 0 as AmtBF,
    0 as profFee,
    isnull((select sum(d.SubTotal) from BillingDetails d where d.billNo = h.consultID), 0)
        - isnull((select sum(y.AmountPaid) from Payments y where y.billNo = h.consultID), 0) as AmountDue,
    isnull((select sum(d.SubTotal) from BillingDetails d where d.billNo = h.consultID), 0)
        - isnull((select sum(y.AmountPaid) from Payments y where y.billNo = h.consultID), 0) as currentDebt, 0 as prevDebt
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = h.coyName
where h.clientCat = 'PRIVATE' and not exists (select b.ID from Billing b where b.billNo = h.consultID)
    and exists (select d.detID from BillingDetails d where d.billNo = h.consultID)
    and abs(isnull((select sum(d.SubTotal) from BillingDetails d where d.billNo = h.consultID), 0)
        - isnull((select sum(y.AmountPaid) from Payments y where y.billNo = h.consultID), 0)) >= 0.005
union all
select b.billNo, b.bdate, h.recDate as Date, b.PNo,
    (select max(q.fullname) from hPatientsPublic q where q.PNo = b.PNo) as fullName, b.clientID, r.retainName as clientName,
    b.diagnosis, b.Amountbilled as amountbilled, b.AmountPaid, b.AmtBF, b.profFee,
    isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) as AmountDue,
    isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) as currentDebt, isnull(b.AmtBF, 0) as prevDebt
from Billing b
inner join hRecordsPublic h on h.consultID = b.billNo
left join hRetainership r on r.retainID = b.clientID
where h.clientCat = 'PRIVATE' and abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) >= 0.005
go
-- The saved ones of these bills for the printout of one patient's account.
create view qryBillingBalanceDue as
select b.bdate, b.billNo as billno, b.PNo as pno, p.fullname, b.Amountbilled as AmountBilled, b.AmountPaid,
    isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) as AmountDue
from Billing b
inner join hRecords h on h.consultID = b.billNo
left join hPatients p on p.PNo = b.PNo
where h.clientCat = 'PRIVATE' and abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) >= 0.005
go
-- The saved ones of these bills with the day since which the balance stands: the last receipt's, else the bill's.
create view qryhBillingbalanceForPrivate as
select b.bdate as bDate,
    isnull((select max(y.ReceiptDate) from Payments y where y.billNo = b.billNo), b.bdate) as BalanceDate, b.billNo,
    b.PNo as pNo, p.fullname as Fullname, b.Amountbilled as Bills, b.AmountPaid,
    isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) as Balance
from Billing b
inner join hRecords h on h.consultID = b.billNo
left join hPatients p on p.PNo = b.PNo
where h.clientCat = 'PRIVATE' and abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) >= 0.005
union all
select b.bdate as bDate,
    isnull((select max(y.ReceiptDate) from Payments y where y.billNo = b.billNo), b.bdate) as BalanceDate, b.billNo,
    b.PNo as pNo, (select max(q.fullname) from hPatientsPublic q where q.PNo = b.PNo) as Fullname, b.Amountbilled as Bills,
    b.AmountPaid, isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) as Balance
from Billing b
inner join hRecordsPublic h on h.consultID = b.billNo
where h.clientCat = 'PRIVATE' and abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) >= 0.005
go
-- The month
-- ---------

-- Every bill of a month, processed or not: its batch is the month of the visit's billing date, as 2026/03 and as 202603.
-- The client is the visit's own, so that one client's bills of a batch are a range of an index. Of several approval codes
-- the first counts.
create view vwBillingProcessAll as
select b.ID, b.billNo as BillNo, h.PNo as pno, p.fullname as Fullname, h.coyName as retainID, r.retainCode,
    r.retainName as CoyName, h.clientCat as ClientCat, h.recDate as AttdDate, h.BillDate as AttndBillDate,
    convert(varchar(7), h.BillDate, 111) as batchNo, year(h.BillDate) * 100 + month(h.BillDate) as batchVal,
    b.Amountbilled as AmountBilled, b.AmountPaid, b.diagnosis as Diagnosis, h.Remarks,
    (select a.ApprvCode from hApprvCode a
        where a.SNO = (select min(f.SNO) from hApprvCode f where f.consultID = h.consultID)) as ApprvCode,
    b.isProcess, b.InvNo as invNo
from hRecords h
left join hPatients p on p.PNo = h.PNo
inner join Billing b on b.billNo = h.consultID
left join hRetainership r on r.retainID = h.coyName
where h.BillDate is not null
go
-- Those that wait for the run.
create view vwBillingProcess as
select v.* from vwBillingProcessAll v where v.isProcess = 0
go
-- The bills of a batch by number.
create view vwBillingProcessBatch as
select h.consultID as billNo, convert(varchar(7), h.BillDate, 111) as batchNo
from hRecords h
inner join Billing b on b.billNo = h.consultID
go
-- The bills of a month whose figure is not the total of their lines; without lines the total is nothing.
create view vwBillingProcessDetailsGroupedVerifyDiff as
select v.* from vwBillingProcessAll v
where abs(isnull(v.AmountBilled, 0)
    - isnull((select sum(d.SubTotal) from BillingDetails d where d.billNo = v.BillNo), 0)) >= 0.005
go
-- The lines of a bill, for the review.
create view vwBillingProcessDetailsAll as
select d.SNo as SNO, d.billNo as BillNo, d.dtDate as date, p.fullname, d.drgName as Service, d.Qty, d.Price,
    d.SubTotal, d.BillHead, d.BillType, d.revType
from BillingDetails d
left join hPatients p on p.PNo = d.PNo
go
-- The lines of a month's bills that stand under no heading of the invoice.
create view vwBillHeadingWithNull as
select d.SNo as SNO, d.billNo as BillNo, d.dtDate as date, p.fullname as Fullname, r.retainName as Company,
    r.retainCode, d.drgName as Service, d.Qty, d.Price, d.SubTotal, d.BillHead, d.BillType,
    convert(varchar(7), h.BillDate, 111) as batchNo
from hRecords h
inner join Billing b on b.billNo = h.consultID
inner join BillingDetails d on d.billNo = h.consultID
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = h.coyName
where isnull(d.BillHead, '') = ''
go
-- The batches of every client; batchVal is the batch number 2026/03 as 202603.
create view vwBillsForClientsBatchVal as
select i.CoyCode as coyCode, i.BatchNo, i.invNo,
    cast(SUBSTRING(i.BatchNo, 1, 4) as bigint) * 100 + cast(SUBSTRING(i.BatchNo, 6, 2) as bigint) as batchVal
from BillsForClients i
go
-- The invoices that may be taken back: those that are not posted to the ledger. A client who is not in the list of
-- clients any more is shown by his code.
create view vwBillProcessReverseList as
select i.CoyCode as coyCode, isnull(r.retainName, i.CoyCode) as coyName, i.BatchNo,
    isnull(r.retainCode, i.CoyCode) as retainCode
from BillsForClients i
left join hRetainership r on r.retainCode = i.CoyCode
where i.isPost = 0
go
-- Every client invoice with the client's account in the ledger.
create view vwInvoiceDetailsCoy2Batch as
select i.SNO, i.BatchNo, i.BillMonth, i.BillYear, i.CoyCode, isnull(r.retainName, i.CoyCode) as retainName,
    isnull(r.retainName, i.CoyCode) as Company,
    i.Amountbilled as AmountBilled, i.invNo as InvNo, case when i.isPost = 1 then 'YES' else 'NO' end as Posted,
    r.AcctID, i.isPost, i.invDate, i.AmountInvoiced,
    (select count(*) from Billing b where b.InvNo = i.invNo) as Bills
from BillsForClients i
left join hRetainership r on r.retainID = (select min(c.retainID) from hRetainership c where c.retainCode = i.CoyCode)
go

-- Invoices and claims on paper
-- ----------------------------
-- A line of a bill is a row with a key, SNO, so that two equal lines stay two; a bill's items stand under its heading,
-- else under their revenue type. The category is the visit's. Of several approval codes the first counts.

-- The clients that have an invoice in a batch. One who is not in the list of clients any more is shown by his code.
create view vwInvBatchNo as
select i.BatchNo as batchno, i.CoyCode as coycode, isnull(r.retainName, i.CoyCode) as retainName
from BillsForClients i
left join hRetainership r on r.retainID = (select min(c.retainID) from hRetainership c where c.retainCode = i.CoyCode)
go
-- The bills of an invoice.
create view vwInvoiceDetailsCoy2 as
select i.BatchNo as batchNo, i.CoyCode, i.invNo as InvNo, isnull(r.retainName, i.CoyCode) as Company, h.PNo,
    p.fullname, h.recDate as Date, b.billNo as billno, b.Amountbilled, b.diagnosis as Diagnosis
from BillsForClients i
inner join Billing b on b.InvNo = i.invNo
inner join hRecords h on h.consultID = b.billNo
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = (select min(c.retainID) from hRetainership c where c.retainCode = i.CoyCode)
go
-- The lines of an invoice under their headings, for the table of patients and headings.
create view vwInvoiceDetailsCoyCrosstabRpt as
select i.BatchNo as batchNo, i.CoyCode, i.invNo as InvNo, isnull(r.retainName, i.CoyCode) as Company, h.PNo,
    p.fullname as Fullname, h.recDate as AttdDate, b.billNo, d.detID as SNO,
    case when isnull(d.BillHead, '') <> '' then d.BillHead when isnull(d.revType, '') <> '' then d.revType
        else 'OTHERS' end as BillHead,
    d.SubTotal
from BillsForClients i
inner join Billing b on b.InvNo = i.invNo
inner join hRecords h on h.consultID = b.billNo
inner join BillingDetails d on d.billNo = b.billNo
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = (select min(c.retainID) from hRetainership c where c.retainCode = i.CoyCode)
go
-- The lines of an invoice with all that a scheme asks of each patient.
create view vwBillingForClaims as
select i.BatchNo as batchNo, i.CoyCode, i.invNo as InvNo, isnull(r.retainName, i.CoyCode) as Coyname,
    isnull(r.retainName, i.CoyCode) as SentTo, r.Address as SentToAddress, b.billNo,
    d.detID as SNO, h.PNo, p.fullname as Fullname,
    p.sex, year(h.recDate) - year(p.DOB) as Age, p.empNo, h.clientCat as pCatid, h.referal, h.recDate as AttdDate,
    h.BillDate, b.diagnosis as Diagnosis,
    (select a.ApprvCode from hApprvCode a
        where a.SNO = (select min(f.SNO) from hApprvCode f where f.consultID = h.consultID)) as ApprvCode,
    d.dtDate as Date, d.drgName as Service,
    case when isnull(d.BillHead, '') <> '' then d.BillHead when isnull(d.revType, '') <> '' then d.revType
        else 'OTHERS' end as BillHead,
    d.Qty, d.Price, d.SubTotal, 'Total' as TotalLabel
from BillsForClients i
inner join Billing b on b.InvNo = i.invNo
inner join hRecords h on h.consultID = b.billNo
inner join BillingDetails d on d.billNo = b.billNo
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = (select min(c.retainID) from hRetainership c where c.retainCode = i.CoyCode)
go
-- The visits that have something to show on an invoice: a line, or an item that a fixed fee covers.
create view vwbillingForAttd as
select h.consultID as billNo, h.PNo, p.fullname as fullName, r.retainName as Company, h.recDate as Date,
    h.clientCat as clientcatID
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
where exists (select d.detID from BillingDetails d where d.billNo = h.consultID)
    or exists (select a.SNo from BillAccum a where a.consultID = h.consultID and a.Capitated = 'YES')
union all
select h.consultID as billNo, h.PNo, (select max(q.fullname) from hPatientsPublic q where q.PNo = h.PNo) as fullName,
    r.retainName as Company, h.recDate as Date, h.clientCat as clientcatID
from hRecordsPublic h
left join hRetainership r on r.retainID = h.coyName
where exists (select d.detID from BillingDetails d where d.billNo = h.consultID)
go
-- The lines of a bill, processed or not, with what vwBillingForClaims has of them. A private patient pays himself.
create view vwBillingForClaimsByPat as
select convert(varchar(7), h.BillDate, 111) as batchNo, r.retainCode as CoyCode,
    case when b.isProcess = 1 then b.InvNo else '' end as InvNo, r.retainName as Coyname,
    case when h.clientCat = 'PRIVATE' then p.fullname else r.retainName end as SentTo,
    case when h.clientCat = 'PRIVATE' then p.homeAddress else r.Address end as SentToAddress, h.consultID as billNo,
    d.detID as SNO, h.PNo, p.fullname as Fullname,
    p.sex, year(h.recDate) - year(p.DOB) as Age, p.empNo, h.clientCat as pCatid, h.referal, h.recDate as AttdDate,
    h.BillDate, b.diagnosis as Diagnosis,
    (select a.ApprvCode from hApprvCode a
        where a.SNO = (select min(f.SNO) from hApprvCode f where f.consultID = h.consultID)) as ApprvCode,
    d.dtDate as Date, d.drgName as Service,
    case when isnull(d.BillHead, '') <> '' then d.BillHead when isnull(d.revType, '') <> '' then d.revType
        else 'OTHERS' end as BillHead,
    d.Qty, d.Price, d.SubTotal, 'Total' as TotalLabel
from hRecords h
inner join BillingDetails d on d.billNo = h.consultID
left join Billing b on b.billNo = h.consultID
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
union all
select convert(varchar(7), h.recDate, 111) as batchNo, r.retainCode as CoyCode, '' as InvNo, r.retainName as Coyname,
    (select max(q.fullname) from hPatientsPublic q where q.PNo = h.PNo) as SentTo, '' as SentToAddress,
    h.consultID as billNo, d.detID as SNO, h.PNo,
    (select max(q.fullname) from hPatientsPublic q where q.PNo = h.PNo) as Fullname,
    (select max(q.sex) from hPatientsPublic q where q.PNo = h.PNo) as sex, null as Age, '' as empNo,
    h.clientCat as pCatid, h.referal, h.recDate as AttdDate, h.recDate as BillDate, b.diagnosis as Diagnosis,
    '' as ApprvCode, d.dtDate as Date, d.drgName as Service,
    case when isnull(d.BillHead, '') <> '' then d.BillHead when isnull(d.revType, '') <> '' then d.revType
        else 'OTHERS' end as BillHead,
    d.Qty, d.Price, d.SubTotal, 'Total' as TotalLabel
from hRecordsPublic h
inner join BillingDetails d on d.billNo = h.consultID
left join Billing b on b.billNo = h.consultID
left join hRetainership r on r.retainID = h.coyName
go
-- The same lines for the invoice by headings.
create view vwBillingForCorpClientsByPat as
select v.* from vwBillingForClaimsByPat v
go
-- The same lines with what was paid on the bill and what is left of it.
create view vwBillingForClaimsByPatInvoice as
select v.*, isnull(b.AmountPaid, 0) as AmountPaid,
    (select sum(d.SubTotal) from BillingDetails d where d.billNo = v.billNo) - isnull(b.AmountPaid, 0) as AmountDue
from vwBillingForClaimsByPat v
left join Billing b on b.billNo = v.billNo
go
-- The same lines with the stay in the ward: as the bill has it, else as the ward noted it last.
create view vwBillingForClaimsByPatGrouped as
select v.*,
    isnull(b.admdate, (select a.admdate from vwAdmissionAndDischargeInfo a where a.consultID = v.billNo)) as admdate,
    isnull(b.DischDate, (select a.DischDate from vwAdmissionAndDischargeInfo a where a.consultID = v.billNo))
        as DischDate,
    (select a.wardid from vwAdmissionAndDischargeInfo a where a.consultID = v.billNo) as wardid
from vwBillingForClaimsByPat v
left join Billing b on b.billNo = v.billNo
go
-- The items of a visit that a fixed fee covers: they are worth their amounts and cost nothing.
create view vwBillingForCapByPat as
select convert(varchar(7), h.BillDate, 111) as batchNo, r.retainCode as CoyCode, '' as InvNo, r.retainName as Coyname,
    case when h.clientCat = 'PRIVATE' then p.fullname else r.retainName end as SentTo,
    case when h.clientCat = 'PRIVATE' then p.homeAddress else r.Address end as SentToAddress, h.consultID as billno,
    d.SNo as SNO, h.PNo, p.fullname as Fullname,
    p.sex, year(h.recDate) - year(p.DOB) as Age, p.empNo, h.clientCat as pCatid, h.referal, h.recDate as AttdDate,
    h.BillDate, b.diagnosis as Diagnosis,
    (select a.ApprvCode from hApprvCode a
        where a.SNO = (select min(f.SNO) from hApprvCode f where f.consultID = h.consultID)) as ApprvCode,
    d.dtDate as Date, d.drgName as Service,
    case when isnull(d.revType, '') <> '' then d.revType else 'OTHERS' end as BillHead,
    d.Qty, d.Price, d.SubTotal, 'Covered by the fixed fee, not charged' as TotalLabel
from hRecords h
inner join BillAccum d on d.consultID = h.consultID
left join Billing b on b.billNo = h.consultID
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
where (d.Capitated = 'YES' or (isnull(d.Capitated, '') = '' and
    d.attendedto = 1 and not exists (select l.detID from BillingDetails l where l.SNo = d.SNo)))
go

-- Receipts
-- --------

-- Every receipt and reversal with its payer and the client of the visit paid for.
create view qrypayments as
select y.SNo, y.ReceiptDate as receiptDate, y.ReceiptNo as receiptNo,
    isnull(p.fullname, (select max(q.fullname) from hPatientsPublic q where q.PNo = y.PNo)) as fullname, y.PNo as pno,
    y.billNo as BillNO, y.Amountbilled as AmountBilled, y.AmountPaid, y.PaymentFor, y.PayType, y.Remarks,
    r.retainName
from Payments y
left join hPatients p on p.PNo = y.PNo
left join hRecords h on h.consultID = y.billNo
left join hRetainership r on r.retainID = isnull(h.coyName, isnull(p.coyName,
    (select max(o.coyName) from hRecordsPublic o where o.consultID = y.billNo)))
go
-- A receipt as it is printed; idval is the first line of the heading of its code.
create view qryhBillingReceipt as
select y.SNo, y.ReceiptDate, y.rTime, y.ReceiptNo,
    isnull(p.fullname, (select max(q.fullname) from hPatientsPublic q where q.PNo = y.PNo)) as Fullname, y.PNo,
    y.billNo as BillNO, y.Amountbilled as AmountBilled, y.AmountPaid, y.AmountInWord, y.PaymentFor, y.PayType,
    y.ChequeNo, y.ClinicID as clinicID, y.ReceivedBy as Receivedby, y.Remarks, r.retainName as CoyName,
    (select min(s.idval) from appSettings s where s.IDValCode = SUBSTRING(y.ReceiptNo, 4, 2)) as idval
from Payments y
left join hPatients p on p.PNo = y.PNo
left join hRecords h on h.consultID = y.billNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
go
-- An outlet's receipt as it is printed.
create view qryhBillingReceiptPublic as
select y.SNo, y.ReceiptDate, y.rTime, y.ReceiptNo as receiptNo,
    (select max(q.fullname) from hPatientsPublic q where q.PNo = h.PNo) as Fullname, y.PNo, y.billNo as BillNO,
    y.Amountbilled as AmountBilled, y.AmountPaid, y.AmountInWord, y.PaymentFor, y.PayType, y.ChequeNo,
    y.ClinicID as clinicID, y.ReceivedBy as Receivedby, y.Remarks, r.retainName as CoyName
from Payments y
inner join hRecordsPublic h on h.consultID = y.billNo
left join hRetainership r on r.retainID = h.coyName
go
-- The money that came in, receipt by receipt; a reversal counts against it.
create view qryhBillingIncome as
select y.ReceiptDate as receiptdate, y.ReceiptNo as receiptNo,
    isnull(p.fullname, (select max(q.fullname) from hPatientsPublic q where q.PNo = y.PNo)) as Fullname,
    y.billNo as BillNO, y.PaymentFor, y.PayType, y.AmountPaid as Income
from Payments y
left join hPatients p on p.PNo = y.PNo
go
-- The reversals: receipts of a negative amount. Remarks names the receipt that was reversed.
create view qryreceiptCancelled as
select y.ReceiptDate as receiptdate, y.ReceiptNo as receiptNo,
    isnull(p.fullname, (select max(q.fullname) from hPatientsPublic q where q.PNo = y.PNo)) as Fullname,
    y.billNo as BillNO, y.AmountPaid, y.Remarks
from Payments y
left join hPatients p on p.PNo = y.PNo
where y.AmountPaid < 0
go
-- What came in by each way of payment and account of a day, posted to the ledger or not.
create view vwPaymentTypesSummGrid as
select t.ReceiptDate, t.AccountNo as AccountToDebit, sum(t.AmountPaid) as AmountPaid, t.PayType, t.isPost
from PaymentTypes t
group by t.ReceiptDate, t.AccountNo, t.PayType, t.isPost
go
-- Both sides of the entry of a day's receipts: revenue by type and account, and the ways of payment.
create view vwPaymentDetailsSummForCashPosting as
select d.ReceiptDate, d.AccountNo, sum(d.AmountPaid) as AmountPaid, d.revType as RevType, 'CREDIT' as Remarks, d.isPost
from PaymentDetails d
group by d.ReceiptDate, d.AccountNo, d.revType, d.isPost
union all
select t.ReceiptDate, t.AccountNo, sum(t.AmountPaid) as AmountPaid, t.PayType as RevType, 'DEBIT' as Remarks, t.isPost
from PaymentTypes t
group by t.ReceiptDate, t.AccountNo, t.PayType, t.isPost
go
-- What of each receipt that is distributed, in part at least, is not, or too much.
create view vwPaymentDetailsSumm2 as
select p.ReceiptDate, p.ReceiptNo, p.AmountPaid,
    round(isnull(p.AmountPaid, 0) - (select sum(d.AmountPaid) from PaymentDetails d
        where d.ReceiptNo = p.ReceiptNo and d.ReceiptDate = p.ReceiptDate), 2) as Diff,
    p.PaymentFor as paymentFor, p.billNo as billNO
from Payments p
where exists (select d.SNo from PaymentDetails d where d.ReceiptNo = p.ReceiptNo and d.ReceiptDate = p.ReceiptDate)
go
