#include "receipts/rptPanelSummary.h"

#include "receipts/frmCashReceipt.h"

namespace orvane {

rptPanelSummary::rptPanelSummary(Program& owner) : Screen(owner, "rptPanelSummary", "Print Receipt") {}

Layout rptPanelSummary::layout() const {
    using namespace orvane::layout;
    return column({row({field("Receipt Date between", DTPicker1), field("and", DTPicker2), cell(cmdInv), stretch()}),
                   cell(lblPanel), row({field("Select", cboVehNo, 60), stretch()}), stretch(),
                   buttons({}, {&CancelButton, &OKButton})});
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

/// With the key of each: two paper receipts may bear one number.
void rptPanelSummary::listReceipts() {
    Connection connection = program.openBilling();
    const Sql sql =
        Sql("select distinct receiptNo,fullname,retainName,receiptDate as date,SNo from qrypayments where receiptdate "
            "between '")
        << DTPicker1.date() << "' AND '" << DTPicker2.date() << "' order by fullname";
    for (Recordset receipts(connection, sql); !receipts.eof(); receipts.moveNext()) {
        const Entry receipt{receipts.text("receiptNo"), receipts.integer("SNo")};
        cboVehNo.addItem(receipts.text("fullname") + ' ' + receipts.text("retainName") + " @" +
                             receipts.date("date").toString("dd/MM/yyyy") + " [" + receipt.number + ']',
                         QVariant::fromValue(receipt));
    }
}

void rptPanelSummary::listClients() {
    Connection connection = program.openBilling();
    const Sql sql("select RetainCode,ClientName from vwhretainership order by ClientName");
    for (Recordset clients(connection, sql); !clients.eof(); clients.moveNext()) {
        const Entry client{clients.text("RetainCode")};
        cboVehNo.addItem(clients.text("ClientName") + " [" + client.number + ']', QVariant::fromValue(client));
    }
}

void rptPanelSummary::cboVehNo_Click() {
    session.sWorkPno = cboVehNo.picked<Entry>().value_or(Entry()).number;
}

void rptPanelSummary::OKButton_Click() {
    const auto picked = cboVehNo.picked<Entry>();
    if (!passes({{!picked, "Please " + lblPanel.text(), &cboVehNo}}))
        return;
    session.sWorkPno = picked->number; // another screen may have worked on another number meanwhile
    if (showsClients())
        program.open("FrmProcessedBill");
    else
        showCashReceipt(program, picked->number, picked->sno);
}

} // namespace orvane
