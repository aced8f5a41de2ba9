#include "books/ClientInvoice.h"

#include "books/Words.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

Recordset rowsOf(Connection& connection, const QString& batchNo, const QString& coyCode) {
    return Recordset(connection, Sql("SELECT * FROM BillsForClients WHERE batchno='")
                                     << batchNo << "' and coycode='" << coyCode << "'");
}

void addInvoice(Books& books, const ClientInvoice& invoice) {
    books.connection.execute(Sql("update BillsForClients set isOld=1 where coycode = '") << invoice.coyCode << "'");
    Recordset row(books.connection, Sql("select * from BillsForClients where 1=2"));
    row.addNew();
    row.set("invDate", invoice.date);
    row.set("invNo", invoice.invNo);
    row.set("CoyCode", invoice.coyCode);
    row.set("AmountInvoiced", invoice.amount);
    row.set("Amountbilled", invoice.amount);
    row.set("AmountPaid", 0);
    row.set("AmountBIlledInWord", getValInWord(invoice.amount));
    row.set("BillMonth", invoice.month);
    row.set("BillYear", invoice.year);
    row.set("isPaid", 0);
    row.set("isOLD", 0);
    row.set("BatchNo", invoice.batchNo);
    row.update();
}

} // namespace

QVector<ClientInvoice> readInvoices(Connection& connection, const QString& batchNo, const QString& coyCode) {
    QVector<ClientInvoice> invoices;
    for (Recordset row = rowsOf(connection, batchNo, coyCode); !row.eof(); row.moveNext())
        invoices.append({.date = row.date("invDate"),
                         .invNo = row.text("invNo"),
                         .coyCode = row.text("CoyCode"),
                         .batchNo = row.text("BatchNo"),
                         .month = row.text("BillMonth"),
                         .year = row.text("BillYear"),
                         .amount = row.number("AmountInvoiced")});
    return invoices;
}

void addToInvoice(Books& books, const ClientInvoice& found) {
    Recordset row = rowsOf(books.connection, found.batchNo, found.coyCode);
    if (row.eof()) {
        addInvoice(books, found);
        return;
    }
    const double before = row.number("AmountInvoiced");
    row.set("AmountInvoiced", round2(before + found.amount));
    row.set("Amountbilled", round2(row.number("Amountbilled") + found.amount));
    row.set("AmountBIlledInWord", getValInWord(before));
    row.update();
}

bool isReversible(Connection& connection, const QString& batchNo, const QString& coyCode) {
    return !Recordset(connection, Sql("select BatchNo from vwBillProcessReverseList where BatchNo='")
                                      << batchNo << "' and coyCode='" << coyCode << "'")
                .eof();
}

void removeInvoices(Books& books, const QString& batchNo, const QString& coyCode) {
    books.connection.execute(Sql("delete from BillsForClients where batchNo = '")
                             << batchNo << "' and coycode='" << coyCode << "'");
}

} // namespace orvane
