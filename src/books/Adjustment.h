#pragma once

#include "books/Given.h"
#include "books/ItemTrace.h"

namespace orvane {

// All of these change one item, or its line, that stands as it was when the change was prepared; else they raise
// DataError. They refuse a processed bill. What a line had charged goes back to the account that bore it, whoever the
// line names now.

/// How an item of a visit reads from now on.
struct ItemAdjustment {
    ItemChange change;
    bool capitated = false;
    QString revType;
    QString billTo;  ///< code of the client who pays it; empty: whoever pays it now
    QString patient; ///< as the audit trail names him
};

/// Changes an item and its line. An item that waited is billed by it. A line that is turned capitated stays listed at
/// no charge until the next collation. A new payer pays item and line, and the charge moves to him. A carried balance
/// goes to hDebtReview, not to the account.
Given<Saved> adjustItem(Books& books, const ItemAdjustment& adjustment);

/// Takes the item and its line away.
Given<Saved> removeItem(Books& books, const ItemChange& change);

/// Changes the item alone: its line on a bill, if it has one, stays.
Given<Saved> adjustPrice(Books& books, const ItemChange& change, const QString& capitated);

/// Says who pays a line of a bill, and nothing else: the charge stays where it is.
Given<Saved> splitPayer(Books& books, const ItemChange& change, const QString& billTo);

/// Changes a line of a bill and names the heading under which the client's invoice shows it. `billTo`: the client who
/// pays it from now on; empty: whoever pays it now.
Given<Saved> customiseLine(Books& books, const ItemChange& change, const QString& heading, const QString& billTo);

/// A request to change the price of an item in the tariff.
struct TariffRequest {
    ItemChange change;
    QString revType, coyName, category;
};

/// Adds it to TariffAdjust; the tariff itself stays.
void requestTariff(Books& books, const TariffRequest& request);

} // namespace orvane
