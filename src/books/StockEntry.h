#pragma once

#include "books/Books.h"
#include "books/Given.h"

#include <optional>

namespace orvane {

/// One receipt of goods into the retail store.
struct StockEntry {
    QDate date;   ///< none: null
    QString item; ///< its ItemID, which is the drug's name
    double qty = 0;
    QString receivedBy; ///< empID of the stock officer
    QString comments = {};
    double retailCost = 0; ///< naira a unit, as the price from the bulk store gives it; 0: not known
};

/// What a unit costs of goods that cost `bulkCost` naira a pack of so many, as a text; none where that is no number.
std::optional<double> retailCost(double bulkCost, const QString& quantityPerUnit);

/// Adds the entry, raises the stock by it, makes half of it the reorder level, and raises the drug's base cost to the
/// retail cost where that is higher. Refuses an item that the store does not have.
Given<Saved> enterStock(Books& books, const StockEntry& entry);

/// Writes over the entry of this number, whose quantity was `oldQty` when it was read: the stock gives that back and
/// takes the new quantity. No cost changes. Refuses an entry that is not as it was read.
Given<Saved> changeStockEntry(Books& books, qlonglong entryID, double oldQty, const StockEntry& entry);

} // namespace orvane
