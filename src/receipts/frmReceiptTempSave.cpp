// Saving a receipt or a reversal on frmReceiptTemp.
#include "receipts/frmReceiptTemp.h"

#include "data/words/Money.h"
#include "receipts/PatientAccount.h"
#include "receipts/ReceiptRows.h"
#include "receipts/VisitFacts.h"
#include "receipts/frmCashReceipt.h"

namespace orvane {

void frmReceiptTemp::OKButton_Click() {
    if (settlesSave() || !checkFields())
        return;
    if (!program.question("Are you sure to save?", "About to save"))
        return;
    if (saveOnce(
            OKButton, [this] { return save(); }, [this] { afterSave(); }))
        return;
    program.box(m_receipt.refusal);
    unload();
}

void frmReceiptTemp::afterSave() {
    const FormedNumber receipt = m_receipt;
    const bool wasReversal = m_reversal;
    // At once, so that no fault in what follows leaves an entry that could be saved again.
    resetFields();
    setEntry(false);
    program.box("Record Succesfully saved");
    if (!wasReversal)
        showCashReceipt(program, receipt.number);
    loadGrid(true);
    grdData.selectRow(grdData.findRow("ReceiptNo", receipt.number));
}

bool frmReceiptTemp::checkFields() {
    if (lblRct.text().isEmpty()) {
        program.box("Receipt No Required");
        return false;
    }
    if (txtHt.text().trimmed().isEmpty()) {
        program.box("Please enter Amount Paid");
        txtHt.setFocus();
        return false;
    }
    if (parseAmount(txtEmp.text()).value_or(0) < 0 && !chkRev.isChecked()) {
        program.box(QStringLiteral(
            "Receipt cannot be Issued!!! Tick Reversal Checkbox to Reverse OR Customer Qualifies for REFUND"));
        return false;
    }
    if (!isCustomerPicked()) {
        program.box("Please enter Customer Name");
        cboVehNo.setFocus();
        return false;
    }
    const struct {
        ComboBox& box;
        const char* text;
    } required[] = {{cboCat, "Please enter Payment Purpose"}, {cboPay, "Please enter Payment type"}};
    for (const auto& field : required) {
        if (field.box.text().isEmpty()) {
            program.box(field.text);
            field.box.setFocus();
            return false;
        }
    }
    if (m_reversal && !chkRev.isChecked()) {
        program.box("Please tick the reversal Checkbox");
        return false;
    }
    const std::optional<double> amount = parseAmount(txtHt.text());
    // Money goes back only by a reversal of a receipt: a text or a minus typed on a fresh receipt is no payment.
    if (!amount || (*amount < 0 && !m_reversal)) {
        program.box("Please enter Amount Paid");
        txtHt.setFocus();
        return false;
    }
    // A receipt without a date would be in no day's cash.
    if (dtDate.isEmpty()) {
        program.box("Please enter Receipt Date");
        dtDate.setFocus();
        return false;
    }
    return true;
}

/// A name that was typed and not picked is no bill to credit.
bool frmReceiptTemp::isCustomerPicked() const {
    return cboVehNo.listIndex() >= 0 && !m_billNo.isEmpty();
}

bool frmReceiptTemp::save() {
    // In whole kobo, as it is printed: a reversal takes back what the grid shows.
    const double amount = round2(*parseAmount(txtHt.text()));
    session.gConsultID = m_billNo;
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    lblClinic2.setText(clinicOfVisit(connection, session.gConsultID));
    m_receipt = formReceiptNumber(program, connection, ReceiptForm::Generated);
    if (m_receipt.number.isEmpty())
        return false;
    writePayment(connection, m_receipt.number, amount);
    postPatientTran(program, connection, dtDate.date(), m_pno, m_billNo, amount, session.gBillTo, "Payment");
    program.writeAuditTrail({(m_reversal ? "Reversal Entry (Payment) for: " : "insert Payment for: ") + cboVehNo.text(),
                             session.gConsultID, QString::number(amount, 'f', 2)});
    settleBill(connection, amount);
    transaction.commit({.action = name()});
    return true;
}

void frmReceiptTemp::writePayment(Connection& connection, const QString& receiptNo, double amount) {
    ReceiptEntry receipt;
    receipt.receiptDate = dtDate.date();
    receipt.receiptNo = receiptNo;
    receipt.clinicID = "SALES";
    receipt.billNo = m_billNo;
    receipt.pno = m_pno;
    receipt.paymentFor = cboCat.text();
    receipt.amountBilled = parseAmount(txtEmp.text()).value_or(0);
    receipt.amountPaid = amount;
    receipt.amountInWord = txtDuty.text();
    receipt.payType = cboPay.text();
    receipt.time = ui().now().time();
    receipt.remarks = m_reversal ? "REVERSAL for RctNo: " + m_reversedNo : "PAYMENT";
    addPayment(program, connection, receipt);
}

// A bill without a Billing row takes the receipt all the same.
void frmReceiptTemp::settleBill(Connection& connection, double amount) {
    Recordset bill(connection, Sql("select * from Billing where billno='") << session.gConsultID << "'");
    if (bill.eof())
        return;
    const double paid = bill.number("AmountPaid") + amount;
    bill.set("AmountPaid", paid);
    bill.set("isPaid", isPaidFlag(paid, bill.number("Amountbilled")));
    bill.update();
}

} // namespace orvane
