#include "demo/DemoVisits.h"

#include "data/rows/Transaction.h"
#include "demo/DemoBilling.h"
#include "demo/DemoLab.h"
#include "demo/DemoMonth.h"
#include "demo/DemoOutlets.h"
#include "demo/DemoPharmacy.h"
#include "play/Hand.h"
#include "screens/Screens.h"
#include "session/Main.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr int visitsADay = 20;
constexpr int emergencyDay = 15; ///< of each month
const QString emergencyNumbers = "001EMG";
constexpr int admittedVisits = 3;  ///< of the last day, still in a ward
constexpr int waitingVisits = 12;  ///< of the last day, for the officer who tries the program
constexpr int injectionsEvery = 4; ///< visits
constexpr int goodsEvery = 5;      ///< days
constexpr int outletDays = 31;     ///< up to the last day
const QTime opening(8, 0);

/// Categories whose contracts cover what is dispensed.
const QStringList capitated = {"HMO", "NHIS", "PHIS"};

/// The users who collate bills, day by day in turn.
const QStringList billingUsers = {"amina.b", "chidi.o", "bukola.a", "efosa.i"};

const QStringList dosages = {"1 TAB DAILY", "1 TAB BD X 5 DAYS", "2 TABS TDS X 3 DAYS", "10ML TDS X 5 DAYS", "STAT"};

QString officerEntry(const DemoEmployee& officer) {
    return QStringLiteral("%1 %2 [%3]").arg(officer.lastName, officer.firstName, officer.id);
}

DemoOrder order(const QVector<DemoItem>& items, int largestQuantity, DemoRandom& random) {
    const DemoItem* item = &random.pick(items);
    while (item->price == 0) // not priced yet: no screen takes it
        item = &random.pick(items);
    return {item, random.between(1, largestQuantity)};
}

/// What the doctor orders: one to three drugs, often a test or two, now and then a service.
QVector<DemoOrder> ordersOf(DemoHospital& hospital) {
    DemoRandom& random = hospital.random;
    QVector<DemoOrder> orders;
    for (int i = random.between(1, 3); i > 0; --i)
        orders.append(order(hospital.drugs, 10, random));
    for (int i = random.below(3); i > 0; --i)
        orders.append(order(hospital.labServices, 1, random));
    if (random.chance(15))
        orders.append(order(hospital.services, 1, random));
    return orders;
}

/// The day's patients: each comes once a day, and none whose card has expired by then.
QVector<const DemoPatient*> patientsOf(QDate day, DemoHospital& hospital) {
    QVector<const DemoPatient*> free;
    for (const DemoPatient& patient : hospital.patients)
        if (patient.cardExpires > day)
            free.append(&patient);
    QVector<const DemoPatient*> chosen;
    while (!free.isEmpty() && chosen.size() < visitsADay)
        chosen.append(free.takeAt(hospital.random.below(int(free.size()))));
    return chosen;
}

class DayOfVisits {
public:
    /// `number`: of the day, from 1.
    DayOfVisits(DemoHospital& hospital, QDate day, int number)
        : m_hospital(hospital), m_day(day), m_program(hospital.options.home, m_ui),
          m_billing(m_program, m_ui, hospital), m_pharmacy(m_program, m_ui, hospital),
          m_user(billingUsers.at(number % int(billingUsers.size()))), m_number(number) {}

    void run() {
        m_program.data().setDisposable();
        setTime(opening);
        registerScreens(m_program);
        if (!Main(m_program, m_user))
            throw DataError(m_ui.takeBoxes().join(QLatin1Char('\n')));
        QVector<DemoVisit> visits = attend();
        if (m_day.day() == emergencyDay)
            visits.append(takeEmergency(visits));
        see(visits);
        const bool last = m_day == m_hospital.options.until;
        const int billed = last ? qMax(0, int(visits.size()) - waitingVisits) : int(visits.size());
        if (last)
            admit(visits.mid(visits.size() - qMin(admittedVisits, int(visits.size()))));
        workPharmacy(visits.mid(0, billed));
        for (int i = 0; i < billed; ++i) {
            setTime(opening.addSecs(60 * (4 * 60 + 12 * i)));
            m_billing.bill(visits.at(i));
        }
        setTime(opening.addSecs(60 * 60 * 10));
        if (m_day > m_hospital.options.until.addDays(-outletDays))
            serve();
        if (m_day.day() == emergencyDay)
            splitBill(m_program, m_ui, m_day, visits.last().consultID);
        if (m_day.daysInMonth() == m_day.day())
            shiftBillOf(visits);
        if (m_day.day() == 1 && m_number > 1) {
            closeMonth(m_program, m_ui, m_day.addMonths(-1));
            postMonth(m_program, m_ui, m_day.addMonths(-1));
        }
        leave();
    }

private:
    /// The clocks of the server and of the workstation, and the shell's that follows the server's.
    void setTime(QTime time) {
        const QDateTime at(m_day, time);
        m_ui.setClock(at);
        m_program.data().setServerClock(at);
        if (Form* shell = m_program.loadedForm("MdiTolmek"))
            Hand(*shell).ring("Timer2");
    }

    QVector<DemoVisit> attend() {
        m_program.open("frmRecordsOffline");
        Form& form = m_program.form("frmRecordsOffline");
        Hand hand(form);
        const QVector<DemoEmployee> officers = m_hospital.employeesOf("REC");
        QVector<DemoVisit> visits;
        for (const DemoPatient* patient : patientsOf(m_day, m_hospital)) {
            setTime(opening.addSecs(60 * 12 * int(visits.size())));
            visits.append(enter(hand, *patient, m_hospital.random.pick(officers)));
        }
        form.unload();
        return visits;
    }

    DemoVisit enter(Hand& hand, const DemoPatient& patient, const DemoEmployee& officer) {
        DemoRandom& random = m_hospital.random;
        DemoVisit visit;
        visit.patient = &patient;
        visit.clinic = random.chance(50) ? "OUT-PATIENT" : random.pick(m_hospital.clinics).at(0);
        hand.click("cmdAdd");
        hand.type("txtName", patient.surname);
        hand.click("cmdOK");
        hand.date("dtDate", m_day);
        hand.chooseContaining("cboVehNo", QStringLiteral("[%1]").arg(patient.number));
        hand.choose("cboType", visit.clinic);
        hand.choose("cboClient", random.chance(15) ? "FOLLOW-UP" : "CONSULTATION");
        hand.choose("cboAppr", officerEntry(officer));
        visit.consultID = hand.value("lblBill");
        hand.click("OKButton");
        const QStringList boxes = m_ui.takeBoxes();
        if (boxes != QStringList{"Record Succesfully saved"})
            throw DataError(QStringLiteral("The visit of %1 was not saved: %2").arg(patient.number, boxes.join(" / ")));
        return visit;
    }

    /// From numbers of its own, so that the outlets change nothing of the hospital's visits.
    void serve() {
        DemoRandom random(m_hospital.options.seed + quint64(m_day.toJulianDay()));
        m_ui.takeBoxes();
        serveOutlets(m_program, m_ui, m_hospital, m_day, random);
    }

    /// The doctors' part, which another program of the hospital writes.
    void see(QVector<DemoVisit>& visits) {
        const QVector<DemoEmployee> doctors = m_hospital.employeesOf("MED");
        Connection connection = m_program.openBilling();
        Transaction transaction(connection);
        Recordset rows(connection, Sql("select * from hconsulting where 1=2"));
        for (int i = 0; i < visits.size(); ++i) {
            DemoVisit& visit = visits[i];
            visit.orders = ordersOf(m_hospital);
            if (visit.consultID.contains(emergencyNumbers)) // an item to split off, and one to stay
                visit.orders += ordersOf(m_hospital);
            else if (i % injectionsEvery == 2 && !capitated.contains(visit.patient->category))
                visit.injections = injectionsOf(m_hospital, m_number + i);
            const DemoEmployee& doctor = m_hospital.random.pick(doctors);
            const QDateTime at(m_day, opening.addSecs(60 * (25 + 12 * i)));
            addRow(rows, consultationRow(visit, doctor, at, m_hospital));
            connection.execute(Sql("update hRecords set attendedto=1,attendedtoByDoc=1 where consultID='")
                               << visit.consultID << "'");
        }
        transaction.commit();
        answerFromLaboratory(connection, m_hospital, m_day, visits);
    }

    void workPharmacy(const QVector<DemoVisit>& visits) {
        setTime(opening.addSecs(60 * 60 * 4));
        for (const DemoVisit& visit : visits)
            if (!visit.injections.isEmpty())
                m_pharmacy.dispense(visit);
        if (m_number % goodsEvery == 0)
            m_pharmacy.takeGoods(m_number);
    }

    void admit(const QVector<DemoVisit>& visits) {
        Connection connection = m_program.openBilling();
        Transaction transaction(connection);
        Recordset rows(connection, Sql("select * from hAdmission where 1=2"));
        for (const DemoVisit& visit : visits)
            addRow(rows, {{"consultID", visit.consultID},
                          {"PNo", visit.patient->number},
                          {"admdate", m_day},
                          {"wardid", visit.patient->sex == QLatin1String("F") ? "FEMALE WARD" : "MALE WARD"},
                          {"Remarks", "FOR OBSERVATION"}});
        transaction.commit();
    }

    /// A company's patient whom the emergency desk took in, which numbers its visits itself: twelve characters, so that
    /// its bill can be split.
    DemoVisit takeEmergency(const QVector<DemoVisit>& others) {
        DemoVisit visit;
        for (const DemoPatient& patient : m_hospital.patients)
            if (!visit.patient && patient.category == QLatin1String("MTHLY") && patient.cardExpires > m_day &&
                std::none_of(others.begin(), others.end(),
                             [&](const DemoVisit& other) { return other.patient == &patient; }))
                visit.patient = &patient;
        if (!visit.patient)
            throw DataError("There is no company's patient for the emergency desk.");
        visit.clinic = "OUT-PATIENT";
        visit.consultID = emergencyNumbers + m_day.toString("yyMMdd");
        Connection connection = m_program.openBilling();
        Transaction transaction(connection);
        Recordset rows(connection, Sql("select * from hRecords where 1=2"));
        addRow(rows, {{"consultID", visit.consultID},
                      {"PNo", visit.patient->number},
                      {"recDate", m_day},
                      {"htime", "07:40"},
                      {"clientCat", visit.patient->category},
                      {"coyName", visit.patient->clientID},
                      {"clinicType", visit.clinic},
                      {"referal", "NO"},
                      {"Remarks", "EMERGENCY"}});
        transaction.commit();
        return visit;
    }

    /// A bill that came too late for its month.
    void shiftBillOf(const QVector<DemoVisit>& visits) {
        for (const DemoVisit& visit : visits)
            if (visit.patient->category == QLatin1String("MTHLY")) {
                shiftBill(m_program, m_ui, m_day, m_hospital.clientName(visit.patient->clientID));
                return;
            }
    }

    void leave() { m_program.form("MdiTolmek").unload(); }

    DemoHospital& m_hospital;
    QDate m_day;
    QuietUi m_ui;
    Program m_program;
    DemoBilling m_billing;
    DemoPharmacy m_pharmacy;
    QString m_user;
    int m_number; ///< 1: there is no month before it
};

/// Appointments that doctors gave: a few fall due on the last day, the others later.
void makeAppointments(DemoHospital& hospital) {
    QuietUi ui;
    Program program(hospital.options.home, ui);
    prepareServer(program);
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    Recordset rows(connection, Sql("select * from hreferal where 1=2"));
    const Recordset visits(connection, Sql("select top 40 consultID,PNo,clinicType from hRecords order by recID"));
    int days = 0;
    for (Recordset visit = visits; !visit.eof(); visit.moveNext())
        addRow(rows, {{"ConsultID", visit.text("consultID")},
                      {"PNo", visit.text("PNo")},
                      {"ApptDate", hospital.options.until.addDays(days++ % 7)},
                      {"clinicType", visit.text("clinicType")},
                      {"Remarks", hospital.random.chance(60) ? "FOLLOW-UP" : "REVIEW"},
                      {"attendedTo", 0}});
    transaction.commit();
}

} // namespace

RowValues consultationRow(const DemoVisit& visit, const DemoEmployee& doctor, QDateTime at, DemoHospital& hospital) {
    QStringList injections;
    for (const DemoOrder& ordered : visit.injections)
        injections.append(QStringLiteral("%1 (%2) STAT").arg(ordered.item->name).arg(ordered.quantity));
    QStringList prescription, tests, services;
    for (const DemoOrder& ordered : visit.orders)
        if (ordered.item->kind == QLatin1String("DRUG"))
            prescription.append(QStringLiteral("%1 (%2) %3")
                                    .arg(ordered.item->name)
                                    .arg(ordered.quantity)
                                    .arg(hospital.random.pick(dosages)));
        else
            (ordered.item->kind == QLatin1String("LAB") ? tests : services).append(ordered.item->name);
    return {{"consultID", visit.consultID},
            {"billno", visit.consultID},
            {"PNo", visit.patient->number},
            {"CDate", at.date()},
            {"cTime", at.time().toString("HH:mm")},
            {"Diagnosis", hospital.random.pick(hospital.diagnoses).at(1)},
            {"prescription", prescription.join(QLatin1Char('\n'))},
            {"injprescription", nullIfEmpty(injections.join(QLatin1Char('\n')))},
            {"Investigate", tests.join(QLatin1Char('\n'))},
            {"services", services.join(QLatin1Char('\n'))},
            {"treatplan", QStringLiteral("REVIEW IN %1 DAYS").arg(hospital.random.between(3, 21))},
            {"treatedby", QStringLiteral("%1 %2").arg(doctor.lastName, doctor.firstName)},
            {"attendedto", injections.isEmpty() ? 1 : 0}};
}

void makeVisits(DemoHospital& hospital, const std::function<void(int)>& dayDone) {
    for (int number = 1; number <= hospital.options.days; ++number) {
        const QDate day = hospital.options.until.addDays(number - hospital.options.days);
        DayOfVisits(hospital, day, number).run();
        dayDone(number);
    }
    makeAppointments(hospital);
}

} // namespace orvane
