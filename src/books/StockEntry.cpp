#include "books/StockEntry.h"

#include "data/words/Money.h"

#include <algorithm>

namespace orvane {

namespace {

/// False: the store has no such item.
bool raiseStock(Books& books, const QString& item, double units) {
    const Recordset row(books.connection, Sql("select UnitsInStock from StockItemsRetail where ItemID='")
                                              << item << "'");
    if (row.eof())
        return false;
    const double stock = row.number("UnitsInStock") + units;
    books.connection.execute(Sql("update StockItemsRetail set UnitsInStock=")
                             << stock << ",reorderlevel=" << stock / 2 << "  where ItemID='" << item << "'");
    return true;
}

void setColumns(Recordset& row, const StockEntry& entry) {
    row.set("entryDate", entry.date);
    row.set("ItemID", entry.item);
    row.set("Qty", entry.qty);
    row.set("ReceivedBy", entry.receivedBy);
    row.set("Comments", nullIfEmpty(entry.comments));
}

void raiseCost(Books& books, const StockEntry& entry) {
    const Recordset drug(books.connection, Sql("select cost from drugs WHERE drgName = '") << entry.item << "'");
    if (drug.eof())
        return;
    const double cost = std::max(entry.retailCost, drug.number("cost"));
    books.connection.execute(Sql("update Drugs set Cost = ") << cost << "  WHERE drgName = '" << entry.item << "'");
}

} // namespace

std::optional<double> retailCost(double bulkCost, const QString& quantityPerUnit) {
    const double units = parseAmount(quantityPerUnit).value_or(0);
    return units > 0 ? std::optional(round2(bulkCost / units)) : std::nullopt;
}

Given<Saved> enterStock(Books& books, const StockEntry& entry) {
    if (!raiseStock(books, entry.item, entry.qty))
        return Refusal::NoStockItem;
    Recordset row(books.connection, Sql("select * from StockEntryRetail where 1=2"));
    row.addNew();
    setColumns(row, entry);
    row.update();
    raiseCost(books, entry);
    books.record(entry.item, 0);
    return Saved{};
}

Given<Saved> changeStockEntry(Books& books, qlonglong entryID, double oldQty, const StockEntry& entry) {
    Recordset row(books.connection, Sql("select * from StockEntryRetail where EntryID = ") << entryID);
    if (row.eof() || row.number("Qty") != oldQty || row.text("ItemID") != entry.item)
        return Refusal::StockEntryChanged;
    if (!raiseStock(books, entry.item, entry.qty - oldQty))
        return Refusal::NoStockItem;
    setColumns(row, entry);
    row.update();
    books.record(entry.item, 0);
    return Saved{};
}

} // namespace orvane
