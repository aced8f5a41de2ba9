#pragma once

#include "books/Books.h"

namespace orvane {

/// A row of hDebtors: an invoiced debt. What is not named starts at 0.
struct Debtor {
    QDate date;
    QString billNo; ///< of a client's debt his code as well: it is of no one bill
    QString clientNo;
    double amount = 0; ///< naira
    QString invNo = {};
};

void addDebtor(Books& books, const Debtor& debtor);

/// What a bill of an outlet leaves unpaid, `debtor.amount`: changes the bill's row, also where nothing is owed any more
/// or too much was paid; without a row adds one where something is owed.
void settleBillDebtor(Books& books, const Debtor& debtor);

/// Strikes all debts of an invoice.
void removeDebtors(Books& books, const QString& invNo);

} // namespace orvane
