#pragma once

#include "books/BillInHand.h"

namespace orvane {

/// Empties the bill: every item falls under the contract, and what its line had charged goes back to the account that
/// bore it. Amount 0 with the words "XXX" marks the bill. Refuses a processed bill.
Given<Saved> capitateBill(Books& books, const BillInHand& bill);

/// The same for bills of a batch before its run; their traces keep the price. Refuses all of them when one is processed
/// or gone. Gives their number; `moving` is told how many are done, inside the transaction.
Given<int> capitateBills(Books& books, const QString& batchNo, const QVector<ListedBill>& bills,
                         const std::function<void(int)>& moving);

} // namespace orvane
