#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// A line of a bill as it was listed.
struct ListedItem {
    qlonglong sno = 0;
    double subTotal = 0; ///< naira
};

/// Some of a bill's lines on their way to a new bill of another client.
struct BillSplit {
    QString billNo;
    QVector<ListedItem> items;
    QString client;               ///< the new payer's name
    QString clientID, clientCode; ///< his retainID and his retainCode
};

/// The number of the next bill to be split off: the bill's own and a letter, "B" to "D" by how many visits begin with
/// the bill's twelve characters. Refuses a number that is longer or shorter, a fifth bill, and a number in use.
Given<QString> nextSplitNumber(Connection& connection, const QString& billNo);

/// Moves the lines with their items, and what they charged, to a new bill of a visit of its own, and brings both bills
/// in step; gives the new bill's number. That the two come to what the one came to is proved before it is saved. Money
/// that was paid stays on the old bill. Refuses a processed bill, and lines that are not as they were listed, that a
/// receipt covers or that are in the ledger.
Given<QString> splitBill(Books& books, const BillSplit& split);

} // namespace orvane
