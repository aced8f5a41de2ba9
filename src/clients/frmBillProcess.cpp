#include "clients/frmBillProcess.h"

#include "clients/LineCustom.h"
#include "data/words/Money.h"

#include <utility>

namespace orvane {

namespace {

const QString allCompanies = "(ALL)";

} // namespace

frmBillProcess::frmBillProcess(Program& owner) : Screen(owner, "frmBillProcess", "View Collated Bills") {
    fraBatch.holds({&cboVehNo, &cmdBatch});
    fraBatch.setEnabled(false);
    grdData.onClick = [this] { grdData_Click(); };
    grdData.hide({"retainID", "ID", "pno"});
    for (const char* amount : {"AmountBilled", "AmountPaid"})
        grdData.setFormat(amount, "#,###.00");
    cmdShow.setToolTip("The bills whose amount is not the total of their details");
    prepareLines(grdData2);
}

Layout frmBillProcess::layout() const {
    using namespace orvane::layout;
    return column(
        {row({period.layout(), cell(cmdLoad), stretch(), field("Company", cboCoy, 34),
              field("Search by Surname", txtSearch, 20)}),
         growing(cell(grdData)),
         row({cell(lblCnt, 24), field("Total of All Bills", lblAmt), stretch(), field("Bills That Differ", cmdShow)}),
         growing(row({growing(column({cell(lblDetails), growing(cell(grdData2))})),
                      column({group("Approval and Diagnosis",
                                    {field("Approval Code", txtApprv, 26), field("Diagnosis", txtDiag, 26),
                                     row({cell(cmdOK), cell(cmDiag)})}),
                              cell(cmdRpt), cell(chkBatch),
                              group(fraBatch.caption().trimmed(), {row({field("Batch", cboVehNo, 12), cell(cmdBatch)})},
                                    &fraBatch),
                              stretch()})})),
         buttons({&cmdCust, &cmdAdjust, &cmdUpdate, &cmdAddBulk}, {&CancelButton, &cmdProcess})});
}

void frmBillProcess::Form_Load() {
    session.sBatchNo.clear();
    period.fill(session.gServerDate);
}

bool frmBillProcess::takePeriod() {
    if (!passes({{!period.isPicked(), "Select Billing Period", &period.cboMonth}}))
        return false;
    session.sBatchNo = m_batchNo = period.batchNo();
    return true;
}

void frmBillProcess::cmdLoad_Click() {
    if (!takePeriod())
        return;
    ui().setBusy(true);
    // The companies of another month pick nothing here.
    cboCoy.clear();
    fillGrid();
    selectCurrentBill();
    fillCompanies();
    ui().setBusy(false);
}

void frmBillProcess::fillCompanies() {
    cboCoy.clear();
    cboCoy.addItem("");
    cboCoy.addItem(allCompanies);
    Connection connection = program.openBilling();
    Recordset client(connection, Sql("select distinct retainCode,CoyName from vwBillingProcessAll  where batchNo='")
                                     << session.sBatchNo << "' order by coyname");
    for (; !client.eof(); client.moveNext())
        if (!client.isNull("retainCode"))
            cboCoy.addItem(client.text("CoyName") + " [" + client.text("retainCode") + "]", client.text("retainCode"));
    // It says what the list shows already.
    const auto choose = std::exchange(cboCoy.onClick, nullptr);
    cboCoy.setText(allCompanies);
    cboCoy.onClick = choose;
}

void frmBillProcess::cboCoy_Click() {
    if (!takePeriod())
        return;
    fillGrid();
    selectCurrentBill();
}

/// What mode 1 lists: the bills of the batch, those of one company where one is chosen.
Sql frmBillProcess::mode1Bills() const {
    Sql bills = Sql(" from vwBillingProcessAll  where batchNo='") << session.sBatchNo << "'";
    if (const auto code = cboCoy.picked<QString>())
        bills << " and retainCode='" << *code << "'";
    return bills;
}

void frmBillProcess::fillGrid() {
    lblAmt.setText("0");
    showBills(Sql("select ID,pno,retainID,CoyName,Fullname,ApprvCode,Diagnosis,AttdDate,BillNo,AmountBilled,AmountPaid,"
                  "Remarks,ClientCat as Tariff"),
              mode1Bills(), Sql(" order by coyname,fullname"));
    showTotal();
}

/// Mode 2: the bills of the batch that are not the total of their details.
void frmBillProcess::cmdShow_Click() {
    if (!takePeriod())
        return;
    showBills(Sql("select ID,pno,CoyName,Fullname,ApprvCode,Diagnosis,AttdDate,BillNo,AmountBilled,AmountPaid,Remarks,"
                  "ClientCat as Tariff"),
              Sql(" from vwBillingProcessDetailsGroupedVerifyDiff  where batchNo='") << session.sBatchNo << "'",
              Sql(" order by coyname,fullname"));
    showTotal();
    selectCurrentBill();
}

void frmBillProcess::txtSearch_Change() {
    if (!takePeriod())
        return;
    if (txtSearch.text().trimmed().isEmpty()) {
        grdData.clear();
        grdData2.clear();
        return;
    }
    clearDetails();
    Connection connection = program.openBilling();
    // Read whole: what is found is few, and its sort has cost the time already.
    grdData.load(Recordset(
        connection, Sql("select ID,pno,retainID,CoyName,Fullname,ApprvCode,Diagnosis,AttdDate,BillNo,"
                        "AmountBilled,AmountPaid,Remarks,ClientCat as Tariff from "
                        "vwBillingProcessAll  where batchNo='")
                        << session.sBatchNo << "' and fullname like '" << txtSearch.text() << "%' order by fullname"));
    lblCnt.setText(QString::number(grdData.rowCount()) + " records found");
    selectCurrentBill();
}

/// A batch of thousands shows its first bills before the others are read; so it is counted by the database, once they
/// are painted.
void frmBillProcess::showBills(const Sql& columns, const Sql& bills, const Sql& order) {
    clearDetails();
    grdData.load(Recordset::paged(program.openBilling(), Sql() << columns << bills << order));
    ui().processEvents();
    Connection connection = program.openBilling();
    const Recordset count(connection, Sql("select count(*) as n") << bills);
    lblCnt.setText(count.text("n") + " records found");
    findBillAgain();
}

void frmBillProcess::clearDetails() {
    session.gConsultID.clear();
    fillGridBills();
}

void frmBillProcess::findBillAgain() {
    const int row = lID.isEmpty() ? -1 : grdData.findRow("ID", lID);
    if (row >= 0)
        grdData.selectRow(row);
}

/// Of all batches, whatever the list shows.
void frmBillProcess::showTotal() {
    Connection connection = program.openBilling();
    const Recordset total(connection, Sql("select sum(AmountBilled) as totAmt from vwBillingProcessAll"));
    lblAmt.setText(total.eof() ? "**" : formatTwoDecimals(total.number("totAmt")));
}

void frmBillProcess::grdData_Click() {
    session.gConsultID = grdData.text("BillNo");
    lID = grdData.text("ID");
    fillGridBills();
}

void frmBillProcess::fillGridBills() {
    lblDetails.setText("0");
    if (session.gConsultID.isEmpty()) {
        grdData2.clear();
        return;
    }
    Connection connection = program.openBilling();
    grdData2.load(
        Recordset(connection, Sql("select  SNO,Service,Qty,Price as UnitPrice,SubTotal as Amount,BillNo,BillHead,"
                                  "BillType from vwBillingProcessDetailsAll where billno='")
                                  << session.gConsultID << "' ORDER BY date, fullname asc"));
    const Recordset total(
        connection, Sql("select  Amountbilled,Subtotal,Diff from vwBillingProcessDetailsGroupedVerify where billno='")
                        << session.gConsultID << "'");
    if (!total.eof())
        lblDetails.setText("Details Amt: " + formatTwoDecimals(total.number("SubTotal")));
}

} // namespace orvane
