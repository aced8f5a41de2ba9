#include "books/InvoicePosting.h"

namespace orvane {

namespace {

const QString receivable = "RECEIVABLE";

struct UnpostedInvoice {
    QString company, invNo, account;
    double amount = 0; ///< naira
};

void flagInvoice(const Desk& billing, const UnpostedInvoice& invoice) {
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
std::optional<Refusal> postInvoice(Ledger& ledger, const UnpostedInvoice& invoice, QDate date, const QString& sales) {
    ledger.fetchTranID();
    const QString description = "Invoce for: " + invoice.company + " Inv No: " + invoice.invNo + ")";
    ledger.postToLedger({date, invoice.account, invoice.amount, description});
    ledger.postToLedger({date, sales, -invoice.amount, description});
    if (const std::optional<Refusal> refusal = imbalance(ledger))
        return refusal;
    ledger.addTrail({date, invoice.invNo, receivable});
    return {};
}

} // namespace

QDate lastDayOf(const QString& batchNo) {
    return QDate::fromString(batchNo + "/01", "yyyy/MM/dd").addMonths(1).addDays(-1);
}

Given<int> postInvoices(LedgerDesk& ledgerDesk, const QString& month, const QString& year,
                        const std::function<void(int, int)>& watch) {
    Connection accounting = ledgerDesk.openAccounting();
    Transaction transaction(accounting);
    Connection billing = ledgerDesk.billing().open();
    Recordset row(billing,
                  Sql("select BatchNo,BillMonth as Mth,BillYear as Yr,retainName as Company,AmountBilled,InvNo,Posted,"
                      "AcctID as DebitAcctNo from vwInvoiceDetailsCoy2Batch where isPost=0 and BillMonth ='")
                      << month << "' and BillYear ='" << year << "' order by Company");
    if (row.eof())
        return Refusal::NothingToPost;
    const BookContext& context = ledgerDesk.billing().context();
    Ledger ledger(accounting, context);
    const QDate date = lastDayOf(row.text("BatchNo"));
    const int all = int(row.count());
    int done = 0;
    for (; !row.eof(); row.moveNext()) {
        const UnpostedInvoice invoice{row.text("Company"), row.text("InvNo"), row.text("DebitAcctNo"),
                                      row.number("AmountBilled")};
        if (!isPosted(accounting, invoice.invNo, receivable))
            if (const auto refusal = postInvoice(ledger, invoice, date, context.settings.salesAccount))
                return *refusal;
        flagInvoice(ledgerDesk.billing(), invoice);
        watch(++done, all);
    }
    ledgerDesk.commit(transaction, ledger.tranID());
    return done;
}

} // namespace orvane
