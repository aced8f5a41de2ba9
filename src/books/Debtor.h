#pragma once

#include "books/Books.h"

namespace orvane {

/// A row of hDebtors: an invoiced debt. What is not named starts at 0.
struct Debtor {
    QDate date;
    QString billNo; ///< of a client's debt his code as well: it is of no one bill
    QString clientNo;
    double amount = 0; ///< naira
    QString invNo;
};

void addDebtor(Books& books, const Debtor& debtor);

/// Strikes all debts of an invoice.
void removeDebtors(Books& books, const QString& invNo);

} // namespace orvane
