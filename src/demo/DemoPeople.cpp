#include "data/rows/Transaction.h"
#include "demo/DemoParts.h"

namespace orvane {

namespace {

const QStringList streets = {"MARKET ROAD", "CHURCH STREET", "UNITY CLOSE",    "HOSPITAL ROAD", "STATION ROAD",
                             "PALM AVENUE", "QUARRY ROAD",   "HARBOUR STREET", "COLLEGE ROAD",  "IROKO CRESCENT"};
const QStringList towns = {"IKEJA", "SURULERE", "YABA", "LEKKI", "APAPA", "AGEGE", "IKORODU", "EPE"};
const QStringList occupations = {"TRADER", "TEACHER",    "CIVIL SERVANT", "STUDENT", "ENGINEER",
                                 "NURSE",  "ACCOUNTANT", "DRIVER",        "TAILOR",  "FARMER"};
const QStringList bloodGroups = {"O+", "O+", "A+", "B+", "AB+", "O-"};
const QStringList genotypes = {"AA", "AA", "AA", "AS", "AS", "SS"};
const QStringList kinships = {"SPOUSE", "PARENT", "SIBLING", "CHILD", "UNCLE", "AUNT"};

/// A share of the patients belongs to clients of one type.
struct Share {
    int percent;
    const char* clientType;
};
constexpr Share shares[] = {{50, "PRIVATE"}, {20, "HMO"},   {13, "NHIS"}, {2, "PHIS"},
                            {11, "COMPANY"}, {2, "SCHOOL"}, {2, "STAFF"}};

/// Names by the people they come from, so that surname and first name go together.
struct Names {
    QVector<QStringList> surnames;
    QHash<std::pair<QString, QString>, QStringList> firstNames; ///< by sex and origin

    Names() : surnames(demoFacts("surnames")) {
        for (const QStringList& name : demoFacts("firstnames"))
            firstNames[{name.at(1), name.at(2)}].append(name.at(0));
    }

    /// One of the first names of this sex and origin; an English one now and then, or where there is none.
    QString firstName(const QString& sex, const QString& origin, DemoRandom& random) const {
        const bool english = random.chance(20);
        const auto own = firstNames.constFind({sex, origin});
        return random.pick(english || own == firstNames.constEnd() ? firstNames[{sex, "ENGLISH"}] : *own);
    }
};

QString address(DemoRandom& random) {
    const int number = random.between(1, 120);
    const QString street = random.pick(streets);
    return QStringLiteral("%1 %2, %3").arg(number).arg(street, random.pick(towns));
}

/// Numbers that belong to nobody.
QString phone(DemoRandom& random) {
    return QStringLiteral("0800000%1").arg(random.below(10000), 4, 10, QLatin1Char('0'));
}

QDate born(QDate today, DemoRandom& random) {
    const int years = random.chance(30) ? random.between(0, 16) : random.between(17, 84);
    return today.addDays(-365 * years - random.below(365));
}

const DemoClient& clientOf(const DemoHospital& hospital, DemoRandom& random) {
    int left = random.below(100);
    const Share* share = shares;
    while (left >= share->percent)
        left -= (share++)->percent;
    QVector<const DemoClient*> ofType;
    for (const DemoClient& client : hospital.clients)
        if (client.type == QLatin1String(share->clientType))
            ofType.append(&client);
    return *random.pick(ofType);
}

int percentOf(const QString& type, int index, DemoRandom& random) {
    if (type == QLatin1String("HMO"))
        return random.between(80, 95);
    if (type == QLatin1String("COMPANY"))
        return index % 2 == 0 ? random.between(105, 125) : 0;
    if (type == QLatin1String("PHIS"))
        return 70;
    return type == QLatin1String("STAFF") ? 50 : 0;
}

QString categoryOf(const QString& type, int index) {
    static const QStringList ofCompanies = {"MTHLY", "3MTHLY", "6MTHLY", "COMPANY"};
    return type == QLatin1String("COMPANY") ? ofCompanies.at(index % int(ofCompanies.size())) : type;
}

/// Of what such a client owes. A few have none yet: what they owe lies in suspense.
QVariant receivablesAccount(const DemoClient& client) {
    const QString& type = client.type;
    if (client.id.endsWith(u'7'))
        return {};
    if (type == QLatin1String("HMO"))
        return "1230020";
    if (type == QLatin1String("NHIS") || type == QLatin1String("PHIS"))
        return "1230030";
    if (type == QLatin1String("STAFF"))
        return "1230060";
    return type == QLatin1String("PRIVATE") ? "1230010" : "1230050";
}

DemoPatient makePatient(int number, const DemoHospital& hospital, const Names& names, DemoRandom& random) {
    DemoPatient patient;
    const int width = qMax(5, int(QString::number(hospital.options.patients).size()));
    patient.number = QStringLiteral("%1/001").arg(number, width, 10, QLatin1Char('0'));
    const QStringList& surname = random.pick(names.surnames);
    patient.surname = surname.at(0);
    patient.sex = random.chance(55) ? "F" : "M";
    patient.firstName = names.firstName(patient.sex, surname.at(1), random);
    const DemoClient& client = clientOf(hospital, random);
    patient.clientID = client.id;
    patient.category = client.category;
    const bool capitated = client.type == QLatin1String("HMO") || client.type == QLatin1String("NHIS");
    patient.feeForService = capitated && random.chance(20);
    const QDate today = hospital.options.until;
    patient.born = born(today, random);
    patient.cardExpires =
        random.chance(3) ? today.addDays(-random.between(1, 200)) : today.addDays(random.between(30, 700));
    if (number % 50 == 7) // the names that break careless statements
        patient.surname = number % 100 == 7 ? "O'NEILL" : "D'ALMEIDA";
    return patient;
}

/// A patient registered 60 days to some years ago, and not after the first visit.
QDate registered(const DemoPatient& patient, QDate today, DemoRandom& random) {
    const QDate drawn = today.addDays(-random.between(60, 2000));
    return patient.firstVisit.isValid() ? qMin(drawn, patient.firstVisit) : drawn;
}

RowValues patientRow(const DemoPatient& patient, const DemoHospital& hospital, DemoRandom& random) {
    const QDate today = hospital.options.until;
    const bool privately = patient.category == QLatin1String("PRIVATE");
    const QString home = address(random);
    const bool child = patient.born.addYears(17) > today;
    return {{"PNo", patient.number},
            {"OldPNo", QStringLiteral("H%1").arg(random.between(1000, 99999))},
            {"psurname", patient.surname},
            {"pfirstname", patient.firstName},
            {"clientcatID", patient.category},
            {"coyName", patient.clientID},
            {"pCatID", child ? "CHILD" : "ADULT"},
            {"ref", patient.feeForService ? "YES" : "NO"},
            {"DebtBF", patient.balance},
            {"policyType", privately ? "NONE" : "STANDARD"},
            {"cardType", "SINGLE"},
            {"regdate", registered(patient, today, random)},
            {"expirydate", patient.cardExpires},
            {"DOB", patient.born},
            {"sex", patient.sex == QLatin1String("F") ? "FEMALE" : "MALE"},
            {"pPhoneNo", phone(random)},
            {"homeAddress", home},
            {"occupation", child ? "PUPIL" : random.pick(occupations)},
            {"religion", random.chance(50) ? "CHRISTIANITY" : "ISLAM"},
            {"empNo", privately ? QString() : QStringLiteral("S%1").arg(random.between(100, 9999))},
            {"status", random.chance(50) ? "MARRIED" : "SINGLE"},
            {"bloodGroup", random.pick(bloodGroups)},
            {"genotype", random.pick(genotypes)},
            {"nextOfKin", QStringLiteral("%1 %2").arg(patient.surname, random.chance(50) ? "FOLAKE" : "JOHN")},
            {"relationToKin", random.pick(kinships)},
            {"kinAddress", home},
            {"FileDuration", "1 YEAR"}};
}

} // namespace

void makeClients(Connection& billing, DemoHospital& hospital) {
    hospital.clients.append({"0001", "PRIVATE", "PRIVATE", "PRIVATE", 100});
    int index = 1;
    for (const QStringList& payer : demoFacts("payers")) {
        const QString id = QStringLiteral("%1").arg(++index, 4, 10, QLatin1Char('0'));
        const QString type = payer.at(1);
        hospital.clients.append(
            {id, payer.at(0), type, categoryOf(type, index), percentOf(type, index, hospital.random)});
    }
    Transaction transaction(billing);
    Recordset rows(billing, Sql("select * from hRetainership where 1=2"));
    for (const DemoClient& client : hospital.clients) {
        addRow(rows, {{"retainID", client.id},
                      {"retainCode", client.id},
                      {"retainName", client.name},
                      {"coycode", client.id},
                      {"ClientType", client.type},
                      {"clientcatID", client.category},
                      {"Contact", "THE ACCOUNTS DEPARTMENT"},
                      {"Address", address(hospital.random)},
                      {"PhoneNo", phone(hospital.random)},
                      {"Active", "YES"},
                      {"BillEndDate", hospital.random.chance(25) ? 25 : 31},
                      {"AcctID", receivablesAccount(client)},
                      {"Debt", 0}});
    }
    transaction.commit();
}

void makeEmployees(Connection& billing, DemoHospital& hospital) {
    // The users of the program first, so that a receipt's "received by" finds its name.
    hospital.employees = {{"E001", "BELLO", "AMINA", "ACC"},    {"E002", "OKAFOR", "CHIDI", "ACC"},
                          {"E003", "ADEYEMO", "BUKOLA", "ACC"}, {"E004", "IGBINOSA", "EFOSA", "ACC"},
                          {"E005", "YUSUF", "HALIMA", "REC"},   {"E006", "EZE", "OBINNA", "REC"}};
    const Names names;
    const QStringList departments = {"MED", "MED", "MED", "MED", "MED",   "MED",
                                     "REC", "NUR", "NUR", "LAB", "PHARM", "ACC"};
    for (const QString& department : departments) {
        const QStringList& surname = hospital.random.pick(names.surnames);
        const QString sex = hospital.random.chance(50) ? "F" : "M";
        const QString id = QStringLiteral("E%1").arg(hospital.employees.size() + 1, 3, 10, QLatin1Char('0'));
        hospital.employees.append(
            {id, surname.at(0), names.firstName(sex, surname.at(1), hospital.random), department});
    }
    hospital.employees.append({"E019", "SALAMI", "KEHINDE", "PHARM"});
    const QHash<QString, QString> designations = {{"MED", "DOCTOR"}, {"PHARM", "PHARMACIST"}};
    Transaction transaction(billing);
    Recordset rows(billing, Sql("select * from employees where 1=2"));
    for (const DemoEmployee& employee : hospital.employees)
        addRow(rows, {{"empID", employee.id},
                      {"LastName", employee.lastName},
                      {"firstname", employee.firstName},
                      {"deptID", employee.department},
                      {"designation", designations.value(employee.department, "OFFICER")}});
    transaction.commit();
}

void makePatients(Connection& billing, DemoHospital& hospital) {
    const Names names;
    Transaction transaction(billing);
    BulkInsert rows(billing, "hPatients");
    for (int number = 1; number <= hospital.options.patients; ++number) {
        hospital.patients.append(makePatient(number, hospital, names, hospital.random));
        rows.add(patientRow(hospital.patients.last(), hospital, hospital.random));
    }
    rows.flush();
    transaction.commit();
}

void drawPatients(DemoHospital& hospital) {
    const Names names;
    hospital.patients.reserve(hospital.options.patients);
    for (int number = 1; number <= hospital.options.patients; ++number)
        hospital.patients.append(makePatient(number, hospital, names, hospital.random));
}

void writePatients(Connection& billing, DemoHospital& hospital) {
    BulkInsert rows(billing, "hPatients");
    for (const DemoPatient& patient : hospital.patients)
        rows.add(patientRow(patient, hospital, hospital.random));
    rows.flush();
}

} // namespace orvane
