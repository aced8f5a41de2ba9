// Saving a receipt or a reversal on frmReceiptTemp.
#include "receipts/frmReceiptTemp.h"

#include "data/Money.h"
#include "receipts/PatientAccount.h"
#include "receipts/ReceiptNumber.h"
#include "receipts/ReceiptRows.h"
#include "receipts/frmCashReceipt.h"

namespace orvane {

void frmReceiptTemp::OKButton_Click() {
    if (!checkFields())
        return;
    if (!program.question(QStringLiteral("Are you sure to save?"), QStringLiteral("About to save")))
        return;
    const bool wasReversal = m_reversal;
    const QString refusal = save();
    if (!refusal.isEmpty()) {
        program.box(refusal);
        unload();
        return;
    }
    program.box(QStringLiteral("Record Succesfully saved"));
    if (!wasReversal)
        showCashReceipt(program, lblRct.text());
    m_reversal = false;
    cmdPrint.setEnabled(true);
    resetFields();
    setEntry(false);
    loadGrid(true);
}

bool frmReceiptTemp::checkFields() {
    if (lblRct.text().isEmpty()) {
        program.box(QStringLiteral("Receipt No Required"));
        return false;
    }
    if (txtHt.text().trimmed().isEmpty()) {
        program.box(QStringLiteral("Please enter Amount Paid"));
        txtHt.setFocus();
        return false;
    }
    if (parseAmount(txtEmp.text()).value_or(0) < 0 && !chkRev.isChecked()) {
        program.box(QStringLiteral(
            "Receipt cannot be Issued!!! Tick Reversal Checkbox to Reverse OR Customer Qualifies for REFUND"));
        return false;
    }
    const struct {
        ComboBox& box;
        const char* text;
    } required[] = {{cboVehNo, "Please enter Customer Name"},
                    {cboCat, "Please enter Payment Purpose"},
                    {cboPay, "Please enter Payment type"}};
    for (const auto& field : required) {
        if (field.box.text().isEmpty()) {
            program.box(QLatin1String(field.text));
            field.box.setFocus();
            return false;
        }
    }
    if (m_reversal && !chkRev.isChecked()) {
        program.box(QStringLiteral("Please tick the reversal Checkbox"));
        return false;
    }
    const std::optional<double> amount = parseAmount(txtHt.text());
    // Money goes back only by a reversal of a receipt: a text or a minus typed on a fresh receipt is no payment.
    if (!amount || (*amount < 0 && !m_reversal)) {
        program.box(QStringLiteral("Please enter Amount Paid"));
        txtHt.setFocus();
        return false;
    }
    return true;
}

QString frmReceiptTemp::save() {
    const double amount = *parseAmount(txtHt.text());
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    const Recordset visit(connection, Sql("select clinicType from qryhVisitsForAttend where consultID ='")
                                          << session.gConsultID << "'");
    lblClinic2.setText(visit.eof() ? QString() : visit.text(QStringLiteral("clinicType")));
    const ReceiptNumber receipt = formReceiptNumber(program, connection, ReceiptForm::Generated);
    if (receipt.number.isEmpty())
        return receipt.refusal;
    lblRct.setText(receipt.number);
    writePayment(connection, amount);
    postPatientTran(program, connection, dtDate.date(), m_pno, txtBill.text(), amount, session.gBillTo,
                    QStringLiteral("Payment"));
    program.writeAuditTrail(
        session.gUsername,
        (m_reversal ? QStringLiteral("Reversal Entry (Payment) for: ") : QStringLiteral("insert Payment for: ")) +
            cboVehNo.text(),
        session.gConsultID, QString::number(amount, 'f', 2), session.sComputerName);
    settleBill(connection, amount);
    transaction.commit();
    return {};
}

void frmReceiptTemp::writePayment(Connection& connection, double amount) {
    Receipt receipt;
    receipt.receiptDate = dtDate.date();
    receipt.receiptNo = lblRct.text();
    receipt.clinicID = QStringLiteral("SALES");
    receipt.billNo = txtBill.text();
    receipt.pno = m_pno;
    receipt.paymentFor = cboCat.text();
    receipt.amountBilled = parseAmount(txtEmp.text()).value_or(0);
    receipt.amountPaid = amount;
    receipt.amountInWord = txtDuty.text();
    receipt.payType = cboPay.text();
    receipt.time = program.ui().now().time();
    receipt.remarks = m_reversal ? QStringLiteral("REVERSAL for RctNo: ") + m_reversedNo : QStringLiteral("PAYMENT");
    addPayment(program, connection, receipt);
}

// A bill without a Billing row takes the receipt all the same.
void frmReceiptTemp::settleBill(Connection& connection, double amount) {
    Recordset bill(connection, Sql("select * from Billing where billno='") << session.gConsultID << "'");
    if (bill.eof())
        return;
    const double paid = bill.number(QStringLiteral("AmountPaid")) + amount;
    bill.set(QStringLiteral("AmountPaid"), paid);
    bill.set(QStringLiteral("isPaid"), paid >= bill.number(QStringLiteral("Amountbilled")) ? 1 : 0);
    bill.update();
}

} // namespace orvane
