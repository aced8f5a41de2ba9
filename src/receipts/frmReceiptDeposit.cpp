#include "receipts/frmReceiptDeposit.h"

#include "books/Bill.h"
#include "books/Deposit.h"
#include "books/VisitFacts.h"
#include "data/words/Money.h"
#include "receipts/MoneyFields.h"
#include "receipts/frmCashReceipt.h"
#include "session/ListedVisit.h"

namespace orvane {

frmReceiptDeposit::frmReceiptDeposit(Program& owner) : Screen(owner, "frmReceiptDeposit", "Advance Receipt / Deposit") {
    for (TextBox* box : {&txtDue, &txtHt})
        box->numeric();
    txtDuty.setLocked(true);
    txtDuty.multiline();
}

Layout frmReceiptDeposit::layout() const {
    using namespace orvane::layout;
    return column({visits.layout({field("Pay Type", cboPay, 12)}),
                   facts({{"Patient", &Label5},
                          {"Receipt No", &lblRct},
                          {"Bill No", &lblBill},
                          {"Clinic Type", &lblClinic2},
                          {"Admission", &lblAdm}}),
                   group("Advance Payment / Deposit",
                         {row({column({field("Receipt Date", dtDate), field("Payment Item", cboClinic, 20),
                                       field("Being Payment for", cboPayFor, 34), field("Diagnosis", txtDiag, 40)}),
                               card({field("Debt:", lblBF), field("Initial Payments:", lblAmt),
                                     field("Amount Due", txtDue), large("Receipt Amount", txtHt), cell(txtDuty)})})}),
                   buttons({&cmdPrint}, {&cmdAdd, &cmdCancel, &CancelButton, &OKButton})});
}

void frmReceiptDeposit::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    dtDate.setDate(today);
    visits.setDates(today);
    cboPay.addItems({"CASH", "CHEQUE"});
    cboPay.setText("CASH");
    cboClinic.addItem("DEPOSIT");
    cboClinic.setText("DEPOSIT");
    cboPayFor.addItem("ADMISSION DEPOSIT");
    setEntry(false);
}

void frmReceiptDeposit::setEntry(bool entering) {
    for (Control* control : std::initializer_list<Control*>{&visits.cboVehNo, &cboClinic, &cboPayFor, &cboPay, &txtHt,
                                                            &txtDue, &txtDiag, &dtDate, &OKButton, &cmdCancel})
        control->setEnabled(entering);
    cmdAdd.setEnabled(!entering);
    if (!entering)
        cmdAdd.setFocus();
}

void frmReceiptDeposit::cmdInv_Click() {
    listVisits(Sql("recdate between '") << visits.DTPicker1.date() << "' and '" << visits.DTPicker2.date() << " '");
}

/// His visits, the newest first; with "Add" first where no deposit is under way.
Screen::PatientTaker frmReceiptDeposit::patientTaker() {
    return [this](const QString& pno) {
        if (!visits.cboVehNo.isUsable())
            cmdAdd_Click();
        listVisits(Sql("pno='") << pno << "' order by recID desc");
        takeOnly(visits.cboVehNo, "This patient has no visit");
    };
}

void frmReceiptDeposit::listVisits(const Sql& which) {
    visits.cboVehNo.clear();
    Connection connection = program.openBilling();
    Recordset rows(connection, Sql("select distinct recID,pno,fullname,consultID as billno from qryhVisits where  ")
                                   << which);
    for (; !rows.eof(); rows.moveNext()) {
        const ListedVisit visit{rows.text("billno"), rows.text("pno"), rows.text("fullname")};
        visits.cboVehNo.addItem(visit.patient + " [" + visit.pno + "]#" + visit.consultID, QVariant::fromValue(visit));
    }
}

void frmReceiptDeposit::cmdAdd_Click() {
    setEntry(true);
    if (cboPay.text().isEmpty())
        cboPay.setText("CASH");
    cboClinic.setText("DEPOSIT");
    cboPayFor.setText("ADMISSION DEPOSIT");
    cmdInv_Click();
    visits.cboVehNo.setFocus();
}

void frmReceiptDeposit::cmdCancel_Click() {
    resetFields();
    setEntry(false);
}

void frmReceiptDeposit::cboVehNo_Click() {
    const auto visit = visits.cboVehNo.picked<ListedVisit>();
    if (!visit)
        return;
    if (cboPay.text().isEmpty()) {
        // The patient before may not stay in hand under the name of this one.
        resetFields();
        program.box("Please enter Payment type");
        cboPay.setFocus();
        return;
    }
    clearPatient();
    session.gConsultID = visit->consultID;
    if (visit->consultID.isEmpty()) {
        program.box("No Consultation No");
        return;
    }
    lblBill.setText(visit->consultID);
    m_pno = visit->pno;
    Label5.setText(visit->patient);
    Connection connection = program.openBilling();
    if (hasBill(connection, visit->consultID)) {
        sendToReceiptEntry();
        return;
    }
    loadPatient(connection);
}

void frmReceiptDeposit::clearPatient() {
    for (Label* label : {&Label5, &lblRct, &lblBill, &lblClinic2, &lblAdm, &lblBF, &lblAmt})
        label->clear();
    for (TextBox* box : {&txtDue, &txtHt, &txtDuty, &txtDiag})
        box->clear();
    m_pno.clear();
    m_clientID.clear();
}

void frmReceiptDeposit::sendToReceiptEntry() {
    program.box(refusalText(Refusal::BillExists));
    program.open("frmReceiptTemp");
}

/// What is known of the patient, and the receipt's number as it stands now; the save forms it again.
void frmReceiptDeposit::loadPatient(Connection& connection) {
    const Recordset patient(connection, Sql("select coyname from qryhfullname where pno='") << m_pno << "'");
    m_clientID = patient.eof() ? QString() : patient.text("coyname");
    const Given<ReceiptNumber> receipt = clinicReceiptNumber(connection, session.gHospIDName, lblBill.text());
    if (receipt)
        lblClinic2.setText(receipt->clinicType);
    else
        program.box(refusalText(receipt.refusal()));
    loadAccount(connection);
    txtDiag.setText(diagnosisOfVisit(connection, lblBill.text()));
    // Only now: a patient whom a fault left half read gets no receipt.
    if (receipt)
        lblRct.setText(receipt->number);
    showAdmission(connection);
}

void frmReceiptDeposit::loadAccount(Connection& connection) {
    const Recordset debt(connection, Sql("select pno,debt from vwDebtInfoForPatUnionGrouped where pno='")
                                         << m_pno << "'");
    m_debtBF = session.dDebtBF = debt.eof() ? 0 : debt.number("debt");
    lblBF.setText(formatTwoDecimals(m_debtBF));

    const Recordset bill(connection, Sql("select AmountBilled,Amountpaid,billno from Billing where billno='")
                                         << lblBill.text() << "'");
    const double paid = bill.eof() ? 0 : bill.number("Amountpaid");
    const double billed = bill.eof() ? 0 : bill.number("AmountBilled");
    txtDue.setText(formatTwoDecimals(billed - paid));
    lblAmt.setText(formatTwoDecimals(paid));
}

void frmReceiptDeposit::showAdmission(Connection& connection) {
    const Recordset admission(connection,
                              Sql("select AdmDate,WardID,fullname,consultID from qryhAdmission where consultID='")
                                  << lblBill.text() << "'");
    lblAdm.setText(admission.eof() ? "OUT-PATIENT" : "ON ADMISSION");
    if (!admission.eof())
        program.box("This Patient is Currently on Admission!!! AdmDate:" +
                    admission.date("admdate").toString("dd/MM/yyyy") + ", Ward:" + admission.text("wardid"));
}

void frmReceiptDeposit::cboClinic_Click() {
    const QString item = cboClinic.text();
    if (item == "DEPOSIT" || item == "SPLIT-BILL") {
        txtDue.setEnabled(true);
    } else if (item == "REFUND") {
        txtDue.setEnabled(false);
        txtHt.setText("0");
    } else {
        txtDue.clear();
    }
}

bool frmReceiptDeposit::isComplete() {
    const bool hasAmount = !txtHt.text().trimmed().isEmpty();
    if (hasAmount && nairaIn(txtHt) > 0 && txtDue.text().trimmed().isEmpty())
        txtDue.setText("0");
    return passes(
        {{!hasAmount, "Please enter Receipt Amount", &txtHt},
         {nairaIn(txtHt) <= 0, "Receipt Amount Cannot be zero or less", &txtHt},
         {visits.cboVehNo.text().isEmpty(), "Please enter Patient No", &visits.cboVehNo},
         {cboClinic.text().isEmpty(), "Please Specify payment type", &cboClinic},
         // A name that was typed and not picked has no number.
         {lblRct.text().isEmpty() || visits.cboVehNo.listIndex() < 0, "Receipt No Required", &visits.cboVehNo},
         {cboPayFor.text().isEmpty(), "Please enter Payment Purpose", &cboPayFor},
         {cboPay.text().isEmpty(), "Please enter Payment type", &cboPay},
         {cboClinic.text().isEmpty(), "Please enter Clinic type", &cboClinic},
         {!statesNaira(txtDue), "Please enter Amount Due", &txtDue},
         // A receipt without a date would be in no day's cash.
         {dtDate.isEmpty(), "Please enter Receipt Date", &dtDate}});
}

void frmReceiptDeposit::OKButton_Click() {
    save<QString>({.button = OKButton,
                   .action = "DEPOSIT",
                   .allowed = [this] { return isComplete(); },
                   .question = "Are you sure to save?",
                   .title = "About to save",
                   .detail =
                       [this] {
                           return aboutLines({Label5.text(), "Bill " + lblBill.text(), nairaText(nairaIn(txtHt))});
                       },
                   .prepare =
                       [this] {
                           session.gConsultID = lblBill.text();
                           session.dWorkDate = dtDate.date();
                           return true;
                       },
                   .step = [this](Books& books) { return saveEntry(books); },
                   .follow = [this](const QString& receiptNo) { showSaved(receiptNo); },
                   .refused = [this](Refusal refusal) { refuse(refusal); }});
}

Given<QString> frmReceiptDeposit::saveEntry(Books& books) const {
    return takeDeposit(books, {.billNo = lblBill.text(),
                               .pno = m_pno,
                               .clientID = m_clientID,
                               .customer = visits.cboVehNo.text(),
                               .date = dtDate.date(),
                               .amount = nairaIn(txtHt),
                               .due = nairaIn(txtDue),
                               .broughtForward = m_debtBF,
                               .words = txtDuty.text(),
                               .purpose = cboPayFor.text(),
                               .payType = cboPay.text(),
                               .diagnosis = txtDiag.text()});
}

void frmReceiptDeposit::showSaved(const QString& receiptNo) {
    // At once, so that no fault in what follows leaves an entry that could be saved again.
    resetFields();
    setEntry(false);
    showCashReceipt(program, receiptNo);
}

void frmReceiptDeposit::refuse(Refusal refusal) {
    if (refusal == Refusal::BillExists)
        sendToReceiptEntry();
    else
        program.box(refusalText(refusal));
}

void frmReceiptDeposit::txtHt_Change() {
    showAmountInWords(txtHt, txtDuty);
}

void frmReceiptDeposit::resetFields() {
    visits.cboVehNo.setListIndex(-1);
    clearPatient();
}

} // namespace orvane
