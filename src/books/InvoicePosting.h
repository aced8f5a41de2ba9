#pragma once

#include "books/Posting.h"

namespace orvane {

/// Posts the clients' invoices of a month, as "March" and "2026", that are not posted: each as a transaction of its own
/// on the last day of its batch, the client's receivable account against sales, all of them in one transaction of the
/// accounting database. Each invoice and the lines of its bills are flagged in billing before that commits, and stay
/// flagged when it fails. What the ledger has already is flagged, not posted again. `watch` gets how many of all are
/// done, inside the transaction. Gives the number of invoices; refuses where there are none (NothingToPost) and an
/// invoice whose legs do not balance. Raises DataError, too where an invoice is not as it was read any more.
Given<int> postInvoices(LedgerDesk& ledgerDesk, const QString& month, const QString& year,
                        const std::function<void(int done, int all)>& watch);

/// Posts the invoices that are flagged and that the ledger does not have: their posting failed behind the flag. Gives
/// their numbers.
Given<QStringList> postInvoicesLeftOver(LedgerDesk& ledgerDesk);

/// The last day of a batch, such as "2026/02".
QDate lastDayOf(const QString& batchNo);

} // namespace orvane
