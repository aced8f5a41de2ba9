#include "accounts/frmRevCashAdjust.h"

#include "accounts/RevenueReport.h"
#include "books/CashSpread.h"
#include "data/words/Money.h"

namespace orvane {

frmRevCashAdjust::frmRevCashAdjust(Program& owner) : Screen(owner, "frmRevCashAdjust", "Cash Receipt Details ") {
    DTPicker1.setRangeEnd(&DTPicker2);
    for (TextBox* shown : {&txtItem, &txtBillNo, &txtDate})
        shown->setLocked(true);
    grdData.setToolTip("Double Click a row to distribute it");
    grdData.setFormat("AmountPaid", "#,###.00");
}

Layout frmRevCashAdjust::layout() const {
    using namespace orvane::layout;
    return column(
        {flow({field("Attendance Between", DTPicker1), field("and", DTPicker2), field("Select Item", cboGroup, 26),
               cell(cmdList), stretch(), field("Received", lblRecvd), field("Distributed", lblDist)}),
         growing(cell(grdData)),
         group("Distribution",
               {flow({field("Receipt No", txtItem, 14), field("Bill No", txtBillNo, 14), field("Date", txtDate, 11),
                      field("Amount", txtAmt, 12), field("Revenue Type", cboRev, 24), stretch(), cell(OKButton)})}),
         buttons({&cmdView, &cmdDetails, &cmdCash, &cmdExport}, {&CancelButton})});
}

void frmRevCashAdjust::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
    cboRev.addItem("");
    Connection connection = program.openBilling();
    Recordset type(connection, Sql("select distinct revType from hRevenueType where Active='YES'  order by revType"));
    for (; !type.eof(); type.moveNext())
        cboRev.addItem(type.text("revType"));
    cboGroup.addItem("");
    cboGroup.addItem("UnDistributed Cash", int(Undistributed));
    cboGroup.addItem("Incomplete Distribution", int(Incomplete));
}

bool frmRevCashAdjust::isRangeGiven() {
    return passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Attendance Date Range", &DTPicker1}});
}

/// What is over-distributed is listed, and left out of the report.
Sql frmRevCashAdjust::receipts(bool forReport) const {
    const QDate first = DTPicker1.date(), last = DTPicker2.date();
    if (cboGroup.picked<int>() == Undistributed)
        return Sql("select ReceiptDate ,ReceiptNo ,AmountPaid ,paymentFor,billNO   from Payments Where ReceiptDate "
                   "Between '")
               << first << "' and '" << last
               << "'and ReceiptNo  not in (select ReceiptNo  from PaymentDetails  ) order by ReceiptDate";
    Sql sql("select ReceiptDate ,ReceiptNo ,Diff as AmountPaid ,paymentFor,billNO   from vwPaymentDetailsSumm2 ");
    if (forReport)
        return sql << "Where Diff > 0 and ReceiptDate Between '" << first << "' and '" << last
                   << "' order by ReceiptDate";
    return sql << "Where Diff <> 0 and ReceiptDate Between '" << first << "' and '" << last << "' order by ReceiptDate";
}

void frmRevCashAdjust::list() {
    if (!isRangeGiven() || !passes({{cboGroup.text().isEmpty(), "Specify Item Display", &cboGroup}}))
        return;
    ui().setBusy(true);
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, receipts(false)));
    showTotals(connection);
    ui().setBusy(false);
}

void frmRevCashAdjust::showTotals(Connection& connection) {
    const CashTotals totals = readCashTotals(connection, DTPicker1.date(), DTPicker2.date());
    lblRecvd.setText(formatTwoDecimals(totals.received));
    lblDist.setText(formatTwoDecimals(totals.distributed));
}

void frmRevCashAdjust::grdData_DblClick() {
    if (grdData.currentRow() < 0)
        return;
    m_date = grdData.date("ReceiptDate");
    txtItem.setText(grdData.text("ReceiptNo"));
    txtBillNo.setText(grdData.text("billNO"));
    txtDate.setText(m_date.toString("dd/MM/yyyy"));
    txtAmt.setText(grdData.text("AmountPaid"));
    cboRev.setListIndex(0);
    cboRev.setFocus();
}

void frmRevCashAdjust::clearEntry() {
    for (TextBox* entry : {&txtItem, &txtBillNo, &txtDate, &txtAmt})
        entry->clear();
    cboRev.setListIndex(0);
}

void frmRevCashAdjust::OKButton_Click() {
    save<Saved>(
        {.button = OKButton,
         .action = "CASH DISTRIBUTION",
         .allowed =
             [this] {
                 return passes({{txtItem.text().trimmed().isEmpty(), "Specify ReceiptNo for this Item", &grdData},
                                {cboRev.text().isEmpty(), "Please Specify Revenue Type", &cboRev}});
             },
         .step = [this](Books& books) -> Given<Saved> {
             addHandShare(books, {.receiptNo = txtItem.text(),
                                  .billNo = txtBillNo.text(),
                                  .date = m_date,
                                  .amount = round2(parseAmount(txtAmt.text()).value_or(0)),
                                  .revType = cboRev.text()});
             return Saved{};
         },
         .follow =
             [this](const Saved&) {
                 program.writeAuditTrail({"Cash Distribution Adjustment: " + txtItem.text() + '/' + txtAmt.text(),
                                          txtBillNo.text(), cboRev.text()});
                 list();
                 clearEntry();
             },
         .trailRows = 1});
}

void frmRevCashAdjust::cmdCash_Click() {
    if (!isRangeGiven())
        return;
    rebuildCash(program.desk(), DTPicker1.date(), DTPicker2.date());
    showRevenueReport(program, {"CASH",
                                Sql("SELECT     ReceiptDate, ReceiptNo, AmountPaid, RevType, billNO, AmountToPay, "
                                    "AccountNo FROM vwPaymentDetails where ReceiptDate Between '")
                                    << DTPicker1.date() << "' And '" << DTPicker2.date() << "'",
                                "Fee Paying Patients", DTPicker1.date(), DTPicker2.date()});
}

void frmRevCashAdjust::report(const QString& mode) {
    if (isRangeGiven() && passes({{cboGroup.text().isEmpty(), "Specify Item", &cboGroup}}))
        showRevenueReport(program, {mode, receipts(true), cboGroup.text(), DTPicker1.date(), DTPicker2.date()});
}

void frmRevCashAdjust::cmdExport_Click() {
    if (isRangeGiven() && passes({{cboGroup.text().isEmpty(), "Specify Patient Company", &cboGroup}}))
        exportRevenue(program, DTPicker1.date(), DTPicker2.date(), "(ALL)");
}

} // namespace orvane
