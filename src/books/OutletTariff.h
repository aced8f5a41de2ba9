#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// One kind of item of an outlet, "DRUG", "INVESTIGATION" or "SERVICE": where it is listed and priced. Null for a text
/// that is no kind.
struct OutletKind;
const OutletKind* outletKind(const QString& kind);

/// The names of all items of the kind, sorted. Raises DataError.
QStringList outletItems(Connection& connection, const OutletKind& kind);

/// What an item costs a customer, by the private tariff.
struct OutletPrice {
    qlonglong sno = 0; ///< of its row in the tariff
    double price = 0;  ///< naira a unit
    QString revType, category;
};

/// None: the private tariff (retainID) does not have the item.
std::optional<OutletPrice> outletPrice(Connection& connection, const OutletKind& kind, const QString& item,
                                       const QString& privateTariff);

/// Gives the item's row of the tariff, `now.sno`, another price and revenue type, from which the next customer's price
/// comes. The audit trail has both, old and new. A row that is gone changes nothing.
Given<Saved> changeOutletPrice(Books& books, const OutletKind& kind, const QString& item, const OutletPrice& now);

} // namespace orvane
