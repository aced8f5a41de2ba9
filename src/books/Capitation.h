#pragma once

#include "books/BillInHand.h"

namespace orvane {

/// Empties the bill: every item falls under the contract, and what its line had charged goes back to the account that
/// bore it. Amount 0 with the words "XXX" marks the bill. Refuses a processed bill.
Given<Saved> capitateBill(Books& books, const BillInHand& bill);

} // namespace orvane
