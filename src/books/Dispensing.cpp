#include "books/Dispensing.h"

#include "books/Bill.h"
#include "books/BillItem.h"
#include "data/words/Money.h"

#include <QStringList>

namespace orvane {

namespace {

constexpr auto hospitalNumber = "0"; ///< as every session has it

QString shownNumber(double qty) {
    return QString::number(qty, 'g', 15);
}

void addDispensed(Books& books, const Dispensing& given, const DispensedItem& item) {
    Recordset row(books.connection, Sql("select * from hConsultingDetails where 1=2"));
    row.addNew();
    row.set("consultID", given.consultID);
    row.set("dtDate", given.date);
    row.set("drgName", item.name);
    row.set("drgCatName", item.category);
    row.set("Qty", item.qty);
    row.set("PNo", given.pno);
    row.set("usage", item.usage);
    row.update();
}

/// What the injection book and the medication chart say alike.
void setTreatment(Recordset& row, const Dispensing& given, const DispensedItem& item) {
    row.set("consultID", given.consultID);
    row.set("PNo", given.pno);
    row.set("numOfTimes", shownNumber(item.qty));
    row.set("numtaken", "0");
    row.set("clientCat", given.clientCat);
    row.set("drgCatName", item.category);
    row.set("dosage", item.usage);
    row.set("attendedto", 0);
}

void addTreatment(Books& books, const Dispensing& given, const DispensedItem& item) {
    const QString time = books.now().toString("HH:mm");
    Recordset injection(books.connection, Sql("select * from hInjAndDressing where 1=2 "));
    injection.addNew();
    setTreatment(injection, given, item);
    injection.set("injdate", given.date);
    injection.set("injTime", time);
    injection.set("injname", item.name);
    injection.update();
    Recordset chart(books.connection, Sql("select * from hMedChartMonitor where 1=2  "));
    chart.addNew();
    setTreatment(chart, given, item);
    chart.set("mdate", given.date);
    chart.set("mtime", time);
    chart.set("drgName", item.name);
    chart.update();
}

BillItem waitingItem(const Dispensing& given, const DispensedItem& item) {
    return {.date = given.date,
            .consultID = given.consultID,
            .pno = given.pno,
            .name = item.name,
            .price = item.price,
            .qty = item.qty,
            .subTotal = item.subTotal(),
            .billType = isInjectionOrDressing(item.category) ? "DRUG" : hospitalNumber,
            .capitated = {}}; // the collation finds that out
}

/// No table has a column for who dispensed.
void auditDispensing(Books& books, const Dispensing& given) {
    QStringList names;
    for (const DispensedItem& item : given.items)
        names << item.name + " (" + shownNumber(item.qty) + ')';
    const QString by = given.dispenser.isEmpty() ? QString() : "; by " + given.dispenser;
    const QString to = given.referredTo.isEmpty() ? QString() : "; referred to " + given.referredTo;
    books.audit({"Dispensing for: " + given.pno, given.consultID, names.join(", ") + by + to});
}

} // namespace

double DispensedItem::subTotal() const {
    return round2(price * qty);
}

double Dispensing::total() const {
    double sum = 0;
    for (const DispensedItem& item : items)
        sum += item.subTotal();
    return round2(sum);
}

double dispensedPrice(double cost, double markUp) {
    return round2(cost * markUp + cost);
}

bool isInjectionOrDressing(const QString& category) {
    return category.compare("INJECTIONS", Qt::CaseInsensitive) == 0 ||
           category.compare("DRESSING", Qt::CaseInsensitive) == 0;
}

Given<Saved> dispense(Books& books, const Dispensing& given) {
    const Recordset waiting(books.connection,
                            Sql("select pno,remarks from qryhConsultingPatListForInjAndDressingBill where consultID='")
                                << given.consultID << "'");
    if (waiting.eof() || waiting.text("pno") != given.pno)
        return Refusal::AlreadyDispensed;
    if (isBillProcessed(books.connection, given.consultID))
        return Refusal::BillProcessed;
    const bool isInWard = waiting.text("remarks") == "ADMISSION";
    bool isDone = false;
    for (const DispensedItem& item : given.items) {
        addItem(books, waitingItem(given, item));
        addDispensed(books, given, item);
        isDone = isDone || isInjectionOrDressing(item.category);
        if (isInjectionOrDressing(item.category) && !isInWard)
            addTreatment(books, given, item);
    }
    if (isDone)
        books.connection.execute(Sql("update hconsulting set attendedTo = 1 where consultID='")
                                 << given.consultID << "'");
    auditDispensing(books, given);
    books.record(given.consultID, given.total());
    return Saved{};
}

} // namespace orvane
