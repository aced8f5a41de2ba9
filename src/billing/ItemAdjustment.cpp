#include "billing/ItemAdjustment.h"

#include "billing/BillingRow.h"

namespace orvane {

void traceAdjustment(Program& program, Connection& connection, const ItemChange& change, const QString& remarks) {
    Recordset trace(connection, Sql("select * from BillingDetailsAdjust where 1=2"));
    trace.addNew();
    trace.set("AdjustDate", program.session.gServerDate);
    trace.set("AdjustTime", program.session.gServerTime.toString("HH:mm"));
    trace.set("billNo", change.billNo);
    trace.set("BillItem", change.oldItem);
    trace.set("OldQty", QString::number(change.oldQty));
    trace.set("newQty", QString::number(change.newQty));
    trace.set("OldPrice", change.oldPrice);
    trace.set("newPrice", change.newPrice);
    trace.set("AdjustBy", program.session.gUsername);
    trace.set("Remarks", remarks);
    trace.update();
}

void auditAdjustment(Program& program, const ItemChange& change, const QString& heading) {
    program.writeAuditTrail(
        {heading + change.oldItem + " : => " + change.newItem, change.billNo,
         " Qty from: " + QString::number(change.oldQty) + " : => " + QString::number(change.newQty) + " price from: " +
             formatNumber(change.oldPrice, "0.00") + " : => " + formatNumber(change.newPrice, "0.00")});
}

void reviewCarriedBalance(Connection& connection, const QString& billNo, const QString& pno, QDate date, double debt) {
    Recordset review(connection, Sql("select * from hDebtReview where 1=2"));
    review.addNew();
    review.set("billNo", billNo);
    review.set("PNo", pno);
    review.set("dtDate", date);
    review.set("Debt", debt);
    review.set("adjustTo", debt);
    review.set("attendedto", 0);
    review.update();
}

void refreshBillFromLines(Program& program, Connection& connection, const QString& billNo) {
    if (const std::optional<double> total = billDetailsTotal(connection, billNo)) {
        updateBillAmount(connection, billNo, *total, getValInWord(program, *total));
        return;
    }
    const Recordset bill(connection, Sql("select AmountBilled from Billing where billNo = '") << billNo << "'");
    if (!bill.eof() && bill.number("AmountBilled") != 0)
        updateBillAmount(connection, billNo, 0, getValInWord(program, 0));
}

} // namespace orvane
