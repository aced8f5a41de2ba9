#pragma once

#include "books/Desk.h"

namespace orvane {

/// What came in and how far it is spread, of the receipts of some days; naira, to the kobo.
struct CashTotals {
    double received = 0;    ///< of Payments
    double byWay = 0;       ///< of PaymentTypes
    double distributed = 0; ///< of PaymentDetails
};

CashTotals readCashTotals(Connection& connection, QDate first, QDate last);

// The rebuild of the rows that spread the receipts of some days. Rows that are there stay, posted ones, corrected ones
// and those added by hand: what a receipt lacks, or has too much, is added as one more row or more. So the totals agree
// afterwards, whatever was posted before.

/// rebuildPaymentTypes: the ways of payment. What a receipt lacks came by its pay type, the first where it names
/// several.
void rebuildPaymentTypes(Books& books, QDate first, QDate last);

/// rebuildPaymentDetails: the revenue types. A receipt that is not spread at all is spread over the lines of its bill
/// as at the collation; a reversal takes back what its receipt had spread; any other difference is of the suspense
/// account.
void rebuildPaymentDetails(Books& books, QDate first, QDate last);

/// Does both.
void rebuildCash(const Desk& desk, QDate first, QDate last);

/// Does both where the totals of the days are unlike, each only where its own is.
void rebuildUnlike(const Desk& desk, QDate first, QDate last);

/// Spreads the receipts of the days that are not posted and have no row at all, on the side that lacks it: those that
/// came in behind the last rebuild, and those whose reversal makes the totals alike without them.
void spreadUnspread(Books& books, QDate first, QDate last);

} // namespace orvane
