#pragma once

#include "data/rows/Connection.h"

#include <QVector>

namespace orvane {

/// A receipt whose lines are asked for.
struct PaidReceipt {
    qlonglong sno = 0; ///< its key in Payments
    QString receiptNo, billNo;
    double due = 0, paid = 0; ///< naira, as they stand on the receipt
};

/// One line of a bill and the part of it that a receipt has paid.
struct PaidLine {
    QString item;
    double amount = 0; ///< naira
};

/// What the receipt has paid for, in the order of its bill: the shares that its save wrote, else what its money reaches
/// after that of the bill's earlier receipts. Money that was due and falls on no line comes last, as "On account"; what
/// was paid too much is no line (see overpaid). A reversal has none.
QVector<PaidLine> linesPaidFor(Connection& connection, const PaidReceipt& receipt);

/// Naira beyond what was due; 0 on a reversal.
double overpaid(const PaidReceipt& receipt);

} // namespace orvane
