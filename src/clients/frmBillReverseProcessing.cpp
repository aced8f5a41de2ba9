#include "clients/frmBillReverseProcessing.h"

#include "books/Batch.h"
#include "books/BatchReversal.h"
#include "clients/MonthPicker.h"

namespace orvane {

frmBillReverseProcessing::frmBillReverseProcessing(Program& owner)
    : Screen(owner, "frmBillReverseProcessing", "Reverse Last Processed Batch") {}

Layout frmBillReverseProcessing::layout() const {
    using namespace orvane::layout;
    return column({field("Year", cboYear, 6), field("Company Name", cboCust, 56), cell(Label1),
                   growing(cell(batches.LstDate)), row({cell(batches.cmdAll), cell(batches.cmdDeSelect), stretch()}),
                   cell(bar.ProgressBar1), buttons({&cmdRefresh}, {&CancelButton, &cmdProcess})});
}

void frmBillReverseProcessing::Form_Load() {
    MonthPicker::fillYears(cboYear);
}

void frmBillReverseProcessing::cboYear_Click() {
    if (passes({{cboYear.text().isEmpty(), " Please, Specify Transaction Year .", &cboYear}}))
        getPatList();
}

void frmBillReverseProcessing::getPatList() {
    Connection connection = program.openBilling();
    cboCust.clear();
    cboCust.addItem("");
    Recordset rows(connection,
                   Sql("select  distinct coyCode,coyName from vwBillProcessReverseList where substring(batchno,1,4)='")
                       << cboYear.text() << "' order by coyname asc");
    for (; !rows.eof(); rows.moveNext())
        cboCust.addItem(rows.text("coyName"), rows.integer("coyCode"));
}

void frmBillReverseProcessing::cboCust_Click() {
    const QString code = paddedClientCode(cboCust.picked<qlonglong>().value_or(0));
    batches.LstDate.clear();
    Connection connection = program.openBilling();
    Recordset rows(connection, Sql("select  distinct BatchNo,retainCode from vwBillProcessReverseList where coyCode='")
                                   << code << "' order by batchNo desc");
    for (; !rows.eof(); rows.moveNext())
        batches.LstDate.addItem(rows.text("BatchNo"), rows.integer("retainCode"));
    Label1.setText("Batch List : " + QString::number(rows.count()));
}

void frmBillReverseProcessing::cmdAll_Click() {
    if (passes({{batches.LstDate.count() == 0, "No Item to select"}}))
        batches.setAll(true);
}

void frmBillReverseProcessing::cmdDeSelect_Click() {
    if (passes({{batches.LstDate.count() == 0, "No Item to Deselect"}}))
        batches.setAll(false);
}

bool frmBillReverseProcessing::isOneTicked() {
    const qsizetype ticked = batches.ticked().size();
    return passes({{ticked == 0, "No Batch is selected For Bill Reversal"},
                   {ticked > 1, "Only one  Batch can be selected For Bill Reversal"}});
}

void frmBillReverseProcessing::cmdProcess_Click() {
    const auto step = [this](Books& books) {
        const int row = batches.ticked().first();
        return reverseBatch(books, batches.LstDate.item(row), batches.LstDate.itemData(row).toLongLong());
    };
    save<Saved>({.button = cmdProcess,
                 .action = "REVERSE BATCH",
                 .allowed = [this] { return isOneTicked(); },
                 .question = "Are you sure to Reverse Last Processing?",
                 .title = "About to Reverse",
                 .consent = Consent::Destroys,
                 .detail =
                     [this] {
                         return aboutLines({cboCust.text(), "Batch " + batches.LstDate.item(batches.ticked().first())});
                     },
                 .prepare =
                     [this] {
                         bar.show(0);
                         return true;
                     },
                 .step = step,
                 .follow =
                     [this](const Saved&) {
                         bar.finish();
                         program.box(QString::number(batches.ticked().size()) + " Comapny Bills successfully Reversed");
                         cmdRefresh_Click();
                     },
                 .refused =
                     [this](Refusal refusal) {
                         bar.hide();
                         program.box(refusalText(refusal));
                     }});
}

} // namespace orvane
