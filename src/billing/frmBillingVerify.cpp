#include "billing/frmBillingVerify.h"

namespace orvane {

frmBillingVerify::frmBillingVerify(Program& owner) : Screen(owner, "frmBillingVerify", "Collate/Verfy a Bill") {
    for (TextBox* percent : {&txtProf, &txtNHIS})
        percent->numeric();
    txtDiag.multiline();
    grdData.hide({"SNO", "Billtype", "conID", "clientcat", "Referal", "clientcatID", "dosage"});
    grdData.setFormat("Amount", "#,###.00");
    grdData.setFormat("UnitPrice", "#,###.00");
    grdData.setFormat("Qty", "#,##;(#,##0)");
    txtSearch.onEnter = [this] { cmdOK_Click(); };
    receipt.txtEmp.onChange = [this] { txtEmp_Change(); };
}

void frmBillingVerify::Form_Load() {
    SSTab1.setTab(0);
    dtAdmit.clear();
    dtDisch.clear();
    dtDate.setDate(session.gServerDate);
    visits.setDates(today());
    fillLists();
    enableFields();
    receipt.dtRctDate.clear();
    SetButtons();
}

/// The worklist hands over the visit that its user has picked.
void frmBillingVerify::Form_Activate() {
    // Taken even where it is not followed: a later opening of this screen must not change the visit in hand.
    const QString picked = std::exchange(session.gSearchBillNo, QString());
    if (picked.isEmpty() || settlesSave())
        return;
    txtSearch.setText(picked);
    cmdOK_Click();
}

void frmBillingVerify::fillLists() {
    Connection connection = program.openBilling();
    cboHMO.addItem("(ALL)");
    for (Recordset rows(connection,
                        Sql("select retainName,retainID,retainCode from hretainerShip order by retainNAME "));
         !rows.eof(); rows.moveNext()) {
        const QString id = rows.text("retainID");
        cboHMO.addItem(rows.text("retainName") + "[" + id + "]", id);
    }
    cboHMO.setListIndex(0);
    if (session.gAcctPostOn)
        receipt.fillBanks(connection);
}

/// The entry fields as they are before a visit is in hand.
void frmBillingVerify::enableFields() {
    for (DatePicker* date : {&dtAdmit, &dtDisch}) {
        date->setEnabled(true);
        date->setLocked(false);
    }
    followReceiptBox();
}

void frmBillingVerify::SetButtons() {
    for (Button* button : {&cmdAddBill, &cmdNHIS, &cmdBill, &cmdCoy, &cmdSplit, &cmdCancel, &OKButton})
        button->setEnabled(true);
    cmdPrint.setEnabled(false);
}

QDate frmBillingVerify::today() const {
    return ui().now().date();
}

Layout frmBillingVerify::filterLayout() const {
    using namespace orvane::layout;
    return flow({field("Attendance bet&ween", visits.DTPicker1), field("and", visits.DTPicker2),
                 field("C&lient", cboHMO, 22), cell(chkAll), cell(visits.get), cell(cmdAdm), stretch(),
                 row({field("Searc&h by BillNo", txtSearch, 16), cell(cmdOK)})});
}

/// The fees stand below the grid, which gives way for them: the card keeps what is payable in sight.
Layout frmBillingVerify::billLayout() const {
    using namespace orvane::layout;
    const Layout fees = flow({row({field("Prof Fee %", txtProf, 6), cell(cmdBill)}),
                              row({field("NHIS Fee %", txtNHIS, 6), cell(cmdNHIS)}), stretch(), cell(cmdCap)});
    return row({growing(column({growing(cell(grdData)), fees})),
                card({field("Amount Generated", lblGen), field("Amount Billed", lblBilled),
                      field("Amount Paid", lblPaid), field("Amount Billed:", lblSub), field("Fresh Bill:", lblTotal),
                      field("Total Bill:", lblCurr), large("Bill Payable:", lblAmtDue), cell(txtDuty)})});
}

Layout frmBillingVerify::receiptLayout() const {
    using namespace orvane::layout;
    return column({cell(lblScreen), row({cell(chkRct), cell(cmdRev), cell(chkDep), cell(chkCurr), stretch()}),
                   receipt.layout(), stretch()});
}

Layout frmBillingVerify::diagnosisLayout() const {
    using namespace orvane::layout;
    return column(
        {growing(field("Diagnosis", txtDiag)), row({cell(cmdPresc), cell(cmdDispense), cell(cmdLastDiag), stretch()})});
}

Layout frmBillingVerify::layout() const {
    using namespace orvane::layout;
    return column({filterLayout(), field("Patie&nt", visits.cboVehNo),
                   facts({{"Bill No", &lblBill},
                          {"Client", &lblCoy},
                          {"Category", &lblDate},
                          {"Fee for service", &lblDisplay},
                          {"Last Attnd Date:", &lblDate2},
                          {"Prev Attnd:", &lblDateLast}}),
                   flow({field("&Bill date", dtDate), field("Ad&mission", dtAdmit), field("Discharge", dtDisch),
                         field("Approval code", txtApprv, 18)}),
                   growing(tabs(SSTab1, {orvane::layout::page("Bill", {billLayout()}),
                                         orvane::layout::page("Receipt", {receiptLayout()}),
                                         orvane::layout::page("Diagnosis && Treatment", {diagnosisLayout()})})),
                   buttons({&cmdAdd, &cmdAddBill, &cmdPrice, &cmdUnBilled, &cmdAcct, &cmdCoy, &cmdSplit, &cmdExt},
                           {&cmdPR, &cmdPrint, &cmdRefresh, &cmdCancel, &OKButton})});
}

} // namespace orvane
