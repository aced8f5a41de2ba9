#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// How far a run is, whenever some bills are done: it has done `client` of `clients`, and `bill` of the `bills` of the
/// next one.
struct RunStage {
    int client = 0, clients = 0;
    int bill = 0, bills = 0;
};

/// Shows it; called inside the transaction, so it must ask nothing.
using RunWatcher = std::function<void(const RunStage&)>;

/// The monthly run: the bills of one batch, client by client.
struct MonthRun {
    QString batchNo, month, year; ///< as in 2026/03, March and 2026
    QDate date;                   ///< of the invoices, the server's
    QVector<qlonglong> clients;   ///< codes as the list holds them, in its order
    bool takesBillsWithoutLines = false;
};

/// Turns all bills of each client, those without lines only where the run takes them, into one invoice: each bill's
/// amount is taken from its lines once more, and it is frozen; the client owes the sum. A later run of a batch adds to
/// its invoices. A client without such bills gets an invoice of 0, or keeps his. Gives the number of clients.
Given<int> processMonth(Books& books, const MonthRun& run, const RunWatcher& watch);

} // namespace orvane
