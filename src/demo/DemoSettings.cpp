#include "books/NewUser.h"
#include "books/Period.h"
#include "data/rows/Transaction.h"
#include "demo/DemoParts.h"

namespace orvane {

namespace {

struct Setting {
    const char* id;
    const char* value;
};

constexpr Setting defaults[] = {
    {"PRIVATE", "0001"},         {"LockPrice", "YES"},
    {"RevTypeRpt", "NO"},        {"AcctPostOn", "1"},
    {"ACCT_SUSP", "2130010"},    {"ACCT_SUSP_DESC", "DEPOSITS"},
    {"AcctPostType", "AUTO"},    {"AUTO_TRAN_NO", "YES"},
    {"AcctCostCenter", "001"},   {"AcctNoPOS", "1220030"},
    {"AcctNoCheque", "1220010"}, {"AcctNoTransfer", "1220020"},
    {"AcctNoCash", "1210010"},   {"AcctNoOthers", "0000"},
    {"CashAccountIndex", "1"},   {"ARAccountIndex", "2"},
    {"AcctNoSales", "4210030"},  {"AcctNoSalesInv", "1230050"},
    {"NHISFEE", "10"},           {"OLDPNo", "NO"},
    {"BillTo", "0001"},          {"Coy_Code", "SHORT"},
};

struct Heading {
    const char* id;   ///< the program's own two rows
    const char* code; ///< the receipts' rows: "00" for the hospital, the outlet's code for an outlet
    const char* line1;
    const char* line2;
    const char* line3;
    const char* line4;
    const char* picture;
};

constexpr Heading headings[] = {
    {"BILL", "", "HALDEN HOSPITAL", "14 Quarry Road, Ikeja, Lagos", "Tel: 0800 000 1400", "accounts@halden.example",
     "RctPix.JPG"},
    {"LAB", "", "HALDEN HOSPITAL LABORATORY", "14 Quarry Road, Ikeja, Lagos", "Tel: 0800 000 1410",
     "lab@halden.example", "RctPixLab.JPG"},
    {"RCT00", "00", "HALDEN HOSPITAL", "Main Clinic", "14 Quarry Road, Ikeja, Lagos", "Tel: 0800 000 1400",
     "RctPix.JPG"},
    {"RCT51", "51", "HALDEN HOSPITAL", "Laboratory", "14 Quarry Road, Ikeja, Lagos", "Tel: 0800 000 1410",
     "RctPixLab.JPG"},
    {"RCT52", "52", "HALDEN HOSPITAL", "Radiology", "14 Quarry Road, Ikeja, Lagos", "Tel: 0800 000 1430", "RctPix.JPG"},
    {"RCT53", "53", "HALDEN HOSPITAL", "Dental Clinic", "14 Quarry Road, Ikeja, Lagos", "Tel: 0800 000 1420",
     "RctPixDen.JPG"},
};

/// Revenue type, its category and the ledger account that its money goes to.
constexpr const char* revenueTypes[][3] = {
    {"CONSULTATION", "CLINIC", "4110010"},   {"REGISTRATION", "CLINIC", "4110020"},
    {"WARD", "IN-PATIENT", "4110030"},       {"NURSING", "IN-PATIENT", "4110040"},
    {"THEATRE", "IN-PATIENT", "4110050"},    {"MATERNITY", "CLINIC", "4110060"},
    {"DENTAL", "CLINIC", "4110070"},         {"EYE", "CLINIC", "4110080"},
    {"PHYSIOTHERAPY", "CLINIC", "4110090"},  {"PHARMACY", "PHARMACY", "4120010"},
    {"LABORATORY", "DIAGNOSTIC", "4120020"}, {"RADIOLOGY", "DIAGNOSTIC", "4120030"},
    {"CAPITATION", "CLIENT", "4120040"},     {"SUNDRY", "OTHERS", "4210030"},
    {"OTHERS", "OTHERS", "4210030"},
};

struct Category {
    const char* category;
    const char* clientType;
    int percent; ///< mark-up on the base cost
};

constexpr Category categories[] = {
    {"PRIVATE", "PRIVATE", 0}, {"HMO", "HMO", 10},        {"NHIS", "NHIS", 0},       {"PHIS", "PHIS", 0},
    {"MTHLY", "COMPANY", 20},  {"3MTHLY", "COMPANY", 25}, {"6MTHLY", "COMPANY", 30}, {"COMPANY", "COMPANY", 20},
    {"SCHOOL", "SCHOOL", 5},   {"STAFF", "STAFF", 0},
};

constexpr const char* clientTypes[] = {"PRIVATE", "HMO", "NHIS", "PHIS", "COMPANY", "SCHOOL", "STAFF"};

constexpr const char* branches[] = {"IKEJA", "SURULERE", "YABA", "LEKKI", "APAPA"};

/// A service outlet and the code in the numbers of its receipts.
constexpr const char* outlets[][2] = {{"LABORATORY", "51"}, {"RADIOLOGY", "52"}, {"DENTAL", "53"}};

struct DemoUser {
    const char* name;
    const char* fullName;
    const char* employee;
    QStringList roles;
    bool accounts;
};

QString latin(const char* text) {
    return QString::fromLatin1(text);
}

void makeHeadings(Connection& billing) {
    Recordset rows(billing, Sql("select * from appSettings where 1=2"));
    for (const Heading& heading : headings) {
        addRow(rows, {{"ID", latin(heading.id)},
                      {"IDValCode", latin(heading.code)},
                      {"idval", latin(heading.line1)},
                      {"idval2", latin(heading.line2)},
                      {"idval3", latin(heading.line3)},
                      {"idval4", latin(heading.line4)},
                      {"idval5", latin(heading.picture)},
                      {"idvalPix", latin(heading.picture)}});
    }
}

void makeRevenueTypes(Connection& billing) {
    Recordset rows(billing, Sql("select * from hRevenueType where 1=2"));
    for (const auto& [name, category, account] : revenueTypes)
        addRow(rows, {{"revType", latin(name)},
                      {"CatRemarks", latin(category)},
                      {"Active", "YES"},
                      {"AccountNo", latin(account)}});
}

void makeClinics(Connection& billing, const DemoHospital& hospital) {
    Recordset clinics(billing, Sql("select * from clinicTypes where 1=2"));
    int code = 10;
    for (const QStringList& clinic : hospital.clinics) {
        const QString receiptCode = QString::number(code++);
        addRow(clinics, {{"ClinicID", clinic.at(0)},
                         {"ConFee", clinic.at(1).toDouble()},
                         {"Code", receiptCode},
                         {"rctCode", receiptCode}});
    }
    Recordset outletRows(billing, Sql("select * from hOutletTypes where 1=2"));
    for (const auto& [name, outletCode] : outlets)
        addRow(outletRows, {{"ItemName", latin(name)}, {"ItemCode", latin(outletCode)}});
}

void makeChart(Connection& connection) {
    Recordset accounts(connection, Sql("select * from ChartOfAccounts where 1=2"));
    for (const QStringList& account : demoFacts("accounts"))
        addRow(accounts, {{"AccountNo", account.at(0)}, {"AccountName", account.at(1)}, {"groupID", account.at(2)}});
}

} // namespace

void makeSettings(Connection& billing, const DemoHospital& hospital) {
    Transaction transaction(billing);
    Recordset settings(billing, Sql("select * from AppDefaults where 1=2"));
    for (const Setting& setting : defaults)
        addRow(settings, {{"ID", latin(setting.id)}, {"idval", latin(setting.value)}});
    makeHeadings(billing);
    Recordset hospitals(billing, Sql("select * from HospList where 1=2"));
    addRow(hospitals, {{"hospID", "001"}, {"Hname", "HALDEN HOSPITAL"}, {"HName2", "Main Clinic"}});
    makeRevenueTypes(billing);
    Recordset prices(billing, Sql("select * from billingPrice where 1=2"));
    for (const Category& category : categories)
        addRow(prices, {{"clientCatID", latin(category.category)},
                        {"clientType", latin(category.clientType)},
                        {"pcent", category.percent},
                        {"pvalue", category.percent / 100.0}});
    Recordset types(billing, Sql("select * from hClientType where 1=2"));
    for (const char* type : clientTypes)
        addRow(types, {{"ClientType", latin(type)}});
    Recordset branchRows(billing, Sql("select * from LagosBranches where 1=2"));
    for (const char* branch : branches)
        addRow(branchRows, {{"BranchCode", latin(branch)}});
    makeClinics(billing, hospital);
    transaction.commit();
}

void makeUsers(Connection& billing) {
    const DemoUser users[] = {
        {"amina.b", "AMINA BELLO", "E001", {"BILLING", "MANAGEMENT"}, true},
        {"chidi.o", "CHIDI OKAFOR", "E002", {"BILLING"}, false},
        {"bukola.a", "BUKOLA ADEYEMO", "E003", {"BILLING", "CASHIER"}, false},
        {"efosa.i", "EFOSA IGBINOSA", "E004", {"BILLING", "CASHIER"}, false},
        {"halima.y", "HALIMA YUSUF", "E005", {"RECORDS", "BILLING"}, false},
        {"obinna.e", "OBINNA EZE", "E006", {"RECORDS"}, false},
    };
    for (const DemoUser& user : users) {
        NewUser account;
        account.name = latin(user.name);
        account.fullName = latin(user.fullName);
        account.employeeID = latin(user.employee);
        account.roles = user.roles;
        account.accounts = user.accounts;
        account.password = "halden";
        account.branch = "IKEJA";
        admitUser(billing, account);
    }
}

void makeAccounts(Connection& accounting, const DemoHospital& hospital) {
    {
        Transaction transaction(accounting);
        makeChart(accounting);
        transaction.commit();
    }
    const DemoOptions& options = hospital.options;
    keepPeriodsOpen(accounting, options.until.addDays(1 - options.days));
    keepPeriodsOpen(accounting, options.until);
}

} // namespace orvane
