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

void flagInvoice(const Desk& billing, const InvoiceToPost& invoice) {
    billing.save<Saved>(
        "POST INVOICE",
        [&](Books& books) -> Given<Saved> {
            books.connection.execute(Sql("update BillsForClients  set ispost=1 where InvNo='") << invoice.invNo << "'");
            books.connection.execute(
                Sql("update billingDetails  set ispost=1 where billNo in (Select BillNo from Billing where InvNo= '")
                << invoice.invNo << "')");
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

/// In one transaction of the accounting database; each is flagged before it commits.
Given<int> postAll(LedgerDesk& ledgerDesk, const QVector<InvoiceToPost>& invoices,
                   const std::function<void(int, int)>& watch) {
    Connection accounting = ledgerDesk.openAccounting();
    Transaction transaction(accounting);
    const BookContext& context = ledgerDesk.billing().context();
    Ledger ledger(accounting, context);
    int done = 0;
    for (const InvoiceToPost& invoice : invoices) {
        if (!isPosted(accounting, invoice.invNo, receivable))
            if (const auto refusal = postInvoice(ledger, invoice, context.settings.salesAccount))
                return *refusal;
        flagInvoice(ledgerDesk.billing(), invoice);
        watch(++done, int(invoices.size()));
    }
    ledgerDesk.commit(transaction, ledger.tranID());
    return done;
}

} // namespace

QDate lastDayOf(const QString& batchNo) {
    return QDate::fromString(batchNo + "/01", "yyyy/MM/dd").addMonths(1).addDays(-1);
}

Given<int> postInvoices(LedgerDesk& ledgerDesk, const QString& month, const QString& year,
                        const std::function<void(int, int)>& watch) {
    Connection billing = ledgerDesk.billing().open();
    const QVector<InvoiceToPost> invoices =
        readInvoicesToPost(billing, Sql("isPost=0 and BillMonth ='") << month << "' and BillYear ='" << year << "'");
    if (invoices.isEmpty())
        return Refusal::NothingToPost;
    return postAll(ledgerDesk, invoices, watch);
}

Given<QStringList> postInvoicesLeftOver(LedgerDesk& ledgerDesk) {
    Connection billing = ledgerDesk.billing().open();
    Connection accounting = ledgerDesk.openAccounting();
    QVector<InvoiceToPost> missing;
    QStringList numbers;
    for (const InvoiceToPost& invoice : readInvoicesToPost(billing, Sql("isPost=1")))
        if (!isPosted(accounting, invoice.invNo, receivable)) {
            missing.append(invoice);
            numbers << invoice.invNo;
        }
    if (const Given<int> posted = postAll(ledgerDesk, missing, [](int, int) {}); !posted)
        return posted.refusal();
    return numbers;
}

} // namespace orvane
