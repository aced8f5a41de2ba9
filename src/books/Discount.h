#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// A single line that is added to a saved bill: a further charge, or a discount.
struct BillDiscount {
    QString billNo, pno;
    QDate date;
    QString name;
    double amount = 0; ///< naira, above 0
    bool isDiscount = false;
};

/// Adds the line, minus for a discount, which also leaves a row in billDiscounts, and moves the Billing row with it.
/// The patient's running account keeps the charge as it was. Refuses a processed bill.
Given<Saved> addBillDiscount(Books& books, const BillDiscount& discount);

} // namespace orvane
