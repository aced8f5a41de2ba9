#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// A visit whose bill is worked on, as it was read.
struct BillInHand {
    QString consultID; ///< also the bill's number; empty: no visit
    QString pno;
    QString patient;    ///< full name
    QString retainID;   ///< the key of the visit's client
    QString retainCode; ///< the code that is billed
    QString category;   ///< client category, such as "PRIVATE" or "HMO"
    QString referal;    ///< "YES": fee for service
    int billEndDay = 0; ///< day of the month on which the client's billing month ends
};

/// A bill as a list shows it.
struct ListedBill {
    QString billNo;
    QString patient; ///< full name
};

/// "HMO", "NHIS" or "PHIS": the client pays a fixed sum a head, not item by item.
bool isCapitatedCategory(const QString& category);

/// A visit as it is read for its bill.
struct BilledVisit {
    BillInHand bill;
    QDate date;
    QString client; ///< the client's name
};

/// Refuses a visit that is not there, and one whose client is not.
Given<BilledVisit> readBilledVisit(Connection& connection, const QString& consultID, const QString& pno,
                                   const QString& patient);

/// Why nothing may be written on the bill: a batch holds it, or the visit is not any more that patient's and that
/// client's, since another user has deleted or moved it. Asked inside the transaction the answer stays so.
std::optional<Refusal> whyNotBilled(Connection& connection, const QString& consultID, const QString& pno,
                                    const QString& retainID);
std::optional<Refusal> whyNotBilled(Connection& connection, const BillInHand& bill);

} // namespace orvane
