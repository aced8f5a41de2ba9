#pragma once

#include "books/Books.h"

namespace orvane {

/// A receipt that was written by hand, entered afterwards together with what it was billed for.
struct ManualReceipt {
    QString paperNo; ///< the number on the paper
    QString billNo, pno;
    QString clientID; ///< as the bill bears it
    QString customer; ///< as the audit trail names him
    QDate date;
    double billed = 0, paid = 0; ///< naira, whole kobo
    QString words;               ///< `paid` in upper-case words
    QString clinicID, purpose, payType;
    QString receivedBy; ///< an employee's number
};

/// Makes or enlarges the bill, charges it to the patient's account and takes the money. Gives the receipt's number,
/// which may be that of another receipt already. Refuses a processed bill.
Given<QString> enterManualReceipt(Books& books, const ManualReceipt& paper);

} // namespace orvane
