#include "receipts/ReceiptLines.h"

#include "data/rows/Recordset.h"
#include "data/words/Money.h"

#include <algorithm>

namespace orvane {

namespace {

QVector<PaidLine> linesOf(Recordset rows) {
    QVector<PaidLine> lines;
    for (; !rows.eof(); rows.moveNext())
        lines.append({rows.text("Item"), round2(rows.number("Amount"))});
    return lines;
}

QVector<PaidLine> writtenShares(Connection& connection, const PaidReceipt& receipt) {
    return linesOf(Recordset(
        connection, Sql("select BillItem as Item, AmountPaid as Amount from PaymentDetails where ReceiptNo='")
                        << receipt.receiptNo << "' and billNo='" << receipt.billNo << "' and snoID<>0 order by SNo"));
}

double paidBefore(Connection& connection, const PaidReceipt& receipt) {
    const Recordset before(connection, Sql("select sum(AmountPaid) as Amount from Payments where billNo='")
                                           << receipt.billNo << "' and SNo<" << receipt.sno);
    return before.eof() ? 0 : before.number("Amount");
}

/// The lines as far as they stand open behind the first `covered` naira. A discount is a line below zero.
QVector<PaidLine> openLines(QVector<PaidLine> lines, double covered) {
    for (PaidLine& line : lines) {
        if (covered <= 0)
            break;
        const double taken = std::min(covered, line.amount);
        line.amount = round2(line.amount - taken);
        covered = round2(covered - taken);
    }
    return lines;
}

} // namespace

double overpaid(const PaidReceipt& receipt) {
    return std::max(0.0, round2(receipt.paid - std::max(0.0, receipt.due)));
}

QVector<PaidLine> linesPaidFor(Connection& connection, const PaidReceipt& receipt) {
    QVector<PaidLine> lines = writtenShares(connection, receipt);
    if (lines.isEmpty())
        lines = openLines(linesOf(Recordset(connection, Sql("select drgName as Item, SubTotal as Amount from "
                                                            "BillingDetails where billNo='")
                                                            << receipt.billNo << "' order by SNo")),
                          paidBefore(connection, receipt));
    QVector<PaidLine> paid;
    double left = round2(receipt.paid - overpaid(receipt));
    for (const PaidLine& line : lines) {
        if (left <= 0)
            break;
        const double amount = std::min(left, line.amount);
        if (amount != 0)
            paid.append({line.item, amount});
        left = round2(left - amount);
    }
    if (left > 0)
        paid.append({"On account", left});
    return paid;
}

} // namespace orvane
