// What becomes of a paid voucher in the accounts: the ledger, and the journal of another accounting system.
#include "accounts/frmExpensePay.h"
#include "books/VoucherPosting.h"
#include "journal/GeneralJournal.h"
#include "session/StartFiles.h"

namespace orvane {

/// The payment stays, whatever becomes of this; legs that do not balance are taken back without a word.
void frmExpensePay::postToAccounts(const VoucherPayment& paid) {
    if (!session.gAcctPostOn)
        return;
    ui().setBusy(true);
    LedgerDesk ledger = program.ledgerDesk();
    QString fault;
    try {
        ledger.post(voucherPosting(paid.voucher, paid.date));
    } catch (const DataError& raised) {
        fault = raised.description();
    }
    ui().setBusy(false);
    for (const QString& settled : ledger.takeSettled())
        program.box(settled);
    if (!fault.isEmpty())
        program.box("Could not Save to Account Module!!! \r\n\r\n" + fault);
}

void frmExpensePay::cmdPost_Click() {
    if (!passes({{!session.gAcctPostOn, "Sorry Posting to your Account Package is not enabled"}}))
        return;
    Connection connection = program.openBilling();
    Recordset item(connection, Sql("select ExpDate as Date,ExpID as SNo,SubTotal as Amount,VouchNo,RefNo,AcctID,"
                                   "Description as Remarks from vwhExpenseApprvFinal where isPost=0 "));
    if (item.eof()) {
        program.box("No Data to Post");
        return;
    }
    ui().setBusy(true);
    const QString folder = readJournalFolder(program.homeFolder());
    QMap<QString, QStringList> failed; // the items, by why
    for (; !item.eof(); item.moveNext())
        if (const QString fault = postToJournal(item, folder); !fault.isEmpty())
            failed[fault] << "Voucher " + item.text("VouchNo") + ": " + item.text("Remarks");
    ui().setBusy(false);
    for (auto why = failed.begin(); why != failed.end(); ++why)
        program.box(why.key() + "\n\n" + itemLines(why.value()) + "\n\nCompany data folder: " + folder);
    program.box("Posting Completed Successfully");
}

/// Gives why it is not there, and then it is not flagged. An item whose flag was cut off is not entered again.
QString frmExpensePay::postToJournal(const Recordset& item, const QString& folder) {
    const QString expID = item.text("SNo");
    try {
        GeneralJournal(folder).postExpenseToJournal({.date = item.date("Date"),
                                                     .reference = item.text("RefNo"),
                                                     .description = item.text("Remarks"),
                                                     .amount = item.number("Amount"),
                                                     .account = item.text("AcctID"),
                                                     .cashAccount = session.gAcctNoCash,
                                                     .source = "ExpID " + expID});
    } catch (const JournalFault& fault) {
        return fault.description();
    }
    program.desk().save<Saved>("JOURNAL EXPENSE", [&](Books& books) -> Given<Saved> {
        flagInJournal(books, expID.toLongLong());
        return Saved{};
    });
    return {};
}

/// So many that a box holds them.
QString frmExpensePay::itemLines(const QStringList& items) {
    constexpr int most = 10;
    const QString lines = items.mid(0, most).join('\n');
    return items.size() <= most ? lines : lines + QStringLiteral("\n... and %1 more").arg(items.size() - most);
}

} // namespace orvane
