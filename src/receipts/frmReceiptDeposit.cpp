#include "receipts/frmReceiptDeposit.h"

#include "data/Money.h"
#include "receipts/PatientAccount.h"
#include "receipts/ReceiptNumber.h"
#include "receipts/ReceiptRows.h"
#include "receipts/frmCashReceipt.h"
#include "session/Words.h"

#include <QLocale>
#include <cmath>

namespace orvane {

namespace {

const QString twoDecimals = QStringLiteral("0.00");

} // namespace

frmReceiptDeposit::frmReceiptDeposit(Program& owner)
    : Screen(owner, QStringLiteral("frmReceiptDeposit"), QStringLiteral("Advance Receipt / Deposit")) {
    for (TextBox* box : {&txtDue, &txtHt})
        box->numeric();
    txtDuty.setLocked(true);
    cmdInv.onClick = [this] { cmdInv_Click(); };
    cmdAdd.onClick = [this] { cmdAdd_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
    cmdPrint.onClick = [this] { cmdInv_Click(); };
    cboVehNo.onClick = [this] { cboVehNo_Click(); };
    cboClinic.onClick = [this] { cboClinic_Click(); };
    txtHt.onChange = [this] { txtHt_Change(); };
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
                   row({column({field("Receipt Date", dtDate), field("Payment Item", cboClinic, 20),
                                field("Being Payment for", cboPayFor, 34), field("Diagnosis", txtDiag, 40), stretch()}),
                        card({field("Debt:", lblBF), field("Initial Payments:", lblAmt), field("Amount Due", txtDue),
                              large("Receipt Amount", txtHt), field("In Words", txtDuty)})}),
                   stretch(), buttons({&cmdPrint}, {&cmdAdd, &cmdCancel, &CancelButton, &OKButton})});
}

void frmReceiptDeposit::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    for (DatePicker* picker : {&dtDate, &DTPicker1, &DTPicker2})
        picker->setDate(today);
    cboPay.addItems({QStringLiteral("CASH"), QStringLiteral("CHEQUE")});
    cboPay.setText(QStringLiteral("CASH"));
    cboClinic.addItem(QStringLiteral("DEPOSIT"));
    cboClinic.setText(QStringLiteral("DEPOSIT"));
    cboPayFor.addItem(QStringLiteral("ADMISSION DEPOSIT"));
    setEntry(false);
}

void frmReceiptDeposit::setEntry(bool entering) {
    for (Control* control : std::initializer_list<Control*>{&cboVehNo, &cboClinic, &cboPayFor, &cboPay, &txtHt, &txtDue,
                                                            &txtDiag, &dtDate, &OKButton, &cmdCancel})
        control->setEnabled(entering);
    cmdAdd.setEnabled(!entering);
}

void frmReceiptDeposit::cmdInv_Click() {
    cboVehNo.clear();
    Connection connection = program.openBilling();
    Recordset visits(
        connection,
        Sql("select distinct recID,pno,fullname,consultID as billno from qryhVisits where  recdate between '")
            << DTPicker1.date() << "' and '" << DTPicker2.date() << " '");
    for (; !visits.eof(); visits.moveNext())
        cboVehNo.addItem(visits.text(QStringLiteral("fullname")) + QStringLiteral(" [") +
                         visits.text(QStringLiteral("pno")) + QStringLiteral("]#") +
                         visits.text(QStringLiteral("billno")));
}

void frmReceiptDeposit::cmdAdd_Click() {
    setEntry(true);
    if (cboPay.text().isEmpty())
        cboPay.setText(QStringLiteral("CASH"));
    cboClinic.setText(QStringLiteral("DEPOSIT"));
    cboPayFor.setText(QStringLiteral("ADMISSION DEPOSIT"));
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
        program.box(QStringLiteral("Please enter Payment type"));
        cboPay.setFocus();
        return;
    }
    for (Label* label : {&lblAmt, &lblBF, &lblRct, &lblClinic2})
        label->clear();
    txtDue.clear();
    txtHt.clear();
    const QString entry = cboVehNo.text();
    const auto hash = entry.lastIndexOf(QLatin1Char('#'));
    if (hash < 0) {
        lblBill.clear();
        session.gConsultID.clear();
        program.box(QStringLiteral("No Consultation No"));
        return;
    }
    const auto bracket = entry.lastIndexOf(QLatin1Char('['), hash);
    session.gConsultID = entry.mid(hash + 1);
    lblBill.setText(session.gConsultID);
    m_pno = entry.mid(bracket + 1, hash - bracket - 2);
    Label5.setText(entry.left(bracket).trimmed());
    Connection connection = program.openBilling();
    if (billExists(connection)) {
        sendToReceiptEntry();
        return;
    }
    const QString admission = loadPatient(connection);
    if (!admission.isEmpty())
        program.box(admission);
}

bool frmReceiptDeposit::billExists(Connection& connection) const {
    return !Recordset(connection, Sql("select * from billing where billNo='") << lblBill.text() << "'").eof();
}

void frmReceiptDeposit::sendToReceiptEntry() {
    program.box(QStringLiteral("This page is only for receipt of Advance/Deposit!!! Use Receipt Entry Form"));
    program.open(QStringLiteral("frmReceiptTemp"));
}

QString frmReceiptDeposit::loadPatient(Connection& connection) {
    const Recordset patient(connection, Sql("select coyname from qryhfullname where pno='") << m_pno << "'");
    m_clientID = patient.eof() ? QString() : patient.text(QStringLiteral("coyname"));

    const ReceiptNumber receipt = formReceiptNumber(program, connection, ReceiptForm::ClinicCoded, session.gConsultID);
    lblRct.setText(receipt.number);
    lblClinic2.setText(receipt.clinicType);
    m_clinicID = receipt.clinicID;
    if (receipt.number.isEmpty())
        program.box(receipt.refusal);

    const Recordset debt(connection, Sql("select pno,debt from vwDebtInfoForPatUnionGrouped where pno='")
                                         << m_pno << "'");
    session.dDebtBF = debt.eof() ? 0 : debt.number(QStringLiteral("debt"));
    lblBF.setText(formatNumber(session.dDebtBF, twoDecimals));

    const Recordset bill(connection, Sql("select AmountBilled,Amountpaid,billno from Billing where billno='")
                                         << lblBill.text() << "'");
    const double paid = bill.eof() ? 0 : bill.number(QStringLiteral("Amountpaid"));
    txtDue.setText(formatNumber(bill.eof() ? 0 : bill.number(QStringLiteral("AmountBilled")) - paid, twoDecimals));
    lblAmt.setText(formatNumber(paid, twoDecimals));

    QStringList diagnoses;
    for (Recordset visit(connection, Sql("select consultID,diagnosis from hconsulting where consultID='")
                                         << session.gConsultID << "'");
         !visit.eof(); visit.moveNext())
        diagnoses << visit.text(QStringLiteral("diagnosis"));
    txtDiag.setText(diagnoses.join(QStringLiteral(" ; ")));

    const Recordset admission(connection,
                              Sql("select AdmDate,WardID,fullname,consultID from qryhAdmission where consultID='")
                                  << session.gConsultID << "'");
    lblAdm.setText(admission.eof() ? QStringLiteral("OUT-PATIENT") : QStringLiteral("ON ADMISSION"));
    if (admission.eof())
        return {};
    return QStringLiteral("This Patient is Currently on Admission!!! AdmDate:") +
           admission.date(QStringLiteral("admdate")).toString(QStringLiteral("dd/MM/yyyy")) +
           QStringLiteral(", Ward:") + admission.text(QStringLiteral("wardid"));
}

void frmReceiptDeposit::cboClinic_Click() {
    const QString item = cboClinic.text();
    if (item == QLatin1String("DEPOSIT") || item == QLatin1String("SPLIT-BILL")) {
        txtDue.setEnabled(true);
    } else if (item == QLatin1String("REFUND")) {
        txtDue.setEnabled(false);
        txtHt.setText(QStringLiteral("0"));
    } else {
        txtDue.clear();
    }
}

void frmReceiptDeposit::txtHt_Change() {
    if (txtHt.text().isEmpty())
        return;
    const std::optional<double> amount = parseAmount(txtHt.text());
    txtDuty.setText(amount ? getValInWord(std::abs(*amount)) : QString());
}

bool frmReceiptDeposit::checkFields() {
    const auto refuse = [this](const char* text, Control& control) {
        program.box(QLatin1String(text));
        control.setFocus();
        return false;
    };
    if (txtHt.text().trimmed().isEmpty())
        return refuse("Please enter Receipt Amount", txtHt);
    if (parseAmount(txtHt.text()).value_or(0) <= 0)
        return refuse("Receipt Amount Cannot be zero or less", txtHt);
    if (txtDue.text().trimmed().isEmpty())
        txtDue.setText(QStringLiteral("0"));
    if (cboVehNo.text().isEmpty())
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
    if (!parseAmount(txtDue.text()))
        return refuse("Please enter Receipt Amount", txtDue);
    return true;
}

void frmReceiptDeposit::OKButton_Click() {
    if (!checkFields())
        return;
    if (!program.question(QStringLiteral("Are you sure to save?"), QStringLiteral("About to save")))
        return;
    bool saved = false;
    QString refusal;
    {
        Connection connection = program.openBilling();
        Transaction transaction(connection);
        session.dWorkDate = dtDate.date();
        if (!billExists(connection)) {
            // Another cashier may have taken the number that was shown: it is formed again behind the gate.
            const ReceiptNumber receipt =
                formReceiptNumber(program, connection, ReceiptForm::ClinicCoded, session.gConsultID);
            refusal = receipt.refusal;
            lblRct.setText(receipt.number);
            if (refusal.isEmpty()) {
                writeBill(connection);
                writePayment(connection);
                const double amount = *parseAmount(txtHt.text());
                postPatientTran(program, connection, session.dWorkDate, m_pno, lblBill.text(), amount, session.gBillTo,
                                QStringLiteral("Deposit"));
                program.writeAuditTrail(session.gUsername, QStringLiteral("insert Payment for: ") + cboVehNo.text(),
                                        session.gConsultID, QString::number(amount, 'f', 2), session.sComputerName);
                transaction.commit();
                saved = true;
            }
        }
    }
    if (!refusal.isEmpty()) {
        program.box(refusal);
        return;
    }
    if (!saved) {
        sendToReceiptEntry();
        return;
    }
    const QString number = lblRct.text();
    resetFields();
    setEntry(false);
    showCashReceipt(program, number);
}

void frmReceiptDeposit::writeBill(Connection& connection) {
    Recordset bill(connection, Sql("select * from Billing where 1=2"));
    bill.addNew();
    bill.set(QStringLiteral("bdate"), session.dWorkDate);
    bill.set(QStringLiteral("billNo"), lblBill.text());
    bill.set(QStringLiteral("PNo"), m_pno);
    bill.set(QStringLiteral("clientID"), m_clientID);
    bill.set(QStringLiteral("Amountbilled"), *parseAmount(txtDue.text()));
    bill.set(QStringLiteral("AmountPaid"), *parseAmount(txtHt.text()));
    bill.set(QStringLiteral("profFee"), 0);
    bill.set(QStringLiteral("AmtBF"), session.dDebtBF);
    bill.set(QStringLiteral("billingMonth"), QLocale::c().monthName(session.dWorkDate.month()));
    bill.set(QStringLiteral("billingYear"), QString::number(session.dWorkDate.year()));
    bill.set(QStringLiteral("diagnosis"), txtDiag.text());
    bill.update();
}

void frmReceiptDeposit::writePayment(Connection& connection) {
    Receipt receipt;
    receipt.receiptDate = session.dWorkDate;
    receipt.receiptNo = lblRct.text();
    receipt.clinicID = m_clinicID;
    receipt.billNo = lblBill.text();
    receipt.pno = m_pno;
    receipt.paymentFor = cboPayFor.text();
    receipt.amountBilled = *parseAmount(txtDue.text());
    receipt.amountPaid = *parseAmount(txtHt.text());
    receipt.amountInWord = txtDuty.text();
    receipt.payType = cboPay.text();
    receipt.time = program.ui().now().time();
    receipt.remarks = QStringLiteral("DEPOSIT/ADVANCE");
    addPayment(program, connection, receipt);
}

void frmReceiptDeposit::resetFields() {
    cboVehNo.setListIndex(-1);
    for (TextBox* box : {&txtHt, &txtDue, &txtDuty, &txtDiag})
        box->clear();
    for (Label* label : {&Label5, &lblRct, &lblBill, &lblClinic2, &lblAdm, &lblBF, &lblAmt})
        label->clear();
    m_pno.clear();
    m_clientID.clear();
    m_clinicID.clear();
}

} // namespace orvane
