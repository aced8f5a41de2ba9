#include "billing/TreatmentPlan.h"
#include "books/ReceiptNumber.h"
#include "data/words/Money.h"
#include "outlets/frmBillingPublic.h"
#include "receipts/MoneyFields.h"
#include "receipts/frmCashReceiptLab.h"

namespace orvane {

namespace {

/// True for a text that says less than nothing.
bool isBelowNothing(const TextBox& amount) {
    return parseAmount(amount.text()).value_or(0) < 0;
}

} // namespace

void frmBillingPublic::chkRct_Click() {
    if (!chkRct.isChecked()) {
        clearReceipt();
        return;
    }
    fraReceipt.setEnabled(true);
    cboClinic.setText("OUT-PATIENT");
    lblPay_Change();
    formReceiptNo();
}

/// Only shown: the save forms it again.
void frmBillingPublic::formReceiptNo() {
    lblRct.clear();
    Connection connection = program.openBilling();
    const Given<ReceiptNumber> number = outletReceiptNumber(connection, session.gHospIDName, lblBill.text());
    if (number)
        lblRct.setText(number->number);
    else
        program.box(refusalText(number.refusal()));
}

void frmBillingPublic::clearReceipt() {
    for (TextBox* box : {&txtHt, &txtEmp, &txtWord, &txtCheque})
        box->clear();
    for (ComboBox* box : {&cboCat, &cboClinic, &cboPay})
        box->setText({});
    lblRct.clear();
}

void frmBillingPublic::lblPay_Change() {
    txtEmp.setText(lblPay.text());
}

void frmBillingPublic::txtHt_Change() {
    if (txtHt.text().isEmpty())
        txtWord.clear();
    else
        showAmountInWords(txtHt, txtWord);
}

bool frmBillingPublic::isReceiptComplete() {
    const bool lacksCheque = cboPay.text() == "CHEQUE" && txtCheque.text().trimmed().isEmpty();
    return passes({{txtHt.text().trimmed().isEmpty(), "Please enter Amount Paid", &txtHt},
                   {cboVehNo.text().isEmpty(), "Please enter Patient No", &cboVehNo},
                   {cboCat.text().trimmed().isEmpty(), "Please enter Payment Purpose", &cboCat},
                   {cboPay.text().trimmed().isEmpty(), "Please enter Payment type", &cboPay},
                   {lacksCheque, "Please enter Cheque No", &txtCheque},
                   {nairaIn(txtHt) <= 0, "Please enter Amount Paid", &txtHt},
                   {nairaIn(txtEmp) <= 0, "Please enter Amount Due or Specify Deposit", &txtEmp}});
}

bool frmBillingPublic::isCreditComplete() {
    return passes({{cboPay.text().trimmed().isEmpty(), "Please enter Payment type", &cboPay},
                   {isBelowNothing(txtHt), "Please enter Amount Paid", &txtHt},
                   {isBelowNothing(txtEmp), "Please enter Amount Billed", &txtEmp}});
}

bool frmBillingPublic::isComplete() {
    return passes({{lblBill.text().isEmpty() || m_visit.consultID.isEmpty(), "Bill No field cannot be empty",
                    &cboVehNo}}) &&
           (chkRct.isChecked() ? isReceiptComplete() : isCreditComplete()) &&
           passes({{cboClinic.text().trimmed().isEmpty(), "Please enter Clinic type", &cboClinic},
                   {dtDate.isEmpty(), "Please specify Date", &dtDate}});
}

OutletBill frmBillingPublic::entered() const {
    OutletBill bill{.billNo = m_visit.consultID,
                    .pno = m_visit.pno,
                    .customer = m_visit.patient,
                    .date = dtDate.date(),
                    .diagnosis = txtDiag.text().trimmed(),
                    .listed = m_listed};
    if (chkRct.isChecked())
        bill.receipt = OutletReceipt{.due = nairaIn(txtEmp),
                                     .paid = nairaIn(txtHt),
                                     .words = txtWord.text(),
                                     .clinicID = cboClinic.text().trimmed(),
                                     .purpose = cboCat.text().trimmed(),
                                     .payType = cboPay.text().trimmed(),
                                     .chequeNo = txtCheque.text().trimmed()};
    return bill;
}

void frmBillingPublic::OKButton_Click() {
    save<QString>({.button = OKButton,
                   .action = chkRct.isChecked() ? "OUTLET RECEIPT" : "OUTLET BILL",
                   .allowed = [this] { return isComplete(); },
                   .question = "Are you sure to save?",
                   .title = "About to save",
                   .detail =
                       [this] {
                           return aboutLines({m_visit.patient, "Bill " + m_visit.consultID, nairaText(m_listed),
                                              chkRct.isChecked() ? "Paid " + nairaText(nairaIn(txtHt)) : QString()});
                       },
                   .step = [this](Books& books) { return saveOutletBill(books, entered()); },
                   .follow = [this](const QString& receiptNo) { showSaved(receiptNo); }});
}

/// The screen is reset first, so that no fault in what follows leaves a bill that could be saved again.
void frmBillingPublic::showSaved(const QString& receiptNo) {
    cmdCancel_Click();
    if (!DTPicker1.isEmpty())
        cmdList_Click();
    m_receiptNo = receiptNo;
    cmdPR.setEnabled(!receiptNo.isEmpty());
    cmdPrint.setEnabled(!receiptNo.isEmpty());
    cboVehNo.setFocus();
    if (receiptNo.isEmpty())
        program.box("Record Succesfully saved");
    else
        showOutletReceipt(program, receiptNo);
}

bool frmBillingPublic::hasPatient(const QString& refusal) {
    if (m_visit.consultID.isEmpty())
        program.box(refusal);
    return !m_visit.consultID.isEmpty();
}

void frmBillingPublic::cmdPresc_Click() {
    if (!hasPatient(" No Patient is specified"))
        return;
    Connection connection = program.openBilling();
    const QString text = prescriptions(connection, m_visit.consultID);
    program.box(text.isEmpty() ? "No prescription " : text);
}

void frmBillingPublic::cmdDispense_Click() {
    if (!hasPatient(" No Patient is specified"))
        return;
    Connection connection = program.openBilling();
    const QString text = treatmentPlans(connection, m_visit.consultID);
    program.box(text.isEmpty() ? "No Treatment Plan " : text);
}

/// The screen that changes a waiting item and nothing else: a customer has no account that a change could go to.
void frmBillingPublic::cmdPrice_Click() {
    if (!hasPatient("No Patient is selected"))
        return;
    if (grdData.currentRow() < 0) {
        program.box("Please specify Item");
        return;
    }
    session.lWorkSNo = qlonglong(grdData.number("SNo"));
    program.openModal("frmPriceAdjust");
    cmdRefresh_Click();
}

void frmBillingPublic::cmdRev_Click() {
    program.openModal("frmRevHeadersPublic");
}

void frmBillingPublic::cmdPR_Click() {
    if (!lblCoy.text().isEmpty() && lblCoy.text() != "PRIVATE")
        program.box("Printing of RECEIPT is for PRIVATE Patient only");
    else if (!m_receiptNo.isEmpty())
        showOutletReceipt(program, m_receiptNo);
}

void frmBillingPublic::cmdPrint_Click() {
    program.open("FrmRptBillsByPat");
}

} // namespace orvane
