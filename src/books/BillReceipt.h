#pragma once

#include "books/Books.h"

namespace orvane {

/// Money taken against a bill.
struct BillReceipt {
    QString billNo, pno;
    QString customer; ///< as the audit trail names him
    QDate date;
    double amount = 0; ///< naira, whole kobo, not below 0
    double due = 0;    ///< naira: what was due before it
    QString words;     ///< `amount` in upper-case words
    QString purpose, payType;
};

/// A receipt that is taken back. It stays as it is: another one of the opposite amounts, in cash, undoes it.
struct Reversal {
    QString receiptNo; ///< of the receipt that is taken back
    QString billNo, pno;
    QString customer; ///< as the audit trail names him
    QDate date;
    double billed = 0, paid = 0; ///< naira, as they stand on the receipt
    QString words;               ///< `paid` in upper-case words
};

/// Both give the number of the new receipt, which stands in Payments and on the patient's account, and bring the bill
/// in step; a bill without its row takes the receipt all the same. Refused when the counter gives no number.
Given<QString> takeReceipt(Books& books, const BillReceipt& receipt);
Given<QString> reverseReceipt(Books& books, const Reversal& reversal);

/// What a reversal says that it is for, and its remark.
QString reversalPurpose(const QString& receiptNo);
/// The number of the receipt that a purpose reverses; empty: it reverses none.
QString reversedReceipt(const QString& purpose);

} // namespace orvane
