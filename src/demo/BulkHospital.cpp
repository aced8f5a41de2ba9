#include "demo/BulkHospital.h"

#include "books/BillDate.h"
#include "books/Consultation.h"
#include "data/rows/ActionParts.h"
#include "data/words/Money.h"
#include "demo/BulkOutlets.h"
#include "demo/BulkRows.h"

#include <cmath>
#include <optional>

namespace orvane {

namespace {

constexpr int waitingDays = 10;      ///< the last ones, whose visits may still wait
constexpr int waitingADay = 30;      ///< with their items
constexpr int waitingItems = 20;     ///< of each, the consultation included
constexpr int uncapturedVisits = 12; ///< of the last day, with the consultation alone
constexpr int wardVisits = 3;        ///< of these, still in a ward
constexpr int daysInTransaction = 30;
constexpr int dayMinutes = 8 * 60;
const QTime opening(8, 0);

const QVector<BulkUser> billingUsers = {
    {"amina.b", "E001"}, {"chidi.o", "E002"}, {"bukola.a", "E003"}, {"efosa.i", "E004"}};

class BulkHospital {
public:
    BulkHospital(DemoHospital& hospital, Connection& billing, Connection& audit)
        : m_hospital(hospital), m_random(hospital.random), m_prices(billing),
          m_rows(billing, audit, hospital, m_prices), m_officers(hospital.employeesOf("REC")),
          m_doctors(hospital.employeesOf("MED")), m_lastVisit(hospital.patients.size()) {
        for (Recordset row(billing, Sql("select retainID,BillEndDate from hRetainership")); !row.eof(); row.moveNext())
            m_billEndDays.insert(row.text("retainID"), int(row.integer("BillEndDate")));
    }

    /// The bills are spread evenly over the days, numbered from 1.
    void addDay(int number) {
        const DemoOptions& options = m_hospital.options;
        const auto billsUntil = [&](qlonglong day) { return int(options.bills * day / options.days); };
        const int bills = billsUntil(number) - billsUntil(number - 1);
        m_day = options.until.addDays(number - options.days);
        for (const BulkUser& user : billingUsers)
            m_rows.addSession(user, m_day);
        QVector<BulkVisit> visits;
        const int waiting = number > options.days - waitingDays ? waitingADay : 0;
        const int uncaptured = number == options.days ? uncapturedVisits : 0;
        const int all = bills + waiting + uncaptured;
        for (int i = 0; i < all; ++i) {
            visits.append(attend(opening.addSecs(60 * (i * dayMinutes / all))));
            if (i < bills)
                settle(visits.last());
            else if (i < bills + waiting)
                capture(visits.last(), {waitingItems, 0});
            else
                prescribe(visits.last(), i >= all - wardVisits);
        }
        write(visits);
    }

    void flush() { m_rows.flush(); }
    qlonglong items() const { return m_items; }
    qlonglong receipts() const { return m_receipts; }

private:
    /// How many items are ordered: for lines of the bill, and capitated ones.
    struct Wanted {
        int lines, capitated;
    };

    /// Some patients come often, most of them seldom; nobody comes twice a day or with an expired card.
    int pickPatient() {
        constexpr int fine = 1 << 24;
        for (;;) {
            const double share = double(m_random.below(fine)) / fine;
            const int index = int(share * share * double(m_hospital.patients.size()));
            if (m_lastVisit.at(index) != m_day && m_hospital.patients.at(index).cardExpires > m_day)
                return index;
        }
    }

    BulkVisit attend(QTime time) {
        BulkVisit visit;
        visit.index = pickPatient();
        m_lastVisit[visit.index] = m_day;
        DemoPatient& patient = m_hospital.patients[visit.index];
        if (!patient.firstVisit.isValid())
            patient.firstVisit = m_day;
        visit.patient = &patient;
        visit.at = QDateTime(m_day, time);
        visit.consultID = QStringLiteral("001OFL%1").arg(++m_visits, 7, 10, QLatin1Char('0'));
        const QStringList& other = m_random.pick(m_hospital.clinics);
        const QStringList& clinic = m_random.chance(50) ? m_hospital.clinics.first() : other;
        visit.clinic = clinic.at(0);
        visit.purpose = m_random.chance(15) ? "FOLLOW-UP" : "CONSULTATION";
        BulkItem consultation;
        consultation.name = consultation.revType = "CONSULTATION";
        consultation.billType = "SERVICE";
        consultation.price = consultation.subTotal = consultationFee(clinic.at(1).toDouble(), visit.purpose);
        visit.items.append(consultation);
        return visit;
    }

    /// A capitated client's fee covers the consultation, unless the patient pays item by item.
    static bool billsConsultation(const BulkVisit& visit) {
        const DemoPatient& patient = *visit.patient;
        return visit.items.first().subTotal > 0 && (!isCapitatedCategory(patient.category) || patient.feeForService);
    }

    const DemoItem& drawItem() {
        const int kind = m_random.below(100);
        const QVector<DemoItem>& items = kind < 55   ? m_hospital.drugs
                                         : kind < 90 ? m_hospital.labServices
                                                     : m_hospital.services;
        return m_random.pick(items);
    }

    static bool has(const BulkVisit& visit, const QString& name) {
        for (const BulkItem& item : visit.items)
            if (item.name == name)
                return true;
        return false;
    }

    /// Orders items until the visit has as many as wanted, the consultation counted; each only once.
    void capture(BulkVisit& visit, Wanted wanted) {
        int lines = wanted.lines - (visit.saved.isNull() || visit.items.first().onBill ? 1 : 0);
        int capitated = wanted.capitated;
        while (lines > 0) {
            const DemoItem& item = drawItem();
            const BulkPrice price = m_prices.price(item, *visit.patient);
            int& left = price.capitated ? capitated : lines;
            if (left == 0 || price.price <= 0 || has(visit, item.name))
                continue;
            --left;
            visit.items.append(ordered(item, price, visit));
        }
    }

    /// What the doctor ordered and nobody has captured yet.
    void prescribe(BulkVisit& visit, bool inWard) {
        visit.orders = {{&drawItem(), m_random.between(1, 10)}, {&drawItem(), 1}};
        visit.inWard = inWard;
    }

    BulkItem ordered(const DemoItem& item, const BulkPrice& price, BulkVisit& visit) {
        const bool drug = item.kind == QLatin1String("DRUG");
        const int quantity = drug ? m_random.between(1, 10) : 1;
        visit.orders.append({&item, quantity});
        BulkItem row;
        row.name = item.name;
        row.category = item.category;
        row.revType = price.revType;
        row.billType = item.kind == QLatin1String("LAB") ? "INVESTIGATION" : item.kind;
        row.price = price.price;
        row.quantity = quantity;
        row.subTotal = round2(price.price * quantity);
        row.onBill = visit.saved.isValid() && !price.capitated;
        return row;
    }

    /// Two bills have ten lines together.
    int linesOfNextBill() {
        if (m_linesOfPair == 0) {
            const int lines = m_random.between(2, 8);
            m_linesOfPair = 10 - lines;
            return lines;
        }
        return std::exchange(m_linesOfPair, 0);
    }

    /// The bill of a visit, and the receipt of a private patient.
    void settle(BulkVisit& visit) {
        const DemoPatient& patient = *visit.patient;
        visit.saved = billDateFor(m_day, {}, m_billEndDays.value(patient.clientID), 0);
        visit.items.first().onBill = billsConsultation(visit);
        capture(visit, {linesOfNextBill(), m_random.below(3)});
        visit.dayCase = m_random.chance(2);
        if (patient.category == QLatin1String("HMO") && !patient.feeForService && m_random.chance(60))
            visit.approvalCode = QStringLiteral("AP/%1").arg(m_random.between(10000, 99999));
        if (patient.category != QLatin1String("PRIVATE") || m_random.chance(8)) // leaves without paying
            return;
        visit.receiptNo = QString::number(++m_receipts);
        visit.ways = pay(visit.total());
        cover(visit);
    }

    /// In full in cash, mostly; else by card or transfer, over two ways, in part, or rounded up.
    QVector<BulkWay> pay(double payable) {
        const auto cash = [](double amount) { return BulkWay{"CASH", "1210010", round2(amount)}; };
        const auto card = [](double amount) { return BulkWay{"POS", "1220030", round2(amount)}; };
        const int way = m_random.below(100);
        if (way < 60)
            return {cash(payable)};
        if (way < 70)
            return {card(payable)};
        if (way < 80)
            return {BulkWay{"TRANSFER", "1220020", payable}};
        const double half = std::floor(payable / 200) * 100;
        if (way < 87 && half > 0)
            return {cash(half), card(payable - half)};
        if (way < 97)
            return {cash(std::max(100.0, std::floor(payable / 300) * 100))};
        return {cash(std::ceil(payable / 1000) * 1000)};
    }

    /// Marks the lines that the receipt reaches, in order.
    static void cover(BulkVisit& visit) {
        double left = visit.paid();
        for (BulkItem& item : visit.items) {
            if (!item.onBill || left <= 0)
                continue;
            item.covered = true;
            left = round2(left - item.subTotal);
        }
    }

    /// The consultations are charged as the patients come, the other items as the bills are made.
    void write(QVector<BulkVisit>& visits) {
        for (BulkVisit& visit : visits)
            visit.items.first().sno = ++m_items;
        for (BulkVisit& visit : visits)
            for (BulkItem& item : visit.items)
                item.sno = item.sno > 0 ? item.sno : ++m_items;
        for (BulkVisit& visit : visits)
            writeVisit(visit);
        for (const BulkVisit& visit : visits)
            m_rows.addItem(visit, visit.items.first());
        for (const BulkVisit& visit : visits)
            for (const BulkItem& item : visit.items)
                if (&item != &visit.items.first())
                    m_rows.addItem(visit, item);
        int bill = 0;
        for (const BulkVisit& visit : visits)
            if (visit.saved.isValid())
                m_rows.addBill(visit, m_hospital.patients[visit.index],
                               billingUsers.at(bill++ % int(billingUsers.size())),
                               visit.at.time().addSecs(4 * 60 * 60));
    }

    void writeVisit(BulkVisit& visit) {
        const RowValues consultation =
            consultationRow(visit, m_random.pick(m_doctors), visit.at.addSecs(60 * 25), m_hospital);
        for (const auto& [column, value] : consultation)
            if (qstrcmp(column, "Diagnosis") == 0)
                visit.diagnosis = value.toString().toUpper();
        m_rows.addVisit(visit, consultation, m_random.pick(m_officers));
        if (m_random.chance(10)) {
            const QDate date = m_day.addDays(m_random.between(3, 45));
            m_rows.addAppointment(visit, date, date < m_hospital.options.until);
        }
    }

    DemoHospital& m_hospital;
    DemoRandom& m_random;
    PriceBook m_prices;
    BulkRows m_rows;
    QVector<DemoEmployee> m_officers, m_doctors;
    QHash<QString, int> m_billEndDays; ///< by client
    QVector<QDate> m_lastVisit;        ///< by patient
    QDate m_day;
    qlonglong m_visits = 0, m_items = 0, m_receipts = 0; ///< numbers given out
    int m_linesOfPair = 0;
};

/// The items are numbered by the engine; their lines and receipts name the numbers that were counted here.
void checkItemNumbers(Connection& billing, qlonglong items) {
    const Recordset row(billing, Sql("select count(*) as N,min(SNo) as Lowest,max(SNo) as Highest from BillAccum"));
    if (row.integer("N") != items || row.integer("Lowest") != 1 || row.integer("Highest") != items)
        throw DataError("The items were not numbered from 1 on; the hospital is useless.");
}

/// A transaction of each of the connections; the audit trail's may be the billing one's.
class BothTransactions {
public:
    BothTransactions(Connection& billing, Connection& audit) : m_billing(billing) {
        if (&audit != &billing)
            m_audit.emplace(audit);
    }
    void commit() {
        m_billing.commit();
        if (m_audit)
            m_audit->commit();
    }

private:
    Transaction m_billing;
    std::optional<Transaction> m_audit;
};

} // namespace

void makeBulkHospital(DemoHospital& hospital, Connection& billing, Connection& audit,
                      const std::function<void(const QString&)>& progress) {
    drawPatients(hospital);
    BulkHospital bulk(hospital, billing, audit);
    const int days = hospital.options.days;
    for (int first = 1; first <= days; first += daysInTransaction) {
        const int last = qMin(first + daysInTransaction - 1, days);
        BothTransactions transactions(billing, audit);
        for (int day = first; day <= last; ++day)
            bulk.addDay(day);
        bulk.flush();
        transactions.commit();
        progress(QStringLiteral("%1 of %2 days are in.").arg(last).arg(days));
    }
    Transaction transaction(billing);
    writePatients(billing, hospital);
    billing.execute(Sql("update IDgen set ID=") << bulk.receipts() << " where DestName='RECEIPT2'");
    checkItemNumbers(billing, bulk.items());
    makeBulkOutlets(billing, hospital);
    noteOpening(billing);
    transaction.commit();
    progress(QStringLiteral("%1 patients are in.").arg(hospital.patients.size()));
}

} // namespace orvane
