#pragma once

#include "books/BillSummary.h"
#include "session/Program.h"

namespace orvane {

/// saveBillSummary in a transaction of its own, for a look at the bill; session.dBillTotal, sAmountWords, dAmountGen,
/// dAmountBal and dAmountPaid take its figures. A fault of it is not shown: the figures are then 0, and the next look
/// heals the bill.
BillFigures lookAtBill(Program& program, const QString& billNo);

/// Shows naira in each of the labels.
void showAmount(std::initializer_list<Label*> labels, double amount);

} // namespace orvane
