#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// Money taken with the collation of an outlet's visit.
struct OutletReceipt {
    double due = 0, paid = 0; ///< naira: what was due before it, and what came in, above 0
    QString words;            ///< `paid` in upper-case words
    QString clinicID, purpose, payType, chequeNo;
};

/// An outlet's visit whose waiting items are to be billed.
struct OutletBill {
    QString billNo, pno;
    QString customer; ///< as the audit trail names him
    QDate date;
    QString diagnosis;
    double listed = 0;                         ///< naira: what the items come to that its cashier saw
    std::optional<OutletReceipt> receipt = {}; ///< none: the customer owes it
};

/// Bills the waiting items: the bill's row, added or enlarged, a line for each of them, the receipt, and what is owed
/// in hDebtors. Nothing stands on a running account, for these customers have none. Gives the receipt's number, empty
/// without one. Refuses a visit without a waiting item, one whose items are not those that were seen, and a receipt of
/// an outlet without a code.
Given<QString> saveOutletBill(Books& books, const OutletBill& bill);

/// Whether a bill is an outlet's: its number has its second "/" as the seventh character.
bool isOutletBill(const QString& billNo);

/// What the outlet's bill as it stands leaves unpaid, in hDebtors; a bill without its row leaves it alone.
void settleOutletDebt(Books& books, const QString& billNo, QDate date);

} // namespace orvane
