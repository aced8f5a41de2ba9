#include "demo/BulkOutlets.h"

#include "books/Words.h"
#include "data/rows/BulkInsert.h"

#include <QLocale>

namespace orvane {

namespace {

constexpr int billsOfACustomer = 10; ///< of the hospital, for one at the laboratory

/// One customer with his item, his bill and his receipt.
struct Customer {
    int serial;
    qlonglong sno; ///< of the item
    QDate day;
    const DemoItem& item;

    QString number() const {
        return QStringLiteral("001/%1/%2").arg(day.toString("yy")).arg(serial, 6, 10, QLatin1Char('0'));
    }
    QString receiptNo() const { return QStringLiteral("00151%1").arg(serial, 7, 10, QLatin1Char('0')); }
};

/// The tables that an outlet's customer leaves rows in. How his receipt was paid and for what is made at the cash
/// transfer.
class OutletRows {
public:
    explicit OutletRows(Connection& billing)
        : m_visits(billing, "hRecordsPublic"), m_people(billing, "hPatientsPublic"), m_tests(billing, "hInvestigate"),
          m_findings(billing, "hInvestigateFindings"), m_items(billing, "BillAccum"), m_bills(billing, "Billing"),
          m_lines(billing, "BillingDetails"), m_payments(billing, "Payments") {}

    void add(const Customer& customer, const QString& surname, const QString& firstName) {
        addVisit(customer, surname, firstName);
        addTests(customer);
        addBill(customer);
        addReceipt(customer);
    }
    void flush() {
        for (BulkInsert* table :
             {&m_visits, &m_people, &m_tests, &m_findings, &m_items, &m_bills, &m_lines, &m_payments})
            table->flush();
    }

private:
    void addVisit(const Customer& customer, const QString& surname, const QString& firstName) {
        const QString number = customer.number();
        m_visits.add({{"consultID", number},
                      {"PNo", number},
                      {"recDate", customer.day},
                      {"htime", "11:00"},
                      {"clientCat", "PRIVATE"},
                      {"coyName", "0001"},
                      {"clinicType", "LABORATORY"},
                      {"referal", "NO"},
                      {"Remarks", "ADULT"},
                      {"empID", "E001"}});
        m_people.add({{"PNo", number},
                      {"pSurname", surname},
                      {"pfirstname", firstName},
                      {"Maturity", "ADULT"},
                      {"Age", "30"},
                      {"sex", "FEMALE"},
                      {"coyName", "0001"}});
    }

    void addTests(const Customer& customer) {
        m_tests.add({{"consultID", customer.number()},
                     {"conID", customer.serial},
                     {"PNo", customer.number()},
                     {"invDate", customer.day},
                     {"labnum", QStringLiteral("L%1/001").arg(customer.serial)},
                     {"investigate", customer.item.name},
                     {"clientCat", "PRIVATE"},
                     {"attendedto", 1},
                     {"attendedTobyLab", 1}});
        m_findings.add({{"consultID", customer.number()},
                        {"conID", customer.serial},
                        {"PNo", customer.number()},
                        {"invDate", customer.day},
                        {"drgName", customer.item.name},
                        {"sympItem", customer.item.name},
                        {"sympItemCat", customer.item.category},
                        {"billType", "INVESTIGATION"},
                        {"Price", customer.item.price},
                        {"Qty", 1},
                        {"SubTotal", customer.item.price},
                        {"Result", "NORMAL"},
                        {"attendedTobyLab", 1}});
    }

    void addBill(const Customer& customer) {
        const DemoItem& item = customer.item;
        const RowValues both = {{"dtDate", customer.day},
                                {"PNo", customer.number()},
                                {"drgName", item.name},
                                {"Price", item.price},
                                {"Qty", 1},
                                {"SubTotal", item.price},
                                {"billType", "INVESTIGATION"},
                                {"revType", item.revType},
                                {"conID", customer.serial},
                                {"Capitated", "NO"}};
        m_items.add(both + RowValues{{"consultID", customer.number()}, {"Category", item.category}, {"attendedto", 1}});
        m_lines.add(both + RowValues{{"SNo", customer.sno},
                                     {"billNo", customer.number()},
                                     {"coyName", "0001"},
                                     {"billTo", ""},
                                     {"dosage", ""},
                                     {"Charged", 0},
                                     {"BillBy", "E001"}});
        m_bills.add({{"billNo", customer.number()},
                     {"bdate", customer.day},
                     {"PNo", customer.number()},
                     {"clientID", "0001"},
                     {"Amountbilled", item.price},
                     {"AmountBIlledInWord", getValInWord(item.price)},
                     {"AmountPaid", item.price},
                     {"billingMonth", QLocale::c().standaloneMonthName(customer.day.month())},
                     {"billingYear", QString::number(customer.day.year())},
                     {"diagnosis", "XXX"},
                     {"billType", "CASH"},
                     {"isPaid", 1}});
    }

    void addReceipt(const Customer& customer) {
        const DemoItem& item = customer.item;
        m_payments.add({{"ReceiptDate", customer.day},
                        {"ReceiptNo", customer.receiptNo()},
                        {"ClinicID", "OUT-PATIENT"},
                        {"billNo", customer.number()},
                        {"PNo", customer.number()},
                        {"PaymentFor", item.revType},
                        {"Amountbilled", item.price},
                        {"AmountPaid", item.price},
                        {"AmountInWord", getValInWord(item.price)},
                        {"ReceivedBy", "E001"},
                        {"PayType", "CASH"},
                        {"rTime", "11:10"},
                        {"Remarks", "PAYMENT"}});
    }

    BulkInsert m_visits, m_people, m_tests, m_findings, m_items, m_bills, m_lines, m_payments;
};

} // namespace

void makeBulkOutlets(Connection& billing, const DemoHospital& hospital) {
    const DemoOptions& options = hospital.options;
    const int customers = options.bills / billsOfACustomer;
    DemoRandom random(options.seed);
    const QVector<QStringList> surnames = demoFacts("surnames"), firstNames = demoFacts("firstnames");
    const Recordset items(billing, Sql("select max(SNo) as Highest from BillAccum"));
    OutletRows rows(billing);
    for (int serial = 1; serial <= customers; ++serial) {
        const DemoItem* item = &random.pick(hospital.labServices);
        while (item->price == 0)
            item = &random.pick(hospital.labServices);
        const int day = int(qlonglong(serial - 1) * options.days / customers) + 1 - options.days;
        rows.add({serial, items.integer("Highest") + serial, options.until.addDays(day), *item},
                 random.pick(surnames).at(0), random.pick(firstNames).at(0));
    }
    rows.flush();
}

} // namespace orvane
