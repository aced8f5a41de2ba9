#pragma once

#include "books/Books.h"

namespace orvane {

/// One event on a patient's running account.
struct AccountEntry {
    QString pno, billNo;
    double amount = 0;  ///< naira: minus for a charge, plus for money received
    QString clientCode; ///< the client who bears it
    QString remarks;
};

/// Appends the event to the account and repeats the new balance, in whole kobo, in hPatients.DebtBF. Writes only where
/// the private client bears it: other clients pay by invoice.
void postPatientTran(Books& books, const AccountEntry& entry);

/// The same for several events of one patient, in their order: the balance is read and repeated once.
void postPatientTrans(Books& books, const QVector<AccountEntry>& entries);

} // namespace orvane
