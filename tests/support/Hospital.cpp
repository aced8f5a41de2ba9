#include "support/Hospital.h"

#include "data/rows/Recordset.h"
#include "data/rows/Transaction.h"

namespace orvane {

namespace {

const char* const settingRows[] = {
    "insert into HospList (hospID, Hname, hname2) values ('001', 'HALDEN HOSPITAL', 'MAIN CLINIC')",
    "insert into ApplicationUsers (Username, Fullname, Password, AccountStatus, BranchCode, EmpID, hospID) values "
    "('amina.b', 'AMINA BELLO', '', 'Enabled', 'HQ', 'E001', '001')",
    "insert into Roles (RoleID, LoginRole) values (101, 'BILLING')",
    "insert into Roles (RoleID, LoginRole) values (102, 'MANAGEMENT')",
    "insert into UserRoles (RoleID, Username) values (101, 'amina.b')",
    "insert into UserRoles (RoleID, Username) values (102, 'amina.b')",
    "insert into UsersForAccts (username) values ('amina.b')",
    "insert into LagosBranches (BranchCode) values ('HQ')",
    "insert into employees (empID, LastName, firstname, deptID, designation) values ('E001', 'BELLO', 'AMINA', 'ACC', "
    "'CASHIER')",
    "insert into employees (empID, LastName, firstname, deptID, designation) values ('D001', 'OKAFOR', 'CHIDI', 'MED', "
    "'DOCTOR')",
    "insert into AccountMonth (Period) values ('2026-03')",
    "insert into appSettings (ID, IDValCode, idval, idval2, idval3, idval4, idval5, idvalPix) values "
    "('BILL', '00', 'HALDEN HOSPITAL', '12 CREEK ROAD', 'LAGOS', 'TEL 01-0000000', '', 'RctPix.JPG')",
    "insert into appSettings (ID, IDValCode, idval, idval2, idval3, idval4, idval5, idvalPix) values "
    "('LAB', 'LB', 'HALDEN LABORATORY', '12 CREEK ROAD', 'LAGOS', 'TEL 01-0000000', '', 'RctPixLab.JPG')",
};

const struct {
    const char* id;
    const char* value;
} appDefaults[] = {
    {"PRIVATE", "0001"},      {"LockPrice", "YES"},           {"RevTypeRpt", "NO"},      {"AcctPostOn", "1"},
    {"ACCT_SUSP", "9999"},    {"ACCT_SUSP_DESC", "SUSPENSE"}, {"AcctPostType", "AUTO"},  {"AUTO_TRAN_NO", "YES"},
    {"AcctCostCenter", "01"}, {"AcctNoPOS", "1003"},          {"AcctNoCheque", "1002"},  {"AcctNoTransfer", "1004"},
    {"AcctNoCash", "1001"},   {"AcctNoOthers", "0000"},       {"CashAccountIndex", "1"}, {"ARAccountIndex", "2"},
    {"AcctNoSales", "4000"},  {"AcctNoSalesInv", "4100"},     {"NHISFEE", "ALL"},        {"OLDPNo", "NO"},
    {"BillTo", "0001"},       {"Coy_Code", "SHORT"},
};

const char* const masterRows[] = {
    "insert into clinicTypes (ClinicID, ConFee, Code, rctCode) values ('OPD', 2000, 'OP', 'OP')",
    "insert into clinicTypes (ClinicID, ConFee, Code, rctCode) values ('ANTENATAL', 1501.5, 'AN', 'AN')",
    "insert into hOutletTypes (ItemName, ItemCode) values ('LABORATORY', 'LB')",
    "insert into hOutletTypes (ItemName, ItemCode) values ('PHARMACY', 'PH')",
    "insert into drugcategories (drgCatname, catremarks) values ('TABLETS', 'ORAL')",
    "insert into drugcategories (drgCatname, catremarks) values ('INJECTIONS', 'INJECTION')",
};

/// Clients and items; where a row follows from another one, it is taken from there.
const char* const priceRows[] = {
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

void addRow(Connection& connection, const Sql& table, std::initializer_list<std::pair<const char*, QVariant>> values) {
    Recordset row(connection, Sql("select * from ") << table << Sql(" where 1=2"));
    row.addNew();
    for (const auto& [column, value] : values)
        row.set(QString::fromLatin1(column), value);
    row.update();
}

QString text(const char* latin) {
    return QString::fromLatin1(latin);
}

} // namespace

void layHospital(Connection& billing, Connection& accounting) {
    Transaction transaction(billing);
    for (const char* row : settingRows)
        billing.run(text(row));
    for (const auto& setting : appDefaults)
        addRow(billing, Sql("AppDefaults"), {{"ID", text(setting.id)}, {"idval", text(setting.value)}});
    for (const char* row : masterRows)
        billing.run(text(row));
    for (const char* row : priceRows)
        billing.run(text(row));
    transaction.commit();
    accounting.run("insert into AccountMonth (Period) values ('2026-03')");
}

void makePatient(Connection& billing, const TestPatient& patient) {
    addRow(billing, Sql("hPatients"),
           {{"PNo", patient.pno},
            {"psurname", patient.surname},
            {"pfirstname", patient.firstname},
            {"clientcatID", patient.category},
            {"coyName", patient.client},
            {"ref", patient.ref},
            {"expirydate", patient.expiry},
            {"DebtBF", patient.debt}});
}

void makeVisit(Connection& billing, const TestVisit& visit) {
    addRow(billing, Sql("hRecords"),
           {{"consultID", visit.consultID},
            {"PNo", visit.pno},
            {"recDate", visit.date},
            {"htime", "09:00:00"},
            {"clientCat", visit.category},
            {"coyName", visit.client},
            {"clinicType", visit.clinic},
            {"Remarks", visit.purpose},
            {"referal", visit.referal},
            {"empID", "E001"},
            {"attendedto", 0}});
}

void makeConsultation(Connection& billing, const TestConsultation& consultation) {
    addRow(billing, Sql("hconsulting"),
           {{"consultID", consultation.consultID},
            {"PNo", consultation.pno},
            {"CDate", consultation.date},
            {"cTime", "09:20:00"},
            {"Diagnosis", consultation.diagnosis},
            {"prescription", consultation.prescription},
            {"treatedby", "D001"},
            {"attendedto", consultation.finished ? 1 : 0}});
}

qlonglong makeItem(Connection& billing, const TestItem& item) {
    addRow(billing, Sql("BillAccum"),
           {{"consultID", item.consultID},
            {"PNo", item.pno},
            {"dtDate", item.date},
            {"drgName", item.name},
            {"Price", item.price},
            {"Qty", item.qty},
            {"SubTotal", item.price * item.qty},
            {"billType", item.billType},
            {"revType", item.revType},
            {"billTo", item.client},
            {"coyName", item.client},
            {"Capitated", item.capitated},
            {"conID", 0},
            {"BillBy", "amina.b"}});
    return billing.run("select max(SNo) as SNo from BillAccum").integer("SNo");
}

} // namespace orvane
