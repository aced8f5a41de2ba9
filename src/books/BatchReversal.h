#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// Takes back what the runs of a batch have done for one client, by his code as a list holds it: his invoice and its
/// debts go, he owes that much less, and the bills can be changed and processed again. What they bill stays as the run
/// wrote it, and no earlier invoice becomes his newest one. A batch without an invoice of his changes nothing. Refuses
/// an invoice that is posted to the accounts.
Given<Saved> reverseBatch(Books& books, const QString& batchNo, qlonglong client);

} // namespace orvane
