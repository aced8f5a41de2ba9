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

const struct {
    const char* category;
    const char* type;
} categories[] = {{"PRIVATE", "PRIVATE"}, {"HMO", "HMO"},       {"NHIS", "NHIS"},      {"PHIS", "NHIS"},
                  {"COMPANY", "COMPANY"}, {"MTHLY", "COMPANY"}, {"3MTHLY", "COMPANY"}, {"6MTHLY", "COMPANY"}};

const struct {
    const char* id;
    const char* name;
    const char* type;
    const char* category;
} clients[] = {{"0001", "PRIVATE PATIENTS", "PRIVATE", "PRIVATE"},
               {"0102", "HARMONY MILLS LTD", "COMPANY", "MTHLY"},
               {"0201", "CLEARWATER HMO", "HMO", "HMO"},
               {"0301", "NATIONAL SCHEME", "NHIS", "NHIS"}};

const struct {
    const char* name;
    const char* account;
} revenueTypes[] = {
    {"CONSULTATION", "4001"}, {"DRUGS", "4002"}, {"LABORATORY", "4003"}, {"SERVICES", "4004"}, {"OTHERS", "4009"}};

/// An item with its private price and the HMO's; a price below 0: no row in that template.
const struct {
    const char* kind;
    const char* name;
    const char* category;
    double privatePrice;
    double hmoPrice;
    const char* hmoCapitated;
} items[] = {
    {"DRUG", "PARACETAMOL 500MG", "TABLETS", 50, 40, "YES"},
    {"DRUG", "AMOXICILLIN 500MG", "TABLETS", 120, 0, "NO"},
    {"DRUG", "ARTEMETHER INJECTION", "INJECTIONS", 850, -1, ""},
    {"LAB", "MALARIA PARASITE", "PARASITOLOGY", 1500, 1200, "NO"},
    {"LAB", "FULL BLOOD COUNT", "HAEMATOLOGY", 3500, -1, ""},
    {"SERVICE", "WOUND DRESSING", "NURSING", 2500, -1, ""},
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

void addTemplateRow(Connection& billing, const QString& kind, const QString& name, const char* client, double price,
                    const char* capitated) {
    if (price < 0)
        return;
    const QVariant flag = text(capitated);
    if (kind == QLatin1String("DRUG"))
        addRow(billing, Sql("DrugNHIS"),
               {{"drgName", name},
                {"company", text(client)},
                {"Price", price},
                {"Capitated", flag},
                {"RevType", "DRUGS"}});
    else if (kind == QLatin1String("LAB"))
        addRow(billing, Sql("LabServiceNHIS"),
               {{"drgName", name},
                {"company", text(client)},
                {"Price", price},
                {"Capitated", flag},
                {"RevType", "LABORATORY"}});
    else
        addRow(billing, Sql("hServiceNHIS"),
               {{"service", name},
                {"company", text(client)},
                {"Price", price},
                {"Capitated", flag},
                {"RevType", "SERVICES"}});
}

void addMaster(Connection& billing, const QString& kind, const QString& name, const QString& category, double cost) {
    if (kind == QLatin1String("DRUG")) {
        addRow(billing, Sql("drugMaster"), {{"drgName", name}, {"drgCatName", category}, {"revType", "DRUGS"}});
        addRow(billing, Sql("drugs"),
               {{"drgName", name},
                {"ItemID", name},
                {"drgCatName", category},
                {"qtyPerUnit", 1},
                {"Cost", cost},
                {"Capitated", "NO"}});
        addRow(billing, Sql("StockItemsRetail"),
               {{"ItemID", name},
                {"ItemName", name},
                {"ItemCatID", category},
                {"UnitPrice", cost},
                {"UnitsInStock", 500}});
    } else if (kind == QLatin1String("LAB")) {
        addRow(billing, Sql("labservices"),
               {{"Drgname", name},
                {"drgCatName", category},
                {"Capitated", "NO"},
                {"revType", "LABORATORY"},
                {"coyID", "0001"},
                {"Cost", cost}});
    } else {
        addRow(billing, Sql("hservices"),
               {{"service", name},
                {"Category", category},
                {"Capitated", "NO"},
                {"revType", "SERVICES"},
                {"coyID", "0001"},
                {"Cost", cost}});
    }
}

void layClients(Connection& billing) {
    for (const auto& category : categories)
        addRow(billing, Sql("billingPrice"),
               {{"clientCatID", text(category.category)},
                {"clientType", text(category.type)},
                {"pcent", 0},
                {"pvalue", 0}});
    for (const auto& client : clients)
        addRow(billing, Sql("hRetainership"),
               {{"retainID", text(client.id)},
                {"retainCode", text(client.id)},
                {"retainName", text(client.name)},
                {"ClientType", text(client.type)},
                {"clientcatID", text(client.category)},
                {"Active", "YES"},
                {"BillEndDate", 31},
                {"Debt", 0}});
}

void layItems(Connection& billing) {
    for (const auto& revenue : revenueTypes)
        addRow(billing, Sql("hRevenueType"),
               {{"revType", text(revenue.name)}, {"Active", "YES"}, {"AccountNo", text(revenue.account)}});
    for (const auto& item : items) {
        addMaster(billing, text(item.kind), text(item.name), text(item.category), item.privatePrice);
        addTemplateRow(billing, text(item.kind), text(item.name), "0001", item.privatePrice, "NO");
        addTemplateRow(billing, text(item.kind), text(item.name), "0201", item.hmoPrice, item.hmoCapitated);
    }
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
    layClients(billing);
    layItems(billing);
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
