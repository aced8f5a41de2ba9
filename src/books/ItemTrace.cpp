#include "books/ItemTrace.h"

#include "data/words/Money.h"

#include <cmath>

namespace orvane {

double ItemChange::oldAmount() const {
    return round2(oldQty * oldPrice);
}

double ItemChange::newAmount() const {
    return round2(newQty * newPrice);
}

namespace {

void compose(Recordset& trace, const Books& books, const ItemChange& change, const QString& remarks) {
    trace.set("AdjustDate", books.today());
    trace.set("AdjustTime", books.now().toString("HH:mm"));
    trace.set("billNo", change.billNo);
    trace.set("BillItem", change.oldItem);
    trace.set("OldQty", QString::number(change.oldQty));
    trace.set("newQty", QString::number(change.newQty));
    trace.set("OldPrice", change.oldPrice);
    trace.set("newPrice", change.newPrice);
    trace.set("AdjustBy", books.actor().user);
    trace.set("Remarks", remarks);
}

} // namespace

void traceAdjustment(Books& books, const ItemChange& change, const QString& remarks) {
    Recordset trace(books.connection, Sql("select * from BillingDetailsAdjust where 1=2"));
    trace.addNew();
    compose(trace, books, change, remarks);
    trace.update();
}

void traceAdjustmentOfPatient(Books& books, const ItemChange& change, const QString& remarks) {
    Recordset trace(books.connection, Sql("select * from BillingDetailsAdjust where 1=2"));
    trace.addNew();
    compose(trace, books, change, remarks);
    trace.set("drgName", change.newItem);
    trace.set("PNo", change.pno);
    trace.update();
}

void auditAdjustment(Books& books, const ItemChange& change, const QString& heading) {
    books.audit({heading + change.oldItem + " : => " + change.newItem, change.billNo,
                 " Qty from: " + QString::number(change.oldQty) + " : => " + QString::number(change.newQty) +
                     " price from: " + formatNumber(change.oldPrice, "0.00") + " : => " +
                     formatNumber(change.newPrice, "0.00")});
}

void reviewCarriedBalance(Books& books, const ItemChange& change, const QString& item, double price) {
    const double debt = item == "PREVIOUS DEBT" ? -std::abs(price) : price;
    Recordset review(books.connection, Sql("select * from hDebtReview where 1=2"));
    review.addNew();
    review.set("billNo", change.billNo);
    review.set("PNo", change.pno);
    review.set("dtDate", books.today());
    review.set("Debt", debt);
    review.set("adjustTo", debt);
    review.set("attendedto", 0);
    review.update();
}

void requireUnchanged(const Recordset& row, const ItemChange& change) {
    if (row.eof() || row.number("Price") != change.oldPrice || row.number("Qty") != change.oldQty ||
        row.text("drgName") != change.oldItem)
        throw DataError(
            "Row cannot be located for updating. Some values may have been changed since it was last read.");
}

} // namespace orvane
