#include "books/InvoicePosting.h"

namespace orvane {

namespace {

const QString receivable = "RECEIVABLE";

struct InvoiceToPost {
    QString company, invNo, account;
    QDate date;        ///< the last day of its batch
    double amount = 0; ///< naira
};

/// `chosen`: what follows the where.
QVector<InvoiceToPost> readInvoicesToPost(Connection& billing, const Sql& chosen) {
    QVector<InvoiceToPost> invoices;
    Recordset row(billing,
                  Sql("select BatchNo,BillMonth as Mth,BillYear as Yr,retainName as Company,AmountBilled,InvNo,Posted,"
                      "AcctID as DebitAcctNo from vwInvoiceDetailsCoy2Batch where ")
                      << chosen << " order by Company");
    for (; !row.eof(); row.moveNext())
        invoices.append({row.text("Company"), row.text("InvNo"), row.text("DebitAcctNo"),
                         lastDayOf(row.text("BatchNo")), row.number("AmountBilled")});
    return invoices;
}

/// Its row may be taken back or grow in billing while the ledger's gate is held: what was read is posted, or nothing.
void expectAsRead(Connection& billing, const InvoiceToPost& invoice) {
    const Recordset row(billing, Sql("select Amountbilled from BillsForClients where InvNo='") << invoice.invNo << "'");
    if (row.eof() || row.number("Amountbilled") != invoice.amount)
        throw DataError(QStringLiteral("The invoice %1 was changed by another user meanwhile. Nothing was posted.")
                            .arg(invoice.invNo));
}

Given<Saved> flagInvoice(const Desk& billing, const InvoiceToPost& invoice) {
    return billing.save<Saved>(
        "POST INVOICE",
        [&](Books& books) -> Given<Saved> {
            expectAsRead(books.connection, invoice);
            books.connection.executeAll(
                {Sql("update BillsForClients  set ispost=1 where InvNo='") << invoice.invNo << "'",
                 Sql("update billingDetails  set ispost=1 where billNo in (Select BillNo from Billing where InvNo= '")
                     << invoice.invNo << "')"});
            books.note({"POSTING", invoice.invNo, 1, invoice.amount});
            books.record(invoice.invNo, invoice.amount);
            return Saved{};
        });
}

/// Gives why the legs may not stay.
std::optional<Refusal> postInvoice(Ledger& ledger, const InvoiceToPost& invoice, const QString& sales) {
    ledger.fetchTranID();
    const QString description = "Invoce for: " + invoice.company + " Inv No: " + invoice.invNo + ")";
    ledger.postToLedger({invoice.date, invoice.account, invoice.amount, description});
    ledger.postToLedger({invoice.date, sales, -invoice.amount, description});
    if (const std::optional<Refusal> refusal = imbalance(ledger))
        return refusal;
    ledger.addTrail({invoice.date, invoice.invNo, receivable});
    return {};
}

using InvoiceReader = std::function<QVector<InvoiceToPost>(Connection& billing, const QSet<QString>& posted)>;

/// What is read behind the ledger's gate, in one transaction of the accounting database; each is flagged before it
/// commits. Gives their numbers.
Given<QStringList> postAll(LedgerDesk& ledgerDesk, const InvoiceReader& read,
                           const std::function<void(int, int)>& watch) {
    Connection accounting = ledgerDesk.openAccounting();
    Transaction transaction(accounting);
    ledgerDesk.settleNotes(accounting);
    const BookContext& context = ledgerDesk.billing().context();
    Connection billing = ledgerDesk.billing().open();
    const QSet<QString> posted = postedSources(accounting, receivable);
    const QVector<InvoiceToPost> invoices = read(billing, posted);
    Ledger ledger(accounting, context);
    QStringList done;
    for (const InvoiceToPost& invoice : invoices) {
        if (!posted.contains(invoice.invNo))
            if (const auto refusal = postInvoice(ledger, invoice, context.settings.salesAccount))
                return *refusal;
        if (const Given<Saved> flagged = flagInvoice(ledgerDesk.billing(), invoice); !flagged)
            return flagged.refusal();
        done << invoice.invNo;
        watch(int(done.size()), int(invoices.size()));
    }
    if (!done.isEmpty())
        ledgerDesk.commit(transaction, ledger.tranID());
    return done;
}

} // namespace

QDate lastDayOf(const QString& batchNo) {
    return QDate::fromString(batchNo + "/01", "yyyy/MM/dd").addMonths(1).addDays(-1);
}

Given<int> postInvoices(LedgerDesk& ledgerDesk, const QString& month, const QString& year,
                        const std::function<void(int, int)>& watch) {
    const Given<QStringList> posted = postAll(
        ledgerDesk,
        [&](Connection& billing, const QSet<QString>&) {
            QVector<InvoiceToPost> invoices = readInvoicesToPost(
                billing, Sql("isPost=0 and BillMonth ='") << month << "' and BillYear ='" << year << "'");
            for (InvoiceToPost& invoice : invoices)
                invoice.date = invoices.first().date;
            return invoices;
        },
        watch);
    if (!posted)
        return posted.refusal();
    if (posted->isEmpty())
        return Refusal::NothingToPost;
    return int(posted->size());
}

Given<QStringList> postInvoicesLeftOver(LedgerDesk& ledgerDesk) {
    return postAll(
        ledgerDesk,
        [](Connection& billing, const QSet<QString>& posted) {
            QVector<InvoiceToPost> flagged = readInvoicesToPost(billing, Sql("isPost=1"));
            flagged.removeIf([&](const InvoiceToPost& invoice) { return posted.contains(invoice.invNo); });
            return flagged;
        },
        [](int, int) {});
}

} // namespace orvane
