#pragma once

#include "books/Posting.h"

namespace orvane {

/// What was paid on a voucher as one transaction of the ledger: each item's expense is debited, and what paid it
/// credited. Refuses a voucher of which nothing waits; what the ledger has already is flagged.
Posting voucherPosting(const QString& voucher, QDate paid);

/// Posts the vouchers that were paid and are not posted: their posting failed, or posting was switched off then. Gives
/// their numbers; refuses at the first one whose legs do not balance.
Given<QStringList> postVouchersLeftOver(LedgerDesk& ledgerDesk);

} // namespace orvane
