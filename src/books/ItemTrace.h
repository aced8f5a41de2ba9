#pragma once

#include "books/Books.h"

namespace orvane {

/// One item of a bill before and after a change.
struct ItemChange {
    qlonglong sno = 0; ///< of the item
    QString billNo, pno;
    QString oldItem, newItem;
    double oldQty = 0, newQty = 0;
    double oldPrice = 0, newPrice = 0; ///< naira a unit
    double oldAmount() const;          ///< naira, whole kobo
    double newAmount() const;          ///< naira, whole kobo
};

/// The trace of the change in BillingDetailsAdjust.
void traceAdjustment(Books& books, const ItemChange& change, const QString& remarks);

/// The same with the item's name and the patient beside it.
void traceAdjustmentOfPatient(Books& books, const ItemChange& change, const QString& remarks);

/// The same change in the audit trail; `heading` stands before the item's name.
void auditAdjustment(Books& books, const ItemChange& change, const QString& heading);

/// The correction of a line that is or was a carried balance, in hDebtReview: `price` as it stands, but minus for a
/// "PREVIOUS DEBT".
void reviewCarriedBalance(Books& books, const ItemChange& change, const QString& item, double price);

/// Raises DataError unless a row of BillAccum or BillingDetails is still as it was when the change was prepared.
void requireUnchanged(const Recordset& row, const ItemChange& change);

} // namespace orvane
