#pragma once

#include "books/Posting.h"

namespace orvane {

/// The receipts of some days as one transaction of the ledger: each way of payment is debited to its account, each
/// revenue type credited to its own. Refuses days of which nothing waits.
Posting cashPosting(const BookContext& context, QDate first, QDate last);

} // namespace orvane
