#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// What a bill comes to, in naira.
struct BillFigures {
    double generated = 0; ///< all items of the visit, capitated ones too
    double billed = 0;    ///< its lines; 0 without one
    double paid = 0;
    double balance = 0; ///< billed less paid, as its row in Billing says
};

/// Keeps the Billing row in step with the bill's lines and receipts, and gives its figures. A missing row is added for
/// the patient. A processed bill keeps its total.
Given<BillFigures> saveBillSummary(Books& books, const QString& billNo, const QString& pno);

/// What the items of a visit come to, in naira: all of them, but of a capitated patient only those that are charged one
/// by one.
double itemsTotal(Connection& connection, const QString& consultID);

} // namespace orvane
