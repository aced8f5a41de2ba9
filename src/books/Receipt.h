#pragma once

#include "books/Books.h"

namespace orvane {

/// A row of Payments.
struct Receipt {
    QDate date;
    QString receiptNo, clinicID, billNo, pno;
    QString purpose;         ///< what the payment is for
    double amountBilled = 0; ///< naira: what was due at the moment of the receipt, not the bill's total
    double amountPaid = 0;   ///< naira; minus on a reversal
    QString words;           ///< the amount paid in upper-case words
    QString payType;
    QString chequeNo = {};
    QString receivedBy = {}; ///< an employee's number; empty: the user signed in
    QString remarks;
};

/// Adds the row, stamped with the clock of the books.
void addReceipt(Books& books, const Receipt& receipt);

} // namespace orvane
