#pragma once

#include "books/Books.h"

namespace orvane {

/// A creditor: what is kept of a row of suppliers, as a person enters it.
struct Supplier {
    QString name, category;
    QString contact, address, phone, email;
    QString accountNo; ///< of the ledger, that of what is owed to him; empty: he has none yet
};

/// Adds a creditor under the next number and gives it. After 9999 comes 0000. Refuses a number that a creditor bears.
Given<QString> addSupplier(Books& books, const Supplier& supplier);

/// Writes the entry over a creditor; one who is not there any more is passed over.
void changeSupplier(Books& books, const QString& supplierID, const Supplier& supplier);

/// Takes a creditor out of the list and into SuppliersArchive.
void archiveSupplier(Books& books, const QString& supplierID);

} // namespace orvane
