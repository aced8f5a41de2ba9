#include "demo/BulkRows.h"

#include "books/Words.h"
#include "data/words/Money.h"

#include <QLocale>

namespace orvane {

namespace {

constexpr const char* workstation = "HALDEN-1";
const QString privateClient = "0001";
const QString suspenseAccount = "2130010";

QString yesNo(bool yes) {
    return yes ? "YES" : "NO";
}

QString shortTime(QTime time) {
    return time.toString("HH:mm");
}

QString fullName(const DemoPatient& patient) {
    return QStringLiteral("%1 %2").arg(patient.surname, patient.firstName);
}

bool isConsultation(const BulkVisit& visit, const BulkItem& item) {
    return &item == &visit.items.first();
}

QVariant dateIf(bool condition, QDate date) {
    return condition ? QVariant(date) : QVariant();
}

} // namespace

double BulkVisit::total() const {
    double sum = 0;
    for (const BulkItem& item : items)
        sum += item.onBill ? item.subTotal : 0;
    return round2(sum);
}

double BulkVisit::paid() const {
    double sum = 0;
    for (const BulkWay& way : ways)
        sum += way.amount;
    return round2(sum);
}

BulkRows::BulkRows(Connection& billing, Connection& audit, const DemoHospital& hospital, const PriceBook& prices)
    : m_hospital(hospital), m_prices(prices), m_visits(billing, "hRecords"), m_consultations(billing, "hconsulting"),
      m_items(billing, "BillAccum"), m_bills(billing, "Billing"), m_lines(billing, "BillingDetails"),
      m_payments(billing, "Payments"), m_ways(billing, "PaymentTypes"), m_shares(billing, "PaymentDetails"),
      m_account(billing, "Tranxaction"), m_approvals(billing, "hApprvCode"), m_admissions(billing, "hAdmission"),
      m_appointments(billing, "hreferal"), m_sessions(billing, "UserActivities"), m_trail(audit, "AuditTrail") {}

void BulkRows::flush() {
    for (BulkInsert* table :
         {&m_visits, &m_consultations, &m_items, &m_bills, &m_lines, &m_payments, &m_ways, &m_shares, &m_account,
          &m_approvals, &m_admissions, &m_appointments, &m_sessions, &m_trail})
        table->flush();
}

void BulkRows::addVisit(const BulkVisit& visit, const RowValues& consultation, const DemoEmployee& officer) {
    const DemoPatient& patient = *visit.patient;
    const QDate day = visit.at.date();
    const bool saved = visit.saved.isValid();
    m_visits.add({{"consultID", visit.consultID},
                  {"PNo", patient.number},
                  {"recDate", day},
                  {"htime", shortTime(visit.at.time())},
                  {"clientCat", patient.category},
                  {"coyName", patient.clientID},
                  {"clinicType", visit.clinic},
                  {"referal", yesNo(patient.feeForService)},
                  {"Remarks", visit.purpose},
                  {"empID", officer.id},
                  {"diagnosis", saved ? QVariant(visit.diagnosis) : QVariant()},
                  {"exitDate", dateIf(saved, day)},
                  {"BillDate", visit.saved},
                  {"attendedto", 1},
                  {"attendedtoByDoc", 1}});
    m_consultations.add(consultation);
    if (visit.dayCase || visit.inWard)
        m_admissions.add({{"consultID", visit.consultID},
                          {"PNo", patient.number},
                          {"admdate", day},
                          {"DischDate", dateIf(visit.dayCase, day)},
                          {"wardid", patient.sex == QLatin1String("F") ? "FEMALE WARD" : "MALE WARD"},
                          {"Remarks", "FOR OBSERVATION"}});
}

/// An item of a saved visit as the collation and the item screen leave it; of a waiting one as its source wrote it.
void BulkRows::addItem(const BulkVisit& visit, const BulkItem& item) {
    const bool saved = visit.saved.isValid();
    const bool consultation = isConsultation(visit, item);
    const QString client = visit.patient->clientID;
    const auto unless = [](bool missing, const QVariant& value) { return missing ? QVariant() : value; };
    QVariant capitated = item.onBill || !saved ? "NO" : "YES";
    if (consultation && !item.onBill)
        capitated = QVariant();
    m_items.add({{"dtDate", visit.at.date()},
                 {"PNo", visit.patient->number},
                 {"consultID", visit.consultID},
                 {"drgName", item.name},
                 {"Category", unless(consultation, item.category)},
                 {"Price", item.price},
                 {"Qty", item.quantity},
                 {"SubTotal", item.subTotal},
                 {"usage", unless(consultation || !saved, "***")},
                 {"billType", item.billType},
                 {"billTo", unless(consultation && !saved, client)},
                 {"coyName", unless(consultation && !saved, client)},
                 {"revType", unless(consultation && !saved, item.revType)},
                 {"conID", unless(consultation || saved, 0)},
                 {"Capitated", capitated},
                 {"BillBy", unless(consultation || saved, "halima.y")},
                 {"attendedto", saved ? 1 : 0},
                 {"isBilled", saved ? 1 : 0},
                 {"isRct", item.covered ? 1 : 0}});
}

void BulkRows::addBill(const BulkVisit& visit, DemoPatient& patient, const BulkUser& user, QTime time) {
    m_user = user;
    m_now = QDateTime(visit.at.date(), time);
    for (const BulkItem& item : visit.items)
        addLine(visit, item, patient);
    const QDate day = visit.at.date();
    m_bills.add({{"billNo", visit.consultID},
                 {"bdate", day},
                 {"PNo", patient.number},
                 {"clientID", patient.clientID},
                 {"Amountbilled", visit.total()},
                 {"AmountBIlledInWord", getValInWord(visit.total())},
                 {"AmountPaid", visit.paid()},
                 {"profFee", 0},
                 {"billingMonth", QLocale::c().standaloneMonthName(day.month())},
                 {"billingYear", QString::number(day.year())},
                 {"diagnosis", visit.diagnosis},
                 {"admdate", dateIf(visit.dayCase, day)},
                 {"DischDate", dateIf(visit.dayCase, day)}});
    if (!visit.ways.isEmpty())
        addReceipt(visit, patient);
    if (visit.approvalCode.isEmpty())
        return;
    m_approvals.add({{"ApprvDate", day},
                     {"consultID", visit.consultID},
                     {"PNo", patient.number},
                     {"ApprvCode", visit.approvalCode},
                     {"billType", "CLAIMS"}});
    addTrail(QStringLiteral("insert Apprv Code for %1").arg(fullName(patient)), visit.consultID, visit.approvalCode);
}

void BulkRows::addLine(const BulkVisit& visit, const BulkItem& item, DemoPatient& patient) {
    const bool consultation = isConsultation(visit, item);
    const QString told = item.name + ": " + formatTwoDecimals(item.subTotal);
    if (consultation && item.onBill)
        addTrail(QStringLiteral("insert Bill Item for %1").arg(fullName(patient)), visit.consultID, told);
    const QString client = consultation ? QString() : m_hospital.clientName(patient.clientID);
    if (!consultation)
        addTrail(QStringLiteral("insert BillAccum Item for %1").arg(client), visit.consultID, told);
    if (!item.onBill)
        return;
    if (!consultation)
        addTrail(QStringLiteral("insert BillDetails Item for %1").arg(client), visit.consultID, told);
    m_lines.add({{"SNo", item.sno},
                 {"billNo", visit.consultID},
                 {"dtDate", visit.at.date()},
                 {"PNo", patient.number},
                 {"drgName", item.name},
                 {"Price", item.price},
                 {"Qty", item.quantity},
                 {"SubTotal", item.subTotal},
                 {"Charged", patient.clientID == privateClient ? item.subTotal : 0},
                 {"BillType", item.billType},
                 {"dosage", consultation ? "" : "***"},
                 {"coyName", patient.clientID},
                 {"billTo", patient.clientID},
                 {"revType", item.revType},
                 {"BillBy", m_user.name},
                 {"Capitated", consultation ? QVariant() : QVariant("NO")},
                 {"isRct", item.covered ? 1 : 0}});
    if (patient.clientID == privateClient)
        addAccountEntry(visit, patient, -item.subTotal, item.name);
}

void BulkRows::addReceipt(const BulkVisit& visit, DemoPatient& patient) {
    QStringList payTypes;
    for (const BulkWay& way : visit.ways) {
        payTypes.append(way.payType);
        m_ways.add({{"ReceiptDate", m_now.date()},
                    {"ReceiptNo", visit.receiptNo},
                    {"AmountPaid", way.amount},
                    {"PayType", way.payType},
                    {"AccountNo", way.account}});
    }
    m_payments.add({{"ReceiptDate", m_now.date()},
                    {"ReceiptNo", visit.receiptNo},
                    {"ClinicID", visit.clinic},
                    {"billNo", visit.consultID},
                    {"PNo", patient.number},
                    {"PaymentFor", "CONSULTING AND DRUGS"},
                    {"Amountbilled", visit.total()},
                    {"AmountPaid", visit.paid()},
                    {"AmountInWord", getValInWord(visit.paid())},
                    {"ReceivedBy", m_user.employee},
                    {"PayType", payTypes.join(QLatin1Char('/'))},
                    {"rTime", shortTime(m_now.time())},
                    {"Remarks", "PAYMENT"}});
    double left = visit.paid();
    for (const BulkItem& item : visit.items) {
        if (!item.covered)
            continue;
        const double share = qMin(left, item.subTotal);
        addShare(visit, item, m_now.date(), share, m_prices.account(item.revType));
        left = round2(left - share);
    }
    if (left > 0) {
        BulkItem balance;
        balance.name = "BALANCE_PAYMENT";
        balance.revType = "DEPOSITS";
        balance.subTotal = left;
        addShare(visit, balance, {}, left, suspenseAccount);
    }
    addAccountEntry(visit, patient, visit.paid(), "Payment");
    const QString entry = QStringLiteral("%1 @%2 %3 - %4 [%5]#%6")
                              .arg(fullName(patient), m_now.toString("dd/MM/yyyy"), visit.purpose,
                                   m_hospital.clientName(patient.clientID), patient.number, visit.consultID);
    addTrail("insert Bill Summ for: " + entry, visit.consultID, formatTwoDecimals(visit.total()));
    addTrail("insert Payment for: " + entry, visit.consultID, formatTwoDecimals(visit.paid()));
}

void BulkRows::addShare(const BulkVisit& visit, const BulkItem& item, QDate billDate, double paid,
                        const QString& account) {
    m_shares.add({{"snoID", item.sno},
                  {"ReceiptDate", m_now.date()},
                  {"BillDate", billDate},
                  {"ReceiptNo", visit.receiptNo},
                  {"billNo", visit.consultID},
                  {"AmountPaid", paid},
                  {"AmountToPay", item.subTotal},
                  {"AccountNo", account},
                  {"revType", item.revType},
                  {"BillItem", item.name}});
}

void BulkRows::addAccountEntry(const BulkVisit& visit, DemoPatient& patient, double amount, const QString& remarks) {
    patient.balance += amount;
    m_account.add({{"entryDate", m_now.date()},
                   {"PNo", patient.number},
                   {"billNo", visit.consultID},
                   {"Amount", amount},
                   {"RunningTotal", patient.balance},
                   {"Remarks", remarks}});
}

void BulkRows::addAppointment(const BulkVisit& visit, QDate date, bool kept) {
    m_appointments.add({{"ConsultID", visit.consultID},
                        {"PNo", visit.patient->number},
                        {"ApptDate", date},
                        {"clinicType", visit.clinic},
                        {"Remarks", "FOLLOW-UP"},
                        {"attendedTo", kept ? 1 : 0}});
}

void BulkRows::addSession(const BulkUser& user, QDate day) {
    m_user = user;
    m_now = day.startOfDay();
    m_sessions.add({{"username", user.name},
                    {"LoginDate", day},
                    {"LoginTime", "08:00"},
                    {"islogout", 1},
                    {"LogoutDate", day},
                    {"LogoutTime", "20:30"},
                    {"Remarks", "BILLING"}});
    m_now.setTime(QTime(8, 0));
    addTrail("Login Billing", {}, {});
    m_now.setTime(QTime(20, 30));
    addTrail("Login Out", {}, {});
}

void BulkRows::addTrail(const QString& action, const QString& tranCode, const QString& remarks) {
    m_trail.add({{"userName", m_user.name},
                 {"userAction", action},
                 {"ActionDate", m_now.date()},
                 {"ActionTime", shortTime(m_now.time())},
                 {"TranCode", tranCode},
                 {"Remarks", remarks},
                 {"Src", "BILLING: from " + QLatin1String(workstation)}});
}

} // namespace orvane
