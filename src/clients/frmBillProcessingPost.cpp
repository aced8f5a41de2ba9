#include "clients/frmBillProcessingPost.h"

#include "books/InvoicePosting.h"

namespace orvane {

frmBillProcessingPost::frmBillProcessingPost(Program& owner)
    : frmBillProcessing(owner, "frmBillProcessingPost", "Post Monthly Bill Processed for Clients", true) {}

/// A batch of which nothing waits any more is left alone.
bool frmBillProcessingPost::prepareRun() {
    Connection connection = program.openBilling();
    if (!Recordset(connection, Sql("select * from vwBillingProcess where batchNo='") << listedBatch() << "'").eof())
        return frmBillProcessing::prepareRun();
    cmdRefresh_Click();
    return false;
}

void frmBillProcessingPost::cmdPost_Click() {
    if (!passes({{!session.gAcctPostOn, "Sorry Posting to your Account Package is not enabled"},
                 {!period.isPicked(), "Select Processing Period for Posting", &period.cboMonth}}))
        return;
    try {
        post();
    } catch (const DataError& fault) {
        bar.hide();
        ui().setBusy(false);
        program.box("Could not Save to Account Module!!! \r\n\r\n" + fault.description());
    }
}

void frmBillProcessingPost::post() {
    ui().setBusy(true);
    bar.show(0);
    LedgerDesk ledger = program.ledgerDesk();
    const Given<int> posted = postInvoices(ledger, period.cboMonth.text(), period.cboYear.text(),
                                           [this](int done, int all) { bar.show(qRound(100.0 / all) * done); });
    ui().setBusy(false);
    for (const QString& settled : ledger.takeSettled())
        program.box(settled);
    if (posted)
        showPosted(*posted);
    else if (posted.refusal() == Refusal::NothingToPost) {
        bar.hide();
        program.box("No Company Records to Post for the Selected Period");
        cmdRefresh_Click();
    } else {
        program.box({}); // the words are empty, and the bar stays
    }
}

void frmBillProcessingPost::showPosted(int companies) {
    bar.finish();
    program.box(QString::number(companies) + " Company Records Successfully Posted");
    cmdView_Click();
}

} // namespace orvane
