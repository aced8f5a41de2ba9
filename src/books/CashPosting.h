#pragma once

#include "books/Posting.h"

namespace orvane {

/// The receipts of some days as one transaction of the ledger: each way of payment is debited to its account, each
/// revenue type credited to its own. Refuses days of which nothing waits.
Posting cashPosting(const BookContext& context, QDate first, QDate last);

/// Money that came in on a day by one way of payment, under the ledger account that it goes to.
struct DayOfCash {
    QDate date;
    QString account, payType;
};

/// Sends it to another account. Refuses while a posting that is not settled has read it (BeingPosted).
Given<Saved> changeCashAccount(Books& books, const DayOfCash& cash, const QString& account);

/// What one receipt lacks of its distribution, added by hand.
struct HandShare {
    QString receiptNo, billNo;
    QDate date;
    double amount = 0; ///< naira
    QString revType;
};

/// Adds a row of PaymentDetails without an account, which the ledger takes as suspense.
void addHandShare(Books& books, const HandShare& share);

} // namespace orvane
