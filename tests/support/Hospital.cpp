#include "support/Hospital.h"

#include "data/rows/ActionParts.h"
#include "data/rows/Recordset.h"
#include "data/rows/Transaction.h"

namespace orvane {

namespace {

/// Where a row follows from another one, it is taken from there.
const char* const hospitalRows[] = {
    "insert into HospList (hospID, Hname, hname2) values ('001', 'HALDEN HOSPITAL', 'MAIN CLINIC')",
    "insert into ApplicationUsers (Username, Fullname, Password, AccountStatus, BranchCode, EmpID, hospID) values "
    "('amina.b', 'AMINA BELLO', '', 'Enabled', 'HQ', 'E001', '001')",
    "insert into Roles (RoleID, LoginRole) values (101, 'BILLING'), (102, 'MANAGEMENT')",
    "insert into UserRoles (RoleID, Username) values (101, 'amina.b'), (102, 'amina.b')",
    "insert into UsersForAccts (username) values ('amina.b')",
    "insert into LagosBranches (BranchCode) values ('HQ')",
    "insert into employees (empID, LastName, firstname, deptID, designation) values "
    "('E001', 'BELLO', 'AMINA', 'ACC', 'CASHIER'), ('D001', 'OKAFOR', 'CHIDI', 'MED', 'DOCTOR')",
    "insert into AccountMonth (Period) values ('2026-03')",
    "insert into appSettings (ID, IDValCode, idval, idval2, idval3, idval4, idval5, idvalPix) values "
    "('BILL', '00', 'HALDEN HOSPITAL', '12 CREEK ROAD', 'LAGOS', 'TEL 01-0000000', '', 'RctPix.JPG'), "
    "('LAB', 'LB', 'HALDEN LABORATORY', '12 CREEK ROAD', 'LAGOS', 'TEL 01-0000000', '', 'RctPixLab.JPG')",
    "insert into AppDefaults (ID, idval) values ('PRIVATE','0001'), ('LockPrice','YES'), ('RevTypeRpt','NO'), "
    "('AcctPostOn','1'), ('ACCT_SUSP','9999'), ('ACCT_SUSP_DESC','SUSPENSE'), ('AcctPostType','AUTO'), "
    "('AUTO_TRAN_NO','YES'), ('AcctCostCenter','01'), ('AcctNoPOS','1003'), ('AcctNoCheque','1002'), "
    "('AcctNoTransfer','1004'), ('AcctNoCash','1001'), ('AcctNoOthers','0000'), ('CashAccountIndex','1'), "
    "('ARAccountIndex','2'), ('AcctNoSales','4000'), ('AcctNoSalesInv','4100'), ('NHISFEE','ALL'), "
    "('OLDPNo','NO'), ('BillTo','0001'), ('Coy_Code','SHORT')",
    "insert into clinicTypes (ClinicID, ConFee, Code, rctCode) values ('OPD', 2000, 'OP', 'OP'), "
    "('ANTENATAL', 1501.5, 'AN', 'AN')",
    "insert into hOutletTypes (ItemName, ItemCode) values ('LABORATORY', 'LB'), ('PHARMACY', 'PH')",
    "insert into drugcategories (drgCatname, catremarks) values ('TABLETS', 'ORAL'), ('INJECTIONS', 'INJECTIONS')",
    "insert into billingPrice (clientCatID, clientType, pcent, pvalue) values ('PRIVATE','PRIVATE',0,0), "
    "('HMO','HMO',0,0), ('NHIS','NHIS',0,0), ('PHIS','NHIS',0,0), ('COMPANY','COMPANY',0,0), "
    "('MTHLY','COMPANY',0,0), ('3MTHLY','COMPANY',0,0), ('6MTHLY','COMPANY',0,0)",
    "insert into hRetainership (retainID, retainCode, retainName, ClientType, clientcatID, Active, Debt, "
    "BillEndDate) values "
    "('0001','0001','PRIVATE PATIENTS','PRIVATE','PRIVATE','YES',0,31), "
    "('0102','0102','HARMONY MILLS LTD','COMPANY','MTHLY','YES',0,31), "
    "('0201','0201','CLEARWATER HMO','HMO','HMO','YES',0,31), ('0301','0301','NATIONAL "
    "SCHEME','NHIS','NHIS','YES',0,31)",
    "insert into hRevenueType (revType, Active, AccountNo) values ('CONSULTATION','YES','4001'), "
    "('DRUGS','YES','4002'), ('LABORATORY','YES','4003'), ('SERVICES','YES','4004'), ('OTHERS','YES','4009')",
    "insert into drugs (drgName, ItemID, drgCatName, qtyPerUnit, Cost, Capitated) values "
    "('PARACETAMOL 500MG','PARACETAMOL 500MG','TABLETS',1,50,'NO'), "
    "('AMOXICILLIN 500MG','AMOXICILLIN 500MG','TABLETS',1,120,'NO'), "
    "('ARTEMETHER INJECTION','ARTEMETHER INJECTION','INJECTIONS',1,850,'NO')",
    "insert into drugMaster (drgName, drgCatName, revType) select drgName, drgCatName, 'DRUGS' from drugs",
    "insert into StockItemsRetail (ItemID, ItemName, ItemCatID, UnitPrice, UnitsInStock) select drgName, drgName, "
    "drgCatName, Cost, 500 from drugs",
    "insert into labservices (Drgname, drgCatName, Capitated, revType, coyID, Cost) values "
    "('MALARIA PARASITE','PARASITOLOGY','NO','LABORATORY','0001',1500), "
    "('FULL BLOOD COUNT','HAEMATOLOGY','NO','LABORATORY','0001',3500)",
    "insert into hservices (service, Category, Capitated, revType, coyID, Cost) values "
    "('WOUND DRESSING','NURSING','NO','SERVICES','0001',2500)",
    "insert into DrugNHIS (drgName, company, Price, Capitated, RevType) select drgName, '0001', Cost, 'NO', 'DRUGS' "
    "from drugs",
    "insert into LabServiceNHIS (drgName, company, Price, Capitated, RevType) select Drgname, '0001', Cost, 'NO', "
    "revType from labservices",
    "insert into hServiceNHIS (service, company, Price, Capitated, RevType) select service, '0001', Cost, 'NO', "
    "revType from hservices",
    "insert into DrugNHIS (drgName, company, Price, Capitated, RevType) values "
    "('PARACETAMOL 500MG','0201',40,'YES','DRUGS'), ('AMOXICILLIN 500MG','0201',0,'NO','DRUGS')",
    "insert into LabServiceNHIS (drgName, company, Price, Capitated, RevType) values "
    "('MALARIA PARASITE','0201',1200,'NO','LABORATORY')",
};

/// The columns by name, apart by blanks.
void addRow(Connection& connection, const Sql& table, const char* columns, const QVariantList& values) {
    Recordset row(connection, Sql("select * from ") << table << Sql(" where 1=2"));
    row.addNew();
    const QStringList names = QString::fromLatin1(columns).split(' ');
    for (qsizetype i = 0; i < names.size(); ++i)
        row.set(names.at(i), values.at(i));
    row.update();
}

} // namespace

void layHospital(Connection& billing, Connection& accounting) {
    Transaction transaction(billing);
    for (const char* row : hospitalRows)
        billing.run(QString::fromLatin1(row));
    transaction.commit();
    accounting.run("insert into AccountMonth (Period) values ('2026-03')");
}

void makePatient(Connection& billing, const TestPatient& patient) {
    addRow(billing, Sql("hPatients"), "PNo psurname pfirstname clientcatID coyName ref expirydate DebtBF",
           {patient.pno, patient.surname, patient.firstname, patient.category, patient.client, patient.ref,
            patient.expiry, patient.debt});
}

void makeVisit(Connection& billing, const TestVisit& visit) {
    addRow(billing, Sql("hRecords"),
           "consultID PNo recDate htime clientCat coyName clinicType Remarks referal empID attendedto",
           {visit.consultID, visit.pno, visit.date, "09:00:00", visit.category, visit.client, visit.clinic,
            visit.purpose, visit.referal, "E001", 0});
}

void makeConsultation(Connection& billing, const TestConsultation& consultation) {
    addRow(billing, Sql("hconsulting"), "consultID PNo CDate cTime Diagnosis prescription treatedby attendedto",
           {consultation.consultID, consultation.pno, consultation.date, "09:20:00", consultation.diagnosis,
            consultation.prescription, "D001", consultation.finished ? 1 : 0});
}

qlonglong makeItem(Connection& billing, const TestItem& item) {
    addRow(billing, Sql("BillAccum"),
           "consultID PNo dtDate drgName Price Qty SubTotal billType revType billTo coyName Capitated conID BillBy",
           {item.consultID, item.pno, item.date, item.name, item.price, item.qty, item.price * item.qty, item.billType,
            item.revType, item.client, item.client, item.capitated, 0, "amina.b"});
    return billing.run("select max(SNo) as SNo from BillAccum").integer("SNo");
}

void makeMonthBill(Connection& billing, const QString& billNo, const QString& client, double amount, QDate date) {
    makeVisit(billing, {.consultID = billNo, .date = date, .category = "MTHLY", .client = client});
    billing.execute(Sql("update hRecords set BillDate=recDate where consultID='") << billNo << "'");
    billing.execute(Sql("insert into Billing (billNo, PNo, clientID) values ('")
                    << billNo << "', 'P/0001', '" << client << "')");
    makeMonthLine(billing, billNo, client, amount, date);
}

void makeMonthLine(Connection& billing, const QString& billNo, const QString& client, double amount, QDate date) {
    const qlonglong sno = makeItem(billing, {.consultID = billNo, .date = date, .client = client, .price = amount});
    billing.execute(Sql("update BillAccum set isBilled=1, attendedto=1 where SNo=") << sno);
    billing.execute(Sql("insert into BillingDetails (SNo, billNo, PNo, drgName, SubTotal, billTo) values (")
                    << sno << ", '" << billNo << "', 'P/0001', 'PARACETAMOL 500MG', " << amount << ", '" << client
                    << "')");
    billing.execute(Sql("update Billing set Amountbilled=isnull(Amountbilled, 0)+")
                    << amount << " where billNo='" << billNo << "'");
    noteOpening(billing);
}

} // namespace orvane
