#include "receipts/frmReceiptManual.h"

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

frmReceiptManual::frmReceiptManual(Program& owner)
    : Screen(owner, QStringLiteral("frmReceiptManual"), QStringLiteral("Entries from Manual Receipt")) {
    for (TextBox* box : {&txtBill, &txtDebt, &txtEmp, &txtHt})
        box->numeric();
    for (TextBox* box : {&txtEmp, &txtDuty})
        box->setLocked(true);
    connectHandlers();
}

void frmReceiptManual::connectHandlers() {
    cmdList.onClick = [this] { cmdList_Click(); };
    cboVehNo.onClick = [this] { cboVehNo_Click(); };
    txtBill.onChange = [this] { workOutDue(); };
    txtDebt.onChange = [this] { workOutDue(); };
    txtHt.onChange = [this] { txtHt_Change(); };
    cmdRefresh.onClick = [this] { refreshGrid(); };
    cmdPrint.onClick = [this] { cmdPrint_Click(); };
    cmdAdd.onClick = [this] { setEntry(true); };
    OKButton.onClick = [this] { OKButton_Click(); };
    CancelButton.onClick = [this] { unload(); };
}

Layout frmReceiptManual::layout() const {
    using namespace orvane::layout;
    return column({row({field("Attendance between", DTPicker1), field("and", DTPicker2), cell(cmdList), stretch()}),
                   field("Patient", cboVehNo),
                   facts({{"Bill No", &lblBill}, {"Client", &lblCoy}, {"Attendance", &lblDate}}),
                   row({column({field("Receipt No", txtRct, 18), field("Receipt Date", dtDate),
                                field("Being Payment for", cboCat, 34), field("Received By", cboReceived, 34)}),
                        column({field("Pay Type", cboPay, 14), field("Clinic Type", cboClinic, 24), stretch()}),
                        card({field("Amount Billed", txtBill), field("Debt", txtDebt), field("Amount Due", txtEmp),
                              large("Amount Paid", txtHt), field("In Words", txtDuty)})}),
                   cell(grdData), row({stretch(), field("Total Paid:", lblTotal)}),
                   buttons({&cmdRefresh, &cmdPrint}, {&cmdAdd, &CancelButton, &OKButton})});
}

void frmReceiptManual::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    session.dWorkDate = today;
    for (DatePicker* picker : {&dtDate, &DTPicker1, &DTPicker2})
        picker->setDate(today);
    loadLists();
    for (const char* column : {"AmountBilled", "AmountPaid", "Balance"})
        grdData.setFormat(QLatin1String(column), QStringLiteral("#,###.00"));
    listVisits(Sql("select distinct recdate,pno,fullname,consultID from qryhVisits where  recdate = '")
               << session.dWorkDate << "'");
    refreshGrid();
    setEntry(false);
}

void frmReceiptManual::loadLists() {
    cboCat.addItems({QStringLiteral("CARD"), QStringLiteral("CONSULTING"), QStringLiteral("CONSULTING AND DRUGS"),
                     QStringLiteral("DRUGS"), QStringLiteral("GP REVIEW"), QStringLiteral("SPECIALIST REVIEW"),
                     QStringLiteral("ANTE NATAL"), QStringLiteral("EXAMINATION"), QStringLiteral("ADMISSION"),
                     QStringLiteral("GP FIRST VISIT"), QStringLiteral("SPECIALIST FIRST VISIT"),
                     QStringLiteral("CONSULTING AND INJECTION"), QStringLiteral("CONSULTING AND DRESSING"),
                     QStringLiteral("CONSULTING AND INJECTION/INJECTION")});
    cboCat.setText(QStringLiteral("CONSULTING AND DRUGS"));
    cboPay.addItems({QStringLiteral("CASH"), QStringLiteral("CHEQUE")});
    cboPay.setText(QStringLiteral("CASH"));
    Connection connection = program.openBilling();
    for (Recordset officers(connection, Sql("select empID,lastname,firstname from employees where deptID = 'ACC'"));
         !officers.eof(); officers.moveNext())
        cboReceived.addItem(officers.text(QStringLiteral("lastname")) + QStringLiteral(" ") +
                            officers.text(QStringLiteral("firstname")) + QStringLiteral(" [") +
                            officers.text(QStringLiteral("empID")) + QStringLiteral("]"));
    for (Recordset clinics(connection, Sql("select ClinicID from clinicTypes")); !clinics.eof(); clinics.moveNext())
        cboClinic.addItem(clinics.text(QStringLiteral("ClinicID")));
    cboClinic.setText(QStringLiteral("OUT-PATIENT"));
}

void frmReceiptManual::setEntry(bool entering) {
    for (Control* control : std::initializer_list<Control*>{&cboVehNo, &txtRct, &dtDate, &cboCat, &cboReceived, &cboPay,
                                                            &cboClinic, &txtBill, &txtDebt, &txtHt, &OKButton})
        control->setEnabled(entering);
    cmdAdd.setEnabled(!entering);
    if (entering)
        cboVehNo.setFocus();
}

void frmReceiptManual::listVisits(const Sql& sql) {
    cboVehNo.clear();
    Connection connection = program.openBilling();
    for (Recordset visits(connection, sql); !visits.eof(); visits.moveNext())
        cboVehNo.addItem(visits.text(QStringLiteral("fullname")) + QStringLiteral(" @ ") +
                         visits.date(QStringLiteral("recdate")).toString(QStringLiteral("dd/MM/yyyy")) +
                         QStringLiteral(" [") + visits.text(QStringLiteral("pno")) + QStringLiteral("]#") +
                         visits.text(QStringLiteral("consultID")));
}

void frmReceiptManual::cmdList_Click() {
    listVisits(Sql("select distinct recdate,pno,fullname,consultID from qryhVisits where  recdate between '")
               << DTPicker1.date() << "' and '" << DTPicker2.date() << " '");
}

void frmReceiptManual::cboVehNo_Click() {
    if (cboVehNo.listIndex() < 0)
        return;
    const QString entry = cboVehNo.text();
    const auto hash = entry.lastIndexOf(QLatin1Char('#'));
    const auto bracket = entry.lastIndexOf(QLatin1Char('['), hash);
    const auto at = entry.lastIndexOf(QLatin1String(" @ "), bracket);
    m_pno = entry.mid(bracket + 1, entry.indexOf(QLatin1Char(']'), bracket) - bracket - 1);
    lblDate.setText(entry.mid(at + 3, bracket - at - 4));
    if (hash < 0) {
        program.box(QStringLiteral("No Bill No"));
        return;
    }
    session.gConsultID = entry.mid(hash + 1);
    lblBill.setText(session.gConsultID);
    Connection connection = program.openBilling();
    const Recordset patient(connection,
                            Sql("select fullname,coyname,pcatID,clientcatID,debt from qryhfullname where pno='")
                                << m_pno << "'");
    if (patient.eof())
        return;
    txtDebt.setText(formatNumber(patient.number(QStringLiteral("debt")), twoDecimals));
    const QString category = patient.text(QStringLiteral("clientcatID"));
    const bool isPrivate = category == QLatin1String("PRIVATE") || category == QLatin1String("0001");
    lblCoy.setText(isPrivate ? QStringLiteral("PRIVATE") : patient.text(QStringLiteral("coyName")));
}

void frmReceiptManual::workOutDue() {
    txtEmp.setText(
        formatNumber(parseAmount(txtBill.text()).value_or(0) + parseAmount(txtDebt.text()).value_or(0), twoDecimals));
}

void frmReceiptManual::txtHt_Change() {
    if (txtHt.text().isEmpty())
        return;
    const std::optional<double> amount = parseAmount(txtHt.text());
    txtDuty.setText(amount ? getValInWord(std::abs(*amount)) : QString());
}

void frmReceiptManual::refreshGrid() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(
        connection, Sql("SELECT     ReceiptDate AS Date, rTime as Time, ReceiptNo, Fullname, AmountBilled, "
                        "AmountPaid,(AmountBilled- AmountPaid) as Balance, PaymentFor, AmountInWord, PayType, clinicID "
                        "AS Clinic, Receivedby, BillNO, CoyName FROM qryhBillingReceipt where receiptdate='")
                        << dtDate.date() << "'"));
    const Recordset total(connection,
                          Sql("SELECT sum(AmountPaid) as AmountPaid fROM qryhBillingReceipt where receiptdate='")
                              << dtDate.date() << "'");
    lblTotal.setText(
        formatNumber(total.eof() ? 0 : total.number(QStringLiteral("AmountPaid")), QStringLiteral("#,##0.00")));
}

void frmReceiptManual::cmdPrint_Click() {
    if (grdData.currentRow() < 0)
        return;
    showCashReceipt(program, grdData.text(QStringLiteral("ReceiptNo")));
}

void frmReceiptManual::OKButton_Click() {
    if (!checkFields())
        return;
    if (!program.question(QStringLiteral("Are you sure to save? Please Confirm Receipt Date before Saving"),
                          QStringLiteral("About to save")))
        return;
    save();
    program.box(QStringLiteral("Record Succesfully saved"));
    refreshGrid();
    resetFields();
    setEntry(false);
}

bool frmReceiptManual::checkFields() {
    const struct {
        bool missing;
        const char* text;
        Control& control;
    } checks[] = {
        {dtDate.isEmpty(), "Please enter Receipt Date", dtDate},
        {txtRct.text().trimmed().isEmpty(), "Please enter Receipt No", txtRct},
        {cboVehNo.text().isEmpty(), "Please Select Patient Name", cboVehNo},
        {txtHt.text().trimmed().isEmpty(), "Please enter Amount Paid", txtHt},
        {cboCat.text().isEmpty(), "Please enter Payment Purpose", cboCat},
        {cboReceived.text().isEmpty(), "Please enter Name of Receiver", cboReceived},
        {cboPay.text().isEmpty(), "Please enter Payment type", cboPay},
        {cboClinic.text().isEmpty(), "Please enter Clinic type", cboClinic},
        // Texts where a number belongs, and a bill nobody picked, are refused in the words of their own checks.
        {!parseAmount(txtHt.text()) || *parseAmount(txtHt.text()) < 0, "Please enter Amount Paid", txtHt},
        {!txtBill.text().trimmed().isEmpty() && parseAmount(txtBill.text()).value_or(-1) < 0,
         "Please enter Amount Billed", txtBill},
        {lblBill.text().isEmpty(), "Please Select Patient Name", cboVehNo},
    };
    for (const auto& check : checks) {
        if (check.missing) {
            program.box(QLatin1String(check.text));
            check.control.setFocus();
            return false;
        }
    }
    return true;
}

void frmReceiptManual::save() {
    const double billed = parseAmount(txtBill.text()).value_or(0);
    const double paid = *parseAmount(txtHt.text());
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    const double newTotal = writeBill(connection);
    postPatientTran(program, connection, dtDate.date(), m_pno, lblBill.text(), -billed, session.gBillTo,
                    QStringLiteral("Payment"));
    writePayment(connection, newTotal);
    postPatientTran(program, connection, dtDate.date(), m_pno, lblBill.text(), paid, session.gBillTo,
                    QStringLiteral("Payment"));
    Recordset bill(connection, Sql("select * from Billing where billno='") << lblBill.text() << "'");
    bill.set(QStringLiteral("isPaid"),
             bill.number(QStringLiteral("AmountPaid")) >= bill.number(QStringLiteral("Amountbilled")) ? 1 : 0);
    bill.update();
    program.writeAuditTrail(session.gUsername, QStringLiteral("insert Payment for: ") + cboVehNo.text(), lblBill.text(),
                            QString::number(paid, 'f', 2), session.sComputerName);
    transaction.commit();
}

double frmReceiptManual::writeBill(Connection& connection) {
    Recordset bill(connection, Sql("select * from billing where billNo='") << lblBill.text() << "'");
    const bool isNew = bill.eof();
    const double billed =
        (isNew ? 0 : bill.number(QStringLiteral("Amountbilled"))) + parseAmount(txtBill.text()).value_or(0);
    const double paid = (isNew ? 0 : bill.number(QStringLiteral("AmountPaid"))) + *parseAmount(txtHt.text());
    if (isNew)
        bill.addNew();
    bill.set(QStringLiteral("bdate"), dtDate.date());
    bill.set(QStringLiteral("billNo"), lblBill.text());
    bill.set(QStringLiteral("PNo"), m_pno);
    bill.set(QStringLiteral("clientID"), lblCoy.text());
    bill.set(QStringLiteral("Amountbilled"), billed);
    bill.set(QStringLiteral("AmountBIlledInWord"), QStringLiteral("XXX"));
    bill.set(QStringLiteral("AmountPaid"), paid);
    bill.set(QStringLiteral("profFee"), 0);
    bill.set(QStringLiteral("AmtBF"), 0);
    bill.set(QStringLiteral("billingMonth"), QLocale::c().monthName(dtDate.date().month()));
    bill.set(QStringLiteral("billingYear"), QString::number(dtDate.date().year()));
    bill.set(QStringLiteral("diagnosis"), QStringLiteral("XXX"));
    bill.set(QStringLiteral("billType"), QStringLiteral("CASH"));
    bill.update();
    return billed;
}

// The remark of a manual receipt is always "CASH", whatever its pay type.
void frmReceiptManual::writePayment(Connection& connection, double billed) {
    const QString receiver = cboReceived.text();
    Receipt receipt;
    receipt.receiptDate = dtDate.date();
    receipt.receiptNo = formReceiptNumber(program, connection, ReceiptForm::Paper, txtRct.text()).number;
    receipt.clinicID = cboClinic.text();
    receipt.billNo = lblBill.text();
    receipt.pno = m_pno;
    receipt.paymentFor = cboCat.text();
    receipt.amountBilled = billed;
    receipt.amountPaid = *parseAmount(txtHt.text());
    receipt.amountInWord = txtDuty.text();
    receipt.receivedBy = receiver.mid(receiver.lastIndexOf(QLatin1Char('[')) + 1).chopped(1);
    receipt.payType = cboPay.text();
    receipt.time = program.ui().now().time();
    receipt.remarks = QStringLiteral("CASH");
    addPayment(program, connection, receipt);
}

void frmReceiptManual::resetFields() {
    cboVehNo.setListIndex(-1);
    for (TextBox* box : {&txtRct, &txtBill, &txtDebt, &txtEmp, &txtHt, &txtDuty})
        box->clear();
    for (Label* label : {&lblBill, &lblCoy, &lblDate})
        label->clear();
    m_pno.clear();
}

} // namespace orvane
