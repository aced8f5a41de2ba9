#pragma once

#include "data/words/Money.h"
#include "session/Screen.h"

namespace orvane {

/// One item of a bill before and after a change. Amounts in naira.
struct ItemChange {
    QString billNo;
    QString oldItem, newItem;
    double oldQty = 0, newQty = 0;
    double oldPrice = 0, newPrice = 0;
    double oldAmount() const { return round2(oldQty * oldPrice); } ///< naira and whole kobo, as the screens show it
    double newAmount() const { return round2(newQty * newPrice); }
};

// These write on the caller's connection, inside the caller's transaction, and raise DataError.

/// The trace of a change in BillingDetailsAdjust, stamped with the shell's clock and the user signed in.
void traceAdjustment(Program& program, Connection& connection, const ItemChange& change, const QString& remarks);

/// The same change in the audit trail; `heading` stands before the item's name.
void auditAdjustment(Program& program, const ItemChange& change, const QString& heading);

/// The correction of a brought-forward line in hDebtReview; `debt` as the line's price, minus for "PREVIOUS DEBT".
void reviewCarriedBalance(Connection& connection, const QString& billNo, const QString& pno, QDate date, double debt);

/// Amount and words of the Billing row as its lines now come to. Without a line the amount becomes 0; one that was 0
/// before keeps its words, which may say that the bill is capitated.
void refreshBillFromLines(Program& program, Connection& connection, const QString& billNo);

} // namespace orvane
