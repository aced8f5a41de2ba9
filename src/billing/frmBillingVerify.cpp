#include "billing/frmBillingVerify.h"

#include "books/Words.h"
#include "data/words/Money.h"

namespace orvane {

double amountIn(const TextBox& box) {
    return parseAmount(box.text()).value_or(0);
}

namespace {

const QStringList& paymentPurposes() {
    static const QStringList purposes{"CARD",
                                      "CONSULTING",
                                      "CONSULTING AND DRUGS",
                                      "DRUGS",
                                      "GP REVIEW",
                                      "SPECIALIST REVIEW",
                                      "ANTE NATAL",
                                      "EXAMINATION",
                                      "ADMISSION",
                                      "GP FIRST VISIT",
                                      "SPECIALIST FIRST VISIT",
                                      "CONSULTING AND INJECTION",
                                      "CONSULTING AND DRESSING",
                                      "CONSULTING AND INJECTION/INJECTION"};
    return purposes;
}

QString memberName(const char* array, int index) {
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(array)).arg(index);
}

} // namespace

frmBillingVerify::PayWay::PayWay(Form& form, int index, const QString& caption)
    : lblAmt(form, memberName("lblAmt", index), caption), txtAmt(form, memberName("txtAmt", index)),
      lblAcctNo(form, memberName("lblAcctNo", index)) {
    txtAmt.numeric();
    if (index > 0)
        cboBank.emplace(form, memberName("cboBank", index), ComboBox::ListOnly);
}

frmBillingVerify::frmBillingVerify(Program& owner) : Screen(owner, "frmBillingVerify", "Collate/Verfy a Bill") {
    for (TextBox* amount : {&txtEmp, &txtHt, &txtProf, &txtNHIS})
        amount->numeric();
    for (TextBox* figure : {&txtEmp, &txtWord})
        figure->setLocked(true);
    txtWord.multiline();
    txtDiag.multiline();
    fraReceipt.holds(
        {&lblRct, &dtRctDate, &cboPayFor, &cboPay, &txtCheque, &txtEmp, &txtHt, &txtWord, &chkExact, &lblDep});
    for (PayWay& way : ways) {
        fraReceipt.holds({&way.lblAmt, &way.txtAmt, &way.lblAcctNo});
        if (way.cboBank)
            fraReceipt.holds({&*way.cboBank});
    }
    grdData.hide({"SNO", "Billtype", "conID", "clientcat", "Referal", "clientcatID", "dosage"});
    grdData.setFormat("Amount", "#,###.00");
    grdData.setFormat("UnitPrice", "#,###.00");
    grdData.setFormat("Qty", "#,##;(#,##0)");
    connectHandlers();
}

void frmBillingVerify::connectHandlers() {
    cmdList.onClick = [this] { cmdList_Click(); };
    cmdAdm.onClick = [this] { cmdAdm_Click(); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
    txtSearch.onEnter = [this] { cmdOK_Click(); };
    cmdAdd.onClick = [this] { cmdAdd_Click(); };
    cboVehNo.onClick = [this] { cboVehNo_Click(); };
    cmdRefresh.onClick = [this] { cmdRefresh_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
    OKButton.onClick = [this] { OKButton_Click(); };

    chkRct.onClick = [this] { chkRct_Click(); };
    chkExact.onClick = [this] { chkExact_Click(); };
    chkDep.onClick = [this] { chkDep_Click(); };
    chkCurr.onClick = [this] { chkCurr_Click(); };
    txtEmp.onChange = [this] { txtDuty.setText(txtEmp.text().isEmpty() ? QString() : getValInWord(amountIn(txtEmp))); };
    txtHt.onChange = [this] { txtHt_Change(); };
    for (int i = 0; i < int(ways.size()); ++i) {
        ways[size_t(i)].txtAmt.onChange = [this] { txtAmt_Change(); };
        if (ways[size_t(i)].cboBank)
            ways[size_t(i)].cboBank->onClick = [this, i] { cboBank_Click(i); };
    }

    cmdAddBill.onClick = [this] { cmdAddBill_Click(); };
    cmdPrice.onClick = [this] { cmdPrice_Click(); };
    grdData.onDblClick = [this] { cmdPrice_Click(); };
    cmdUnBilled.onClick = [this] { cmdUnBilled_Click(); };
    cmdPresc.onClick = [this] { cmdPresc_Click(); };
    cmdDispense.onClick = [this] { cmdDispense_Click(); };
    cmdLastDiag.onClick = [this] { cmdLastDiag_Click(); };
    cmdAcct.onClick = [this] { cmdAcct_Click(); };
    cmdCoy.onClick = [this] { cmdCoy_Click(); };
    cmdSplit.onClick = [this] { cmdSplit_Click(); };
    cmdExt.onClick = [this] { cmdExt_Click(); };
    cmdRev.onClick = [this] { cmdRev_Click(); };
    cmdPR.onClick = [this] { cmdPR_Click(); };
    cmdPrint.onClick = [this] { cmdPrint_Click(); };

    cmdBill.onClick = [this] { cmdBill_Click(); };
    cmdNHIS.onClick = [this] { cmdNHIS_Click(); };
    cmdCap.onClick = [this] { cmdCap_Click(); };
}

void frmBillingVerify::Form_Load() {
    SSTab1.setTab(0);
    dtAdmit.clear();
    dtDisch.clear();
    dtRctDate.clear();
    dtDate.setDate(session.gServerDate);
    DTPicker1.setDate(today());
    DTPicker2.setDate(today());
    fillLists();
    enableFields();
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
    cboPayFor.addItems(paymentPurposes());
    cboPay.addItems({"CASH", "CHEQUE", "POS", "OTHERS"});
    Connection connection = program.openBilling();
    cboHMO.addItem("(ALL)");
    for (Recordset rows(connection,
                        Sql("select retainName,retainID,retainCode from hretainerShip order by retainNAME "));
         !rows.eof(); rows.moveNext()) {
        const QString id = rows.text("retainID");
        cboHMO.addItem(rows.text("retainName") + QLatin1Char('[') + id + QLatin1Char(']'), id);
    }
    cboHMO.setListIndex(0);
    if (!session.gAcctPostOn)
        return;
    for (Recordset rows(connection,
                        Sql("select distinct AccountName,AccountNo from vwAccountsInfo where groupID='1220000'  "
                            "order by AccountName"));
         !rows.eof(); rows.moveNext()) {
        const QString account = rows.text("AccountNo");
        for (PayWay& way : ways)
            if (way.cboBank)
                way.cboBank->addItem(rows.text("AccountName") + " [" + account + QLatin1Char(']'), account);
    }
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
    return row({field("Attendance bet&ween", DTPicker1), field("and", DTPicker2), field("C&lient", cboHMO, 22),
                cell(chkAll), cell(cmdList), cell(cmdAdm), stretch(), field("Searc&h by BillNo", txtSearch, 16),
                cell(cmdOK)});
}

Layout frmBillingVerify::billLayout() const {
    using namespace orvane::layout;
    return row(
        {growing(cell(grdData)),
         card({field("Amount Generated", lblGen), field("Amount Billed", lblBilled), field("Amount Paid", lblPaid),
               field("Amount Billed:", lblSub), field("Fresh Bill:", lblTotal), field("Total Bill:", lblCurr),
               large("Bill Payable:", lblAmtDue), cell(txtDuty), row({field("Prof Fee %", txtProf, 6), cell(cmdBill)}),
               row({field("NHIS Fee %", txtNHIS, 6), cell(cmdNHIS)}), cell(cmdCap)})});
}

Layout frmBillingVerify::receiptLayout() const {
    using namespace orvane::layout;
    Layout means = column({cell(chkExact)});
    for (const PayWay& way : ways) {
        Layout line = row({field(way.lblAmt.caption(), way.txtAmt, 14), field("Account", way.lblAcctNo, 12)});
        if (way.cboBank)
            line.children.append(field("Bank", *way.cboBank, 24));
        means.children.append(line);
    }
    means.children.append(field("Cheque No", txtCheque, 14));
    return column({cell(lblScreen), row({cell(chkRct), cell(cmdRev), cell(chkDep), cell(chkCurr), stretch()}),
                   group("Receipt",
                         {row({column({field("Receipt No", lblRct), field("Receipt Date", dtRctDate),
                                       field("Being Payment for", cboPayFor, 30), field("Amount Paid", lblDep),
                                       field("Bill Payable:", txtEmp, 16), field("Fresh Payment", txtHt, 16),
                                       field("Pay Type", cboPay, 20), field("Amount in Words", txtWord, 30)}),
                               means})},
                         &fraReceipt),
                   stretch()});
}

Layout frmBillingVerify::diagnosisLayout() const {
    using namespace orvane::layout;
    return column(
        {growing(field("Diagnosis", txtDiag)), row({cell(cmdPresc), cell(cmdDispense), cell(cmdLastDiag), stretch()})});
}

Layout frmBillingVerify::layout() const {
    using namespace orvane::layout;
    return column({filterLayout(), field("Patie&nt", cboVehNo),
                   facts({{"Bill No", &lblBill},
                          {"Client", &lblCoy},
                          {"Category", &lblDate},
                          {"Fee for service", &lblDisplay},
                          {"Last Attnd Date:", &lblDate2},
                          {"Prev Attnd:", &lblDateLast}}),
                   row({field("&Bill date", dtDate), field("Ad&mission", dtAdmit), field("Discharge", dtDisch),
                        field("Approval code", txtApprv, 18), stretch()}),
                   growing(tabs(SSTab1, {orvane::layout::page("Bill", {billLayout()}),
                                         orvane::layout::page("Receipt", {receiptLayout()}),
                                         orvane::layout::page("Diagnosis && Treatment", {diagnosisLayout()})})),
                   buttons({&cmdAdd, &cmdAddBill, &cmdPrice, &cmdUnBilled, &cmdAcct, &cmdCoy, &cmdSplit, &cmdExt},
                           {&cmdPR, &cmdPrint, &cmdRefresh, &cmdCancel, &OKButton})});
}

} // namespace orvane
