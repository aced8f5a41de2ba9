#pragma once

#include "books/Bill.h"
#include "session/Program.h"

namespace orvane {

/// The visit in hand on the collation screen.
struct BillInHand {
    QString consultID; ///< also the bill's number; empty: no patient is selected
    QString pno;
    QString patient;    ///< full name
    QString retainID;   ///< the key of the visit's client
    QString retainCode; ///< the code that is billed
    QString category;   ///< client category, such as "PRIVATE" or "HMO"
    QString referal;    ///< "YES": fee for service
    int billEndDay = 0; ///< day of the month on which the client's billing month ends; 0: no special end
};

/// "HMO", "NHIS" or "PHIS": the client pays a fixed sum a head, not item by item.
bool isCapitatedCategory(const QString& category);

/// "PREVIOUS DEBT" or "PREVIOUS CREDIT": a balance carried from earlier visits, which is in the running account
/// already.
bool isCarriedBalance(const QString& item);

/// What every change to a frozen bill is answered with.
QString billProcessedText();

/// Whether the visit still stands and is still that patient's and that client's: another user may have deleted it or
/// moved it since it was read. Asked inside the transaction it stays so.
bool isVisitUnchanged(Connection& connection, const QString& consultID, const QString& pno, const QString& retainID);
/// What a save of a visit that has changed is answered with.
QString reselectText();

/// The number of the item that the caller's transaction has just added to the visit under this name. Other departments'
/// programs add items at any time, so that the newest of all visits need not be the caller's. Raises DataError when
/// there is none.
qlonglong numberOfAddedItem(Connection& connection, const QString& consultID, const QString& name);

/// The waiting items of the visit become lines of its bill: one unit an item, with its line, its charge to the running
/// account and its flags. Items of capitated patients stay waiting. Says so in a box, and does nothing, without a
/// patient or on a processed bill. Raises DataError; what was billed before stays billed, the rest follows at the next
/// collation.
void collateBillItems(Program& program, const BillInHand& bill);

/// In a save: bills the items that still wait and are not capitated, on the caller's connection and inside its
/// transaction.
void billWaitingItems(Program& program, Connection& connection, const BillInHand& bill);

} // namespace orvane
