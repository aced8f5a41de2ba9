#pragma once

#include "books/Books.h"

namespace orvane {

/// Money taken before there is a bill: it opens the bill and stands on the patient's running account.
struct Deposit {
    QString billNo, pno, clientID;
    QString customer; ///< as the audit trail names him
    QDate date;
    double amount = 0, due = 0; ///< naira, whole kobo
    double broughtForward = 0;  ///< naira, the patient's balance; minus is owed
    QString words;              ///< `amount` in upper-case words
    QString purpose, payType, diagnosis;
};

/// Gives the receipt's number. Refuses a visit that has its bill already, and one whose clinic has no receipt code.
Given<QString> takeDeposit(Books& books, const Deposit& deposit);

} // namespace orvane
