#pragma once

#include "books/Books.h"

namespace orvane {

/// What is kept of a client, as a person enters it.
struct ClientEntry {
    QString name;
    QString type, category; ///< one of hClientType; the billing category of the client's patients
    QString contact, address, phone, email;
    QString account;     ///< of the ledger, that of what the client owes; empty: it has none yet
    QString active;      ///< "YES" or "NO"
    int billEndDay = 31; ///< of the month on which the billing month ends; 31: no special end
};

/// Adds a client under the next code and gives that code, which is his retainID too. After 9999 comes 0000. Refuses a
/// code that a client bears.
Given<QString> addClient(Books& books, const ClientEntry& entry);

/// Writes the entry over a client; his id, his code and what he owes stay. One who is not there any more is passed
/// over.
void changeClient(Books& books, const QString& retainID, const ClientEntry& entry);

/// Takes a client and his schemes away. Refuses one who has patients.
Given<Saved> deleteClient(Books& books, const QString& retainID);

/// From now on the consultation fee of the client's patients is not displayed on a bill. Refuses a client who is in
/// that list already.
Given<Saved> exemptClient(Books& books, const QString& retainID);

/// Takes him out of that list.
void endExemption(Books& books, const QString& retainID);

} // namespace orvane
