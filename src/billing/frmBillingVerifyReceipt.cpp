#include "billing/frmBillingVerify.h"

#include "books/Words.h"
#include "data/words/Money.h"
#include "receipts/PatientAccount.h"

namespace orvane {

namespace {

constexpr size_t chequeWay = 2;

} // namespace

void frmBillingVerify::chkRct_Click() {
    if (chkRct.isChecked() && lblBill.text().isEmpty()) {
        program.box("Specify Name of Patient");
        chkRct.setChecked(false);
        return;
    }
    followReceiptBox();
}

/// The receipt's fields follow its tick.
void frmBillingVerify::followReceiptBox() {
    fraReceipt.setEnabled(chkRct.isChecked());
    if (!chkRct.isChecked())
        clearReceipt();
    dtRctDate.setDate(today());
}

void frmBillingVerify::clearReceipt() {
    chkExact.setChecked(false);
    for (int i = 0; i < int(ways.size()); ++i) {
        PayWay& way = ways[size_t(i)];
        way.txtAmt.clear();
        if (way.cboBank)
            way.cboBank->setListIndex(-1);
        way.lblAcctNo.setText(defaultAccount(i));
    }
    for (TextBox* box : {&txtHt, &txtWord, &txtCheque})
        box->clear();
    cboPayFor.setText({});
    cboPay.setText({});
    m_namedWays.clear();
    lblRct.clear();
}

/// The four ways make the payment, and name themselves while the cashier has named nothing else.
void frmBillingVerify::txtAmt_Change() {
    double sum = 0;
    bool given = false;
    QStringList named;
    for (const PayWay& way : ways) {
        const double amount = round2(amountIn(way.txtAmt)); // so that the ways make up the payment
        given = given || !way.txtAmt.text().isEmpty();
        if (amount <= 0)
            continue;
        sum += amount;
        named << way.lblAmt.text();
    }
    txtHt.setText(given ? formatTwoDecimals(sum) : QString());
    if (cboPay.text().isEmpty() || cboPay.text() == m_namedWays) {
        m_namedWays = named.join(QLatin1Char('/'));
        cboPay.setText(m_namedWays);
    }
}

void frmBillingVerify::txtHt_Change() {
    txtWord.setText(txtHt.text().isEmpty() ? QString() : getValInWord(amountIn(txtHt)));
}

void frmBillingVerify::chkExact_Click() {
    ways[0].txtAmt.setText(chkExact.isChecked() ? txtEmp.text() : "0");
}

void frmBillingVerify::chkDep_Click() {
    if (chkDep.isChecked())
        cboPayFor.setText("DEPOSIT");
}

void frmBillingVerify::chkCurr_Click() {
    txtEmp.setText(chkCurr.isChecked() ? lblSub.text() : lblAmtDue.text());
}

QString frmBillingVerify::defaultAccount(int way) const {
    const QString accounts[] = {session.gAcctNoCash, session.gAcctNoPOS, session.gAcctNoCheque,
                                session.gAcctNoTransfer};
    return accounts[way];
}

void frmBillingVerify::cboBank_Click(int way) {
    PayWay& payWay = ways[size_t(way)];
    const int picked = payWay.cboBank->listIndex();
    payWay.lblAcctNo.setText(picked < 0 ? defaultAccount(way) : payWay.cboBank->itemData(picked).toString());
}

bool frmBillingVerify::refuseReceipt(const QString& text, Control& control, const QString& title) {
    program.box(text, Icon::None, title);
    SSTab1.setTab(1);
    control.setFocus();
    return false;
}

bool frmBillingVerify::isReceiptComplete() {
    if (txtHt.text().isEmpty())
        return refuseReceipt("Please enter Amount Paid", txtHt);
    if (cboVehNo.text().isEmpty())
        return refuseReceipt("Please enter Patient No", cboVehNo);
    if (dtRctDate.isEmpty())
        return refuseReceipt("Please enter Receipt Date", dtRctDate);
    if (cboPayFor.text().isEmpty())
        return refuseReceipt("Please enter Payment Purpose", cboPayFor);
    if (cboPay.text().isEmpty())
        return refuseReceipt("Please enter Payment type", cboPay);
    if (amountIn(ways[chequeWay].txtAmt) > 0 && txtCheque.text().trimmed().isEmpty())
        return refuseReceipt("Please enter Cheque No", txtCheque);
    // Money only comes in here; it goes back by a reversal on the receipt screen.
    if (amountIn(txtHt) <= 0)
        return refuseReceipt("Please enter Amount Paid", txtHt);
    if (amountIn(txtEmp) <= 0 && !chkDep.isChecked())
        return refuseReceipt("Please tick Deposit CheckBox to Specify Deposit", chkDep);
    if (session.gAcctPostOn)
        for (PayWay& way : ways)
            if (way.cboBank && amountIn(way.txtAmt) > 0 && way.cboBank->text().isEmpty())
                return refuseReceipt("Specify Bank Name for " + way.lblAmt.text(), *way.cboBank, "Bank Name");
    return true;
}

/// A fresh receipt number into lblRct; without one lblRct stays empty and the screen closes.
void frmBillingVerify::genIDNo() {
    lblRct.clear();
    Connection connection = program.openBilling();
    const Recordset visit(connection, Sql("select clinicType from qryhVisitsForAttend where consultID ='")
                                          << m_bill.consultID << "'");
    m_receiptClinic = visit.eof() ? QString() : visit.text("clinicType");
    const QString held = session.gIDNo;
    program.fetchIDNo(connection, "RECEIPT2");
    if (session.gIDNo.isEmpty() || session.gIDNo == held) {
        program.box("Unable to generate No!!! Function getIDNo Failed! Receipt");
        unload();
        return;
    }
    lblRct.setText(session.gIDNo);
}

ReceiptEntry frmBillingVerify::receiptOnScreen() const {
    ReceiptEntry receipt;
    receipt.receiptDate = dtRctDate.date();
    receipt.receiptNo = lblRct.text();
    receipt.clinicID = m_receiptClinic;
    receipt.billNo = m_bill.consultID;
    receipt.pno = m_bill.pno;
    receipt.paymentFor = cboPayFor.text();
    receipt.amountBilled = amountIn(txtEmp);
    receipt.amountPaid = round2(amountIn(txtHt));
    receipt.amountInWord = txtWord.text();
    receipt.payType = cboPay.text();
    if (cboPay.text() == QLatin1String("CHEQUE") || amountIn(ways[chequeWay].txtAmt) > 0)
        receipt.chequeNo = txtCheque.text().trimmed();
    receipt.time = session.gServerTime;
    receipt.remarks = "PAYMENT";
    return receipt;
}

/// Everything that a receipt writes, inside the transaction of the save.
void frmBillingVerify::saveReceipt(Connection& connection, const ReceiptEntry& receipt) {
    session.dPostDate = today();
    addPayment(program, connection, receipt);
    connection.execute(Sql("update Billing set AmountPaid=isnull(AmountPaid,0)+")
                       << receipt.amountPaid << " where BillNo = '" << receipt.billNo << "'");
    QVector<PaymentWay> payments;
    for (const PayWay& way : ways)
        payments.append({way.lblAmt.text(), way.lblAcctNo.text(), round2(amountIn(way.txtAmt))});
    addPaymentTypes(connection, receipt, payments);
    distributePayment(program, connection, receipt);
    postPatientTran(program, connection, session.gServerDate, receipt.pno, receipt.billNo, receipt.amountPaid,
                    session.gBillTo, "Payment");
    program.writeAuditTrail(
        {"insert Bill Summ for: " + cboVehNo.text(), receipt.billNo, formatTwoDecimals(receipt.amountBilled)});
    program.writeAuditTrail(
        {"insert Payment for: " + cboVehNo.text(), receipt.billNo, formatTwoDecimals(receipt.amountPaid)});
}

} // namespace orvane
