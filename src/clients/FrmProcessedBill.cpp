#include "clients/FrmProcessedBill.h"

#include "clients/InvoicePaper.h"

namespace orvane {

namespace {

const QString noReport = "No Report for the specified Clients";

} // namespace

FrmProcessedBill::FrmProcessedBill(Program& owner) : ReportScreen(owner, "FrmProcessedBill", "Invoice") {
    // The clients of another month are none of this one, and no page may stand under another's name.
    period.onPick = [this] {
        cboCust.clear();
        crViewer1.clear();
    };
}

Layout FrmProcessedBill::layout() const {
    using namespace orvane::layout;
    return column({row({cell(lblHeading), field("Transaction Period", period.cboMonth, 12),
                        field("Year", period.cboYear, 6), cell(cmdPat), field("Company Name", cboCust, 60), stretch()}),
                   growing(cell(crViewer1)),
                   buttons({&cmdBatch, &cmdCoy2}, {&CancelButton, &cmdSumm, &cmdCoy, &cmdDetail, &cmdPatInv})});
}

void FrmProcessedBill::Form_Load() {
    period.fill(session.gServerDate);
}

bool FrmProcessedBill::takePeriod() {
    if (!passes({{!period.isPicked(), " Please, Specify Transaction Period .", &period.cboMonth}}))
        return false;
    session.sBatchNo = m_batchNo = period.batchNo();
    return true;
}

QString FrmProcessedBill::periodName() const {
    return period.cboMonth.text() + ' ' + period.cboYear.text();
}

void FrmProcessedBill::cmdPat_Click() {
    if (!takePeriod())
        return;
    cboCust.clear();
    Connection connection = program.openBilling();
    Recordset client(connection, Sql("select coycode,retainName from vwInvBatchNo where batchno='")
                                     << m_batchNo << "' order by retainName");
    for (; !client.eof(); client.moveNext())
        cboCust.addItem(client.text("retainName"), QVariant::fromValue(Invoice{client.text("coycode"), m_batchNo}));
    cboCust.setFocus();
}

void FrmProcessedBill::cboCust_Click() {
    crViewer1.clear();
}

std::optional<FrmProcessedBill::Invoice> FrmProcessedBill::pickedInvoice(const QString& nothing) {
    const auto invoice = cboCust.picked<Invoice>();
    passes({{!invoice, nothing, &cboCust}});
    return invoice;
}

void FrmProcessedBill::cmdBatch_Click() {
    if (!takePeriod())
        return;
    Connection connection = program.openBilling();
    showReport({.file = "\\rptInvoiceDetailsCoyBatchRpt.rpt ",
                .rows = Recordset(connection, Sql("select  * from vwInvoiceDetailsCoy2Batch where batchNo ='")
                                                  << m_batchNo << "' order by Company"),
                .nothing = noReport,
                .textObjects = {{"Text7", "Invoice Summary for " + periodName()}}});
}

void FrmProcessedBill::cmdCoy_Click() {
    if (const auto invoice = pickedInvoice("Please select a Client Name"))
        showInvoice("\\rprInvoiceDetailsCoyCrosstabRpt.rpt", *invoice,
                    Sql("select  * from vwInvoiceDetailsCoyCrosstabRpt where batchNo ='")
                        << invoice->batchNo << "' and CoyCode='" << invoice->coyCode << "'");
}

void FrmProcessedBill::cmdDetail_Click() {
    if (const auto invoice = pickedInvoice("Please select a Client Name"))
        showInvoice("\\rptInvoiceDetailsByCoy.rpt", *invoice,
                    Sql("select  InvNo,fullname,Date,billno,Amountbilled,Company,Diagnosis from vwInvoiceDetailsCoy2 "
                        "where batchNo ='")
                        << invoice->batchNo << "' and CoyCode='" << invoice->coyCode << "'",
                    {{"Text1", "Invoice Summary for " + periodName()}});
}

void FrmProcessedBill::cmdPatInv_Click() {
    showClaims("\\rptHmoClaimsAll.rpt");
}

void FrmProcessedBill::cmdSumm_Click() {
    showClaims("\\rptHmoClaims.rpt");
}

void FrmProcessedBill::showClaims(const QString& file) {
    if (const auto invoice = pickedInvoice("Please select a Company"))
        showInvoice(file, *invoice,
                    Sql("select distinct * from vwBillingForClaims where batchNo ='")
                        << invoice->batchNo << "' and CoyCode='" << invoice->coyCode << "'");
}

void FrmProcessedBill::showInvoice(const QString& file, const Invoice& invoice, const Sql& rows,
                                   const QHash<QString, QString>& textObjects) {
    Connection connection = program.openBilling();
    const Recordset head(connection, Sql("select invDate from BillsForClients where BatchNo='")
                                         << invoice.batchNo << "' and CoyCode='" << invoice.coyCode << "'");
    QHash<QString, QString> values = sentToClient(connection, cboCust.text(), invoice.coyCode);
    values.insert({{"Period", periodName()},
                   {"InvoiceDate", head.eof() ? QString() : head.date("invDate").toString("dd/MM/yyyy")}});
    showReport({.file = file,
                .rows = Recordset(connection, rows),
                .nothing = noReport,
                .textObjects = textObjects,
                .values = values});
}

/// The clients whose bills of the month wait for its run, with what they come to; private patients pay themselves.
void FrmProcessedBill::cmdCoy2_Click() {
    if (!passes({{!period.isPicked(), "Select Billing Period", &period.cboMonth}}))
        return;
    Connection connection = program.openBilling();
    const Recordset waiting(
        connection,
        Sql("select CoyName as Company,retainCode as Code,count(*) as Bills,sum(AmountBilled) as Amount from "
            "vwBillingProcess where batchNo='")
            << period.batchNo() << "' and retainID <>'" << session.gPrivateTariff
            << "' group by CoyName,retainCode order by CoyName");
    if (waiting.eof())
        program.box("No Unprocessed Company in the specified Period");
    else
        showList("rptUnprocessedCompanies", "Unprocessed Companies, " + periodName(), waiting);
}

} // namespace orvane
