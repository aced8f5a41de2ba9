#include "billing/frmBillingVerify.h"
#include "books/ApprovalCode.h"
#include "books/Bill.h"
#include "books/ReceiptNumber.h"
#include "books/VisitFacts.h"
#include "books/Words.h"
#include "data/words/Money.h"
#include "receipts/frmCashReceipt.h"

namespace orvane {

void frmBillingVerify::OKButton_Click() {
    // What follows may come when another receipt is in the frame.
    const auto receiptNo = std::make_shared<QString>();
    save<Saved>({.button = OKButton,
                 .action = chkRct.isChecked() ? "BILL WITH RECEIPT" : "COLLATED BILL",
                 .allowed = [this] { return isReadyToSave(); },
                 .question = "Are you sure to save?",
                 .title = "About to save",
                 .detail = [this] { return aboutBill(); },
                 .prepare =
                     [this, receiptNo] {
                         const bool ready = prepareSave();
                         *receiptNo = receipt.lblRct.text();
                         return ready;
                     },
                 .step = [this](Books& books) { return saveBill(books, billToSave()); },
                 .follow = [this, receiptNo](const Saved&) { afterSave(*receiptNo); }});
}

QString frmBillingVerify::aboutBill() const {
    return aboutLines({m_bill.patient, "Bill " + m_bill.consultID,
                       "Bill payable " + nairaText(parseAmount(lblAmtDue.text()).value_or(0)),
                       chkRct.isChecked() ? "Receipt " + nairaText(receipt.paid()) : QString()});
}

bool frmBillingVerify::isReadyToSave() {
    if (!passes({{session.gConsultID != lblBill.text(), refusalText(Refusal::VisitChanged)},
                 {lblBill.text().isEmpty(), "Bill No field cannot be empty"}}) ||
        !isBillOpen() || !areDatesGiven())
        return false;
    if (chkRct.isChecked() && receipt.fraReceipt.isEnabled() && !isReceiptComplete())
        return false;
    confirmProfFee();
    return passes({{dtDate.isEmpty(), "Specify Bill Date", &dtDate}});
}

bool frmBillingVerify::isBillOpen() {
    Connection connection = program.openBilling();
    return passes({{isBillProcessed(connection, m_bill.consultID), refusalText(Refusal::BillProcessed)}});
}

bool frmBillingVerify::areDatesGiven() {
    if (!passes({{!dtAdmit.isEmpty() && !chkDep.isChecked() && dtDisch.isEmpty(),
                  "Please Specify Discharge date of Patient OR tick Deposit Checkbox to enter Deposits", &dtDisch}})) {
        dtDisch.setLocked(false);
        dtDisch.setEnabled(true);
        return false;
    }
    if (!passes({{dtAdmit.isEmpty() && !dtDisch.isEmpty(), "Discharge date of Patient Requires Admission Date"}})) {
        for (DatePicker* date : {&dtAdmit, &dtDisch}) {
            date->clear();
            date->setLocked(false);
        }
        return false;
    }
    return true;
}

bool frmBillingVerify::isReceiptComplete() {
    const ReceiptFrame::PayWay* lacksBank = session.gAcctPostOn ? receipt.wayWithoutBank() : nullptr;
    if (passes({{receipt.txtHt.text().isEmpty(), "Please enter Amount Paid", &receipt.txtHt},
                {visits.cboVehNo.text().isEmpty(), "Please enter Patient No", &visits.cboVehNo},
                {receipt.dtRctDate.isEmpty(), "Please enter Receipt Date", &receipt.dtRctDate},
                {receipt.cboPayFor.text().isEmpty(), "Please enter Payment Purpose", &receipt.cboPayFor},
                {receipt.cboPay.text().isEmpty(), "Please enter Payment type", &receipt.cboPay},
                {receipt.lacksCheque(), "Please enter Cheque No", &receipt.txtCheque},
                // Money only comes in here; it goes back by a reversal on the receipt screen.
                {receipt.paid() <= 0, "Please enter Amount Paid", &receipt.txtHt},
                {receipt.due() <= 0 && !chkDep.isChecked(), "Please tick Deposit CheckBox to Specify Deposit", &chkDep},
                {lacksBank != nullptr, lacksBank ? "Specify Bank Name for " + lacksBank->lblAmt.text() : QString(),
                 lacksBank ? const_cast<ComboBox*>(&*lacksBank->cboBank) : nullptr, "Bank Name"}}))
        return true;
    SSTab1.setTab(1);
    focused()->setFocus();
    return false;
}

/// A reminder only: a fee that was typed but not calculated is not on the bill.
void frmBillingVerify::confirmProfFee() {
    if (txtProf.text().trimmed().isEmpty())
        return;
    txtProf.setFocus();
    program.box("Confirm Prof Fee Entry", Icon::None, "Prof Fee");
}

bool frmBillingVerify::prepareSave() {
    session.dWorkDate = dtDate.date();
    if (!chkRct.isChecked())
        return true;
    session.dPostDate = today();
    return genIDNo();
}

/// A fresh receipt number into lblRct; without one lblRct stays empty and the screen closes.
bool frmBillingVerify::genIDNo() {
    receipt.lblRct.clear();
    Connection connection = program.openBilling();
    m_receiptClinic = clinicOfVisit(connection, m_bill.consultID);
    const Given<ReceiptNumber> number = generatedReceiptNumber(connection);
    if (!number) {
        program.box(refusalText(number.refusal()));
        unload();
        program.box("Inalid Receipt No! System Failed to Generate Receipt");
        return false;
    }
    session.gIDNo = number->number;
    receipt.lblRct.setText(number->number);
    return true;
}

BillToSave frmBillingVerify::billToSave() const {
    BillToSave bill{.visit = m_bill,
                    .date = dtDate.date(),
                    .diagnosis = txtDiag.text(),
                    .admitted = dtAdmit.date(),
                    .discharged = dtDisch.date(),
                    .receipt = std::nullopt};
    if (chkRct.isChecked())
        bill.receipt = receipt.entered(m_bill, m_receiptClinic, visits.cboVehNo.text());
    return bill;
}

/// `receiptNo` is empty where no receipt was taken. The saved bill is locked first, so that no fault in what follows
/// leaves one that could be saved again.
void frmBillingVerify::afterSave(const QString& receiptNo) {
    m_saved = true;
    OKButton.setEnabled(false);
    saveApprvCode();
    cmdCancel.setEnabled(true);
    visits.cboVehNo.setFocus();
    if (receiptNo.isEmpty())
        program.box("Record Succesfully saved");
    else
        showCashReceipt(program, receiptNo);
}

/// Runs once the bill is saved: a fault here is shown, but must not make the save look undone.
void frmBillingVerify::saveApprvCode() {
    const QString code = txtApprv.text().trimmed();
    if (code.isEmpty())
        return;
    try {
        QString token;
        const bool isNew = *program.desk().save<bool>("APPROVAL CODE", [&](Books& books) -> Given<bool> {
            books.expectTrail(1);
            token = books.token();
            return noteApprovalCode(books, m_bill, code);
        });
        program.writeAuditTrail({.action = (isNew ? "insert Apprv Code for " : "Edit Apprv Code for ") + m_bill.patient,
                                 .document = m_bill.consultID,
                                 .remarks = code,
                                 .token = token});
    } catch (const DataError& fault) {
        program.box(fault.description());
    }
}

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
    receipt.fraReceipt.setEnabled(chkRct.isChecked());
    if (!chkRct.isChecked())
        receipt.clear();
    receipt.dtRctDate.setDate(today());
}

void frmBillingVerify::chkDep_Click() {
    if (chkDep.isChecked())
        receipt.cboPayFor.setText("DEPOSIT");
}

void frmBillingVerify::chkCurr_Click() {
    receipt.txtEmp.setText(chkCurr.isChecked() ? lblSub.text() : lblAmtDue.text());
}

void frmBillingVerify::txtEmp_Change() {
    const QString due = receipt.txtEmp.text();
    txtDuty.setText(due.isEmpty() ? QString() : getValInWord(parseAmount(due).value_or(0)));
}

} // namespace orvane
