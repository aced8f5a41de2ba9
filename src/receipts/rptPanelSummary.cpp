#include "receipts/rptPanelSummary.h"

#include "receipts/ListEntry.h"
#include "receipts/frmCashReceipt.h"

namespace orvane {

rptPanelSummary::rptPanelSummary(Program& owner) : Screen(owner, "rptPanelSummary", "Print Receipt") {
    cmdInv.onClick = [this] { cmdInv_Click(); };
    cboVehNo.onClick = [this] { cboVehNo_Click(); };
    OKButton.onClick = [this] { OKButton_Click(); };
    CancelButton.onClick = [this] { unload(); };
}

Layout rptPanelSummary::layout() const {
    using namespace orvane::layout;
    return column({row({field("Receipt Date between", DTPicker1), field("and", DTPicker2), cell(cmdInv), stretch()}),
                   cell(lblPanel), cell(cboVehNo, 60), stretch(), buttons({}, {&CancelButton, &OKButton})});
}

void rptPanelSummary::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    DTPicker1.setDate(today);
    DTPicker2.setDate(today);
    lblPanel.setText(session.sRptPanelLabel);
    if (showsClients()) {
        DTPicker1.setVisible(false);
        DTPicker2.setVisible(false);
        cmdInv.setCaption("&Get Clients");
        OKButton.setCaption("&Display Bills");
    }
}

bool rptPanelSummary::showsClients() const {
    return session.sRptPanelMode == "Coy";
}

void rptPanelSummary::cmdInv_Click() {
    cboVehNo.clear();
    session.sWorkPno.clear();
    if (showsClients())
        listClients();
    else
        listReceipts();
    cboVehNo.setFocus();
}

void rptPanelSummary::listReceipts() {
    Connection connection = program.openBilling();
    for (Recordset receipts(connection,
                            Sql("select distinct receiptNo,fullname,retainName,receiptDate as date from qrypayments "
                                "where receiptdate between '")
                                << DTPicker1.date() << "' AND '" << DTPicker2.date() << "' order by fullname");
         !receipts.eof(); receipts.moveNext())
        cboVehNo.addItem(receipts.text("fullname") + ' ' + receipts.text("retainName") + " @" +
                         receipts.date("date").toString("dd/MM/yyyy") + " [" + receipts.text("receiptNo") + ']');
}

void rptPanelSummary::listClients() {
    Connection connection = program.openBilling();
    for (Recordset clients(connection, Sql("select RetainCode,ClientName from vwhretainership order by ClientName"));
         !clients.eof(); clients.moveNext())
        cboVehNo.addItem(clients.text("ClientName") + " [" + clients.text("RetainCode") + ']');
}

void rptPanelSummary::cboVehNo_Click() {
    session.sWorkPno = readListEntry(cboVehNo.text()).number;
}

void rptPanelSummary::OKButton_Click() {
    if (cboVehNo.listIndex() < 0) {
        program.box("Please " + lblPanel.text());
        cboVehNo.setFocus();
        return;
    }
    cboVehNo_Click(); // another screen may have worked on another number meanwhile
    if (showsClients())
        program.open("FrmProcessedBill");
    else
        showCashReceipt(program, session.sWorkPno);
}

} // namespace orvane
