#pragma once

#include "books/Books.h"

namespace orvane {

/// A row of hRevenueType.
struct RevenueType {
    QString name, category;
    QString active;    ///< "YES" or "NO"
    QString accountNo; ///< of the ledger; empty: its money goes into suspense
};

/// Adds a type. Refuses a name that is in the list.
Given<Saved> addRevenueType(Books& books, const RevenueType& type);

/// Writes over the type of this name; a new name is carried into the items, lines and price lists that bear the old
/// one, but not into what receipts were given for. Refuses the name of another type, and a type that is not there any
/// more.
Given<Saved> changeRevenueType(Books& books, const QString& name, const RevenueType& type);

/// Whether this is the type that stands for every other: it may be renamed, but not deleted.
bool isCatchAllRevenue(const QString& name);

/// Deletes a type; rows that bear its name keep it. Refuses the catch-all.
Given<Saved> deleteRevenueType(Books& books, const QString& name);

/// What an accountant puts right on one billed line.
struct RevenueCorrection {
    qlonglong sno = 0; ///< of the line and its item
    QString billNo, item;
    QString type;
    QString consultant; ///< number of the employee who rendered it; empty: nobody's
};

/// Gives a line, its item and what receipts were given for it another type and consultant, whether or not the bill is
/// processed or posted: no amount moves.
void correctRevenue(Books& books, const RevenueCorrection& correction);

} // namespace orvane
