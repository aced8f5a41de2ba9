#pragma once

#include "books/BillInHand.h"

namespace orvane {

/// Whether a collation of the visit would write anything: an item that it would bill or release, or a row that lacks
/// what a line of the bill needs. A few reads, so that a mere look at a bill takes no transaction.
bool needsCollation(Connection& connection, const BillInHand& bill);

/// The waiting items of the visit become lines of its bill, all of them or none: each with its line, its charge to the
/// running account and its flags. Items of capitated patients, and those without a price, stay waiting. Gives the naira
/// that were billed. Refuses a processed bill.
Given<double> collateBillItems(Books& books, const BillInHand& bill);

/// In a save: bills the items that still wait and are not capitated, and the balances carried from earlier visits,
/// whatever their sign; then no item of the visit waits any more.
void billWaitingItems(Books& books, const BillInHand& bill);

} // namespace orvane
