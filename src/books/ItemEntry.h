#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// One new item as it is entered.
struct EnteredItem {
    QString name, category;
    double price = 0, qty = 0, subTotal = 0; ///< naira a unit, units, naira
    QString usage, capitated, billType, billTo, coyName, revType;
};

/// The new items of one visit.
struct EnteredItems {
    QString consultID, pno, retainID;
    QString category, feeForService; ///< of the visit
    QDate date;
    QString company; ///< as the audit trail names it
    QVector<EnteredItem> items = {};
};

/// Adds the items to the visit; those that no contract covers go on its bill at once, with their charge, and its
/// Billing row follows. Refuses a processed bill and a visit that was changed since it was read.
Given<Saved> addToVisit(Books& books, const EnteredItems& entered);

/// The same for a bill that waits for its batch: every item goes on it, whatever it says about capitation.
Given<Saved> addToCollatedBill(Books& books, const EnteredItems& entered);

/// Repairs items of the visit that lack client, payer or capitation, and takes the capitation from those that can have
/// none. `retainID` and `retainCode` are those of the visit's client. The items of a processed bill stay as they are.
void prepareItems(Books& books, const EnteredItems& visit, const QString& retainCode);

/// Sets the visit and its patient to fee-for-service ("YES") or back ("NO"): all items of the visit flip at once.
/// Refuses a processed bill.
Given<Saved> setFeeForService(Books& books, const QString& consultID, const QString& pno, const QString& feeForService);

} // namespace orvane
