#pragma once

#include "books/Books.h"

namespace orvane {

/// A row of BillsForClients: what one client is invoiced for one batch. What is not named starts at 0.
struct ClientInvoice {
    QDate date;
    QString invNo;
    QString coyCode; ///< the client's retainCode
    QString batchNo, month, year;
    double amount = 0; ///< naira
};

/// The invoices of a client in a batch: one, or none.
QVector<ClientInvoice> readInvoices(Connection& connection, const QString& batchNo, const QString& coyCode);

/// Adds what a run has found for the client to his invoice of the batch. The first run makes the invoice, and retires
/// all that he had before; a later one leaves its words at what the runs before it came to.
void addToInvoice(Books& books, const ClientInvoice& found);

/// Whether an invoice of the client in the batch may be taken back: it is there and is not posted to the accounts.
bool isReversible(Connection& connection, const QString& batchNo, const QString& coyCode);

void removeInvoices(Books& books, const QString& batchNo, const QString& coyCode);

} // namespace orvane
