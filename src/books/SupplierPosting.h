#pragma once

#include "books/Posting.h"

namespace orvane {

/// The suppliers' entries whose invoices are of these days as one transaction of the ledger, each with a trail of its
/// own: the inventory account is debited, the supplier's credited. Then the entries that were made on these days are
/// flagged. Each entry that is posted bears the id of its transaction (TranID): by that the ledger is known to have it,
/// since several may bear one invoice number. Refuses days of which nothing waits; an entry that the ledger has and
/// that is not flagged, is flagged.
Posting supplierPosting(QDate first, QDate last);

/// Sends an entry to another inventory account; one that is not there is passed over.
void changeInventoryAccount(Books& books, qlonglong SNo, const QString& account);

} // namespace orvane
