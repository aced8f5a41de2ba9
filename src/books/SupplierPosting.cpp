#include "books/SupplierPosting.h"

namespace orvane {

namespace {

const QString payable = "PAYABLE";

LedgerEntry entryOf(const Recordset& row) {
    const QDate date = row.date("InvoiceDate");
    const double amount = row.number("Amount");
    const QString invoice = row.text("InvoiceNo");
    const QString description = "Stock Supplied by " + row.text("SupplierName") + ", Inv. No: " + invoice;
    return {{{date, row.text("InvAcctNo"), amount, description}, {date, row.text("Accountno"), -amount, description}},
            LedgerTrail{date, invoice, payable}};
}

/// Reads the entries and marks them as those of the transaction.
Given<QVector<LedgerEntry>> takeEntries(Books& books, PostingNote& note) {
    QVector<LedgerEntry> entries;
    Recordset row(books.connection,
                  Sql("select SNo,InvoiceDate,SupplierName,InvoiceNo,Amount,Accountno,InvAcctNo,POID from "
                      "vwStockEntryAcct where isPost=0 and InvoiceDate between '")
                      << note.firstDay << "' and '" << note.lastDay << "' and TranID is null order by SNo");
    for (; !row.eof(); row.moveNext())
        entries.append(entryOf(row));
    if (entries.isEmpty())
        return Refusal::NothingToPost;
    books.connection.execute(Sql("update StockEntryAcct set TranID='")
                             << note.tranID << "' where isPost=0 and TranID is null and InvoiceDate between '"
                             << note.firstDay << "' and '" << note.lastDay << "'");
    note.lastDetail =
        Recordset(books.connection, Sql("select max(SNO) as Newest from StockEntryAcct")).integer("Newest");
    return entries;
}

/// Behind the gate no posting is open, so that what bears an id is in the ledger.
QString flagKnownEntries(const Desk& billing, QDate first, QDate last) {
    const auto ofDays = [&](Sql&& sql) {
        return std::move(sql) << " isPost=0 and TranID is not null and InvoiceDate between '" << first << "' and '"
                              << last << "'";
    };
    Connection connection = billing.open();
    const int known = Recordset(connection, ofDays(Sql("select SNO from StockEntryAcct where"))).count();
    if (known == 0)
        return {};
    billing.save<Saved>("FLAG SUPPLIER ENTRIES", [&](Books& books) -> Given<Saved> {
        books.connection.execute(ofDays(Sql("update StockEntryAcct set isPost=1 where")));
        books.record(first.toString(Qt::ISODate), 0);
        return Saved{};
    });
    return QStringLiteral("%1 entries of suppliers were in the ledger already: they are flagged as posted now.")
        .arg(known);
}

} // namespace

Posting supplierPosting(QDate first, QDate last) {
    return {.action = "POST SUPPLIERS",
            .note = {.kind = payable, .firstDay = first, .lastDay = last},
            .read = takeEntries,
            .flagKnown = [first, last](const Desk& billing,
                                       Connection&) { return flagKnownEntries(billing, first, last); }};
}

void changeInventoryAccount(Books& books, qlonglong SNo, const QString& account) {
    books.connection.execute(Sql("update StockEntryAcct set  InvAcctNo='") << account << "' where SNO=" << SNo);
    books.record(QString::number(SNo), 0);
}

} // namespace orvane
