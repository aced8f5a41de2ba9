#include "receipts/frmReceiptDeposit.h"

#include "data/words/Money.h"
#include "receipts/AmountInWords.h"
#include "receipts/ListEntry.h"
#include "receipts/PatientAccount.h"
#include "receipts/ReceiptRows.h"
#include "receipts/VisitFacts.h"
#include "receipts/frmCashReceipt.h"

#include <QLocale>

namespace orvane {

frmReceiptDeposit::frmReceiptDeposit(Program& owner) : Screen(owner, "frmReceiptDeposit", "Advance Receipt / Deposit") {
    for (TextBox* box : {&txtDue, &txtHt})
        box->numeric();
    txtDuty.setLocked(true);
    txtDuty.multiline();
    cmdInv.onClick = [this] { cmdInv_Click(); };
    cmdAdd.onClick = [this] { cmdAdd_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
    cmdPrint.onClick = [this] { cmdInv_Click(); };
    cboVehNo.onClick = [this] { cboVehNo_Click(); };
    cboClinic.onClick = [this] { cboClinic_Click(); };
    txtHt.onChange = [this] { showAmountInWords(txtHt, txtDuty); };
    OKButton.onClick = [this] { OKButton_Click(); };
    CancelButton.onClick = [this] { unload(); };
}

Layout frmReceiptDeposit::layout() const {
    using namespace orvane::layout;
    return column({row({field("Attendance between", DTPicker1), field("and", DTPicker2), cell(cmdInv),
                        field("Pay Type", cboPay, 12), stretch()}),
                   field("Patient", cboVehNo),
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
    for (DatePicker* picker : {&dtDate, &DTPicker1, &DTPicker2})
        picker->setDate(today);
    cboPay.addItems({"CASH", "CHEQUE"});
    cboPay.setText("CASH");
    cboClinic.addItem("DEPOSIT");
    cboClinic.setText("DEPOSIT");
    cboPayFor.addItem("ADMISSION DEPOSIT");
    setEntry(false);
}

void frmReceiptDeposit::setEntry(bool entering) {
    for (Control* control : std::initializer_list<Control*>{&cboVehNo, &cboClinic, &cboPayFor, &cboPay, &txtHt, &txtDue,
                                                            &txtDiag, &dtDate, &OKButton, &cmdCancel})
        control->setEnabled(entering);
    cmdAdd.setEnabled(!entering);
    if (!entering)
        cmdAdd.setFocus();
}

void frmReceiptDeposit::cmdInv_Click() {
    cboVehNo.clear();
    Connection connection = program.openBilling();
    Recordset visits(
        connection,
        Sql("select distinct recID,pno,fullname,consultID as billno from qryhVisits where  recdate between '")
            << DTPicker1.date() << "' and '" << DTPicker2.date() << " '");
    for (; !visits.eof(); visits.moveNext())
        cboVehNo.addItem(visits.text("fullname") + " [" + visits.text("pno") + "]#" + visits.text("billno"));
}

void frmReceiptDeposit::cmdAdd_Click() {
    setEntry(true);
    if (cboPay.text().isEmpty())
        cboPay.setText("CASH");
    cboClinic.setText("DEPOSIT");
    cboPayFor.setText("ADMISSION DEPOSIT");
    cmdInv_Click();
    cboVehNo.setFocus();
}

void frmReceiptDeposit::cmdCancel_Click() {
    resetFields();
    setEntry(false);
}

void frmReceiptDeposit::cboVehNo_Click() {
    if (cboVehNo.listIndex() < 0)
        return;
    if (cboPay.text().isEmpty()) {
        // The patient before may not stay in hand under the name of this one.
        resetFields();
        program.box("Please enter Payment type");
        cboPay.setFocus();
        return;
    }
    clearPatient();
    const ListEntry entry = readListEntry(cboVehNo.text());
    session.gConsultID = entry.bill;
    if (entry.bill.isEmpty()) {
        program.box("No Consultation No");
        return;
    }
    lblBill.setText(entry.bill);
    m_pno = entry.number;
    Label5.setText(entry.name);
    Connection connection = program.openBilling();
    if (billExists(connection)) {
        sendToReceiptEntry();
        return;
    }
    const QString number = nextReceiptNumber(connection);
    loadAccount(connection);
    txtDiag.setText(diagnosisOfVisit(connection, lblBill.text()));
    // Only now: a patient whom a fault left half read gets no receipt.
    lblRct.setText(number);
    showAdmission(connection);
}

void frmReceiptDeposit::clearPatient() {
    for (Label* label : {&Label5, &lblRct, &lblBill, &lblClinic2, &lblAdm, &lblBF, &lblAmt})
        label->clear();
    for (TextBox* box : {&txtDue, &txtHt, &txtDuty, &txtDiag})
        box->clear();
    m_pno.clear();
    m_clientID.clear();
    m_clinicID.clear();
}

bool frmReceiptDeposit::billExists(Connection& connection) const {
    return !Recordset(connection, Sql("select * from billing where billNo='") << lblBill.text() << "'").eof();
}

void frmReceiptDeposit::sendToReceiptEntry() {
    program.box("This page is only for receipt of Advance/Deposit!!! Use Receipt Entry Form");
    program.open("frmReceiptTemp");
}

/// The number that comes next, empty when there is none; the save forms it again. Reads what goes with it.
QString frmReceiptDeposit::nextReceiptNumber(Connection& connection) {
    const Recordset patient(connection, Sql("select coyname from qryhfullname where pno='") << m_pno << "'");
    m_clientID = patient.eof() ? QString() : patient.text("coyname");
    const ReceiptNumber receipt = formReceiptNumber(program, connection, ReceiptForm::ClinicCoded, lblBill.text());
    lblClinic2.setText(receipt.clinicType);
    m_clinicID = receipt.clinicID;
    if (receipt.number.isEmpty())
        program.box(receipt.refusal);
    return receipt.number;
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

/// Naira in whole kobo, as it is printed; 0 where the field holds no number.
double frmReceiptDeposit::receiptAmount() const {
    return round2(parseAmount(txtHt.text()).value_or(0));
}

bool frmReceiptDeposit::checkFields() {
    const auto refuse = [this](const char* text, Control& control) {
        program.box(QLatin1String(text));
        control.setFocus();
        return false;
    };
    if (txtHt.text().trimmed().isEmpty())
        return refuse("Please enter Receipt Amount", txtHt);
    if (receiptAmount() <= 0)
        return refuse("Receipt Amount Cannot be zero or less", txtHt);
    if (txtDue.text().trimmed().isEmpty())
        txtDue.setText("0");
    if (cboVehNo.listIndex() < 0)
        return refuse("Please enter Patient No", cboVehNo);
    if (cboClinic.text().isEmpty())
        return refuse("Please Specify payment type", cboClinic);
    if (lblRct.text().isEmpty())
        return refuse("Receipt No Required", cboVehNo);
    if (cboPayFor.text().isEmpty())
        return refuse("Please enter Payment Purpose", cboPayFor);
    if (cboPay.text().isEmpty())
        return refuse("Please enter Payment type", cboPay);
    if (cboClinic.text().isEmpty())
        return refuse("Please enter Clinic type", cboClinic);
    if (parseAmount(txtDue.text()).value_or(-1) < 0)
        return refuse("Please enter Amount Due", txtDue);
    // A receipt without a date would be in no day's cash.
    if (dtDate.isEmpty())
        return refuse("Please enter Receipt Date", dtDate);
    return true;
}

void frmReceiptDeposit::OKButton_Click() {
    if (settlesSave() || !checkFields())
        return;
    if (!program.question("Are you sure to save?", "About to save"))
        return;
    if (saveOnce(
            OKButton, [this] { return save(); }, [this] { afterSave(); }))
        return;
    if (m_billExists)
        sendToReceiptEntry();
    else
        program.box(m_receipt.refusal);
}

void frmReceiptDeposit::afterSave() {
    resetFields();
    setEntry(false);
    showCashReceipt(program, m_receipt.number);
}

bool frmReceiptDeposit::save() {
    session.gConsultID = lblBill.text();
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    session.dWorkDate = dtDate.date();
    m_billExists = billExists(connection);
    if (m_billExists)
        return false;
    // Another cashier may have taken the number that was shown: it is formed again behind the gate.
    m_receipt = formReceiptNumber(program, connection, ReceiptForm::ClinicCoded, lblBill.text());
    if (m_receipt.number.isEmpty())
        return false;
    const double amount = receiptAmount();
    writeBill(connection);
    writePayment(connection, m_receipt.number);
    postPatientTran(program, connection, session.dWorkDate, m_pno, lblBill.text(), amount, session.gBillTo, "Deposit");
    program.writeAuditTrail(session.gUsername, "insert Payment for: " + cboVehNo.text(), session.gConsultID,
                            QString::number(amount, 'f', 2), session.sComputerName);
    transaction.commit({.action = name()});
    return true;
}

void frmReceiptDeposit::writeBill(Connection& connection) {
    Recordset bill(connection, Sql("select * from Billing where 1=2"));
    bill.addNew();
    bill.set("bdate", session.dWorkDate);
    bill.set("billNo", lblBill.text());
    bill.set("PNo", m_pno);
    bill.set("clientID", m_clientID);
    bill.set("Amountbilled", round2(*parseAmount(txtDue.text())));
    bill.set("AmountPaid", receiptAmount());
    bill.set("profFee", 0);
    bill.set("AmtBF", m_debtBF);
    bill.set("billingMonth", QLocale::c().monthName(session.dWorkDate.month()));
    bill.set("billingYear", QString::number(session.dWorkDate.year()));
    bill.set("diagnosis", txtDiag.text());
    bill.update();
}

void frmReceiptDeposit::writePayment(Connection& connection, const QString& receiptNo) {
    Receipt receipt;
    receipt.receiptDate = session.dWorkDate;
    receipt.receiptNo = receiptNo;
    receipt.clinicID = m_clinicID;
    receipt.billNo = lblBill.text();
    receipt.pno = m_pno;
    receipt.paymentFor = cboPayFor.text();
    receipt.amountBilled = round2(*parseAmount(txtDue.text()));
    receipt.amountPaid = receiptAmount();
    receipt.amountInWord = txtDuty.text();
    receipt.payType = cboPay.text();
    receipt.time = ui().now().time();
    receipt.remarks = "DEPOSIT/ADVANCE";
    addPayment(program, connection, receipt);
}

void frmReceiptDeposit::resetFields() {
    cboVehNo.setListIndex(-1);
    clearPatient();
}

} // namespace orvane
