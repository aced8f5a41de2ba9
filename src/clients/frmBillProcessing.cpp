#include "clients/frmBillProcessing.h"

#include "books/Batch.h"

namespace orvane {

frmBillProcessing::frmBillProcessing(Program& owner) : Screen(owner, "frmBillProcessing", "Bill Processing") {}

frmBillProcessing::frmBillProcessing(Program& owner, const QString& name, const QString& caption,
                                     bool takesBillsWithoutLines)
    : Screen(owner, name, caption), m_takesBillsWithoutLines(takesBillsWithoutLines) {}

Layout frmBillProcessing::layout() const {
    using namespace orvane::layout;
    return column({row({period.layout(), cell(cmdGet), stretch()}),
                   row({column({cell(Label1), growing(cell(clients.LstDate)),
                                row({cell(clients.cmdAll), cell(clients.cmdDeSelect)})}),
                        growing(column({cell(cmdView), growing(cell(grdData, 134))}))}),
                   cell(bar.ProgressBar1), buttons({&cmdRefresh, &cmdPost}, {&CancelButton, &cmdProcess})});
}

void frmBillProcessing::Form_Load() {
    period.fill(session.gServerDate);
    grdData.setFormat("AmountInvoiced", "#,###.00");
}

bool frmBillProcessing::isPeriodPicked() {
    return passes({{!period.isPicked(), "Select Processing Period", &period.cboMonth}});
}

bool frmBillProcessing::isBatchOpen() {
    Connection connection = program.openBilling();
    return passes({{isBatchPast(connection, period.batchNo()),
                    "Invalid Batch No! Please Select a higher Transaction Period", &period.cboMonth}});
}

void frmBillProcessing::cmdGet_Click() {
    if (!isPeriodPicked())
        return;
    session.sBatchNo = period.batchNo();
    if (!isBatchOpen())
        return;
    m_listed.batchNo = period.batchNo();
    m_listed.month = period.cboMonth.text();
    m_listed.year = period.cboYear.text();
    clients.LstDate.clear();
    Connection connection = program.openBilling();
    Recordset rows(connection, Sql("select  distinct retainCode,coyName from vwBillingProcess where batchno='")
                                   << m_listed.batchNo << "' and retainID <>'" << session.gPrivateTariff << "'");
    for (; !rows.eof(); rows.moveNext())
        clients.LstDate.addItem(rows.text("coyName"), rows.integer("retainCode"));
    Label1.setText("Company List : " + QString::number(rows.count()));
}

void frmBillProcessing::cmdAll_Click() {
    if (passes({{clients.LstDate.count() == 0, "No Item to select"}}))
        clients.setAll(true);
}

void frmBillProcessing::cmdDeSelect_Click() {
    clients.setAll(false);
}

void frmBillProcessing::clearFields() {
    Label1.setText("Locked Attendance");
}

void frmBillProcessing::cmdRefresh_Click() {
    clearFields();
    cmdGet_Click();
}

void frmBillProcessing::cmdView_Click() {
    if (!isPeriodPicked())
        return;
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection,
                           Sql("select BillMonth as Mth,BillYear as Yr,retainName as Company,AmountBilled as "
                               "AmountInvoiced,InvNo as InvoiceNo,Posted,AcctID from vwInvoiceDetailsCoy2Batch where "
                               "BillMonth ='")
                               << period.cboMonth.text() << "' and BillYear ='" << period.cboYear.text()
                               << "' order by Company"));
}

MonthRun frmBillProcessing::run() const {
    MonthRun run = m_listed;
    run.date = session.dWorkDate;
    run.takesBillsWithoutLines = m_takesBillsWithoutLines;
    for (const int row : clients.ticked())
        run.clients.append(clients.LstDate.itemData(row).toLongLong());
    return run;
}

bool frmBillProcessing::prepareRun() {
    if (!passes({{m_listed.batchNo.isEmpty(), "Batch No needed for this Processing"}}))
        return false;
    session.dWorkDate = program.getServerDateTime().date();
    bar.show(0);
    return true;
}

void frmBillProcessing::showStage(const RunStage& stage) {
    if (stage.bills == 0 || stage.bill == stage.bills) {
        bar.hide();
        return;
    }
    const double done = stage.client + double(stage.bill) / stage.bills;
    bar.show(int(100 * done / stage.clients));
}

void frmBillProcessing::showProcessed(int count) {
    bar.finish();
    program.box(QString::number(count) + " Comapny Bills successfully Processed");
    cmdRefresh_Click();
    cmdView_Click();
}

void frmBillProcessing::cmdProcess_Click() {
    save<int>({.button = cmdProcess,
               .action = "PROCESS BATCH",
               .allowed =
                   [this] {
                       return passes({{clients.ticked().isEmpty(), "No Company is selected"}});
                   },
               .question = "Are you sure to save?",
               .title = "About to save",
               .detail =
                   [this] {
                       return aboutLines(
                           {"Batch " + m_listed.batchNo, "Clients: " + QString::number(clients.ticked().size())});
                   },
               .prepare = [this] { return prepareRun(); },
               .step =
                   [this](Books& books) {
                       return processMonth(
                           books, run(), [this](const RunStage& stage) { showStage(stage); });
                   },
               .follow = [this](int count) { showProcessed(count); }});
}

} // namespace orvane
