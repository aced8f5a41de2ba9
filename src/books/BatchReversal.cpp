#include "books/BatchReversal.h"

#include "books/Batch.h"
#include "books/Bill.h"
#include "books/Client.h"
#include "books/ClientInvoice.h"
#include "books/Debtor.h"

namespace orvane {

Given<Saved> reverseBatch(Books& books, const QString& batchNo, qlonglong client) {
    const QString code = paddedClientCode(client);
    const QVector<ClientInvoice> invoices = readInvoices(books.connection, batchNo, code);
    if (!invoices.isEmpty() && !isReversible(books.connection, batchNo, code))
        return Refusal::InvoicePosted;
    QString invoiced; // the invoices' own spelling of the code; none without one
    double total = 0;
    for (const ClientInvoice& invoice : invoices) {
        invoiced = invoice.coyCode;
        total += invoice.amount;
        if (const std::optional<QString> name = clientOfCode(books.connection, invoiced))
            books.audit({"Reverse Proceessed Mthly Bill for " + *name, {}, {}});
        lessenClientDebt(books, invoiced, invoice.amount);
        removeDebtors(books, invoice.invNo);
        releaseBills(books, invoice.invNo);
    }
    removeInvoices(books, batchNo, invoiced);
    books.record(batchNo, 0 - total);
    return Saved{};
}

} // namespace orvane
