#include "receipts/frmReceiptManual.h"

#include "data/words/Money.h"
#include "receipts/AmountInWords.h"
#include "receipts/ListEntry.h"
#include "receipts/PatientAccount.h"
#include "receipts/ReceiptNumber.h"
#include "receipts/ReceiptRows.h"
#include "receipts/frmCashReceipt.h"

#include <QLocale>

namespace orvane {

frmReceiptManual::frmReceiptManual(Program& owner) : Screen(owner, "frmReceiptManual", "Entries from Manual Receipt") {
    for (TextBox* box : {&txtBill, &txtDebt, &txtEmp, &txtHt})
        box->numeric();
    for (TextBox* box : {&txtEmp, &txtDuty})
        box->setLocked(true);
    txtDuty.multiline();
    connectHandlers();
}

void frmReceiptManual::connectHandlers() {
    cmdList.onClick = [this] { cmdList_Click(); };
    cboVehNo.onClick = [this] { cboVehNo_Click(); };
    txtBill.onChange = [this] { workOutDue(); };
    txtDebt.onChange = [this] { workOutDue(); };
    txtHt.onChange = [this] { showAmountInWords(txtHt, txtDuty); };
    cmdRefresh.onClick = [this] { refreshGrid(); };
    cmdPrint.onClick = [this] { cmdPrint_Click(); };
    cmdAdd.onClick = [this] { cmdAdd_Click(); };
    OKButton.onClick = [this] { OKButton_Click(); };
    CancelButton.onClick = [this] { unload(); };
}

Layout frmReceiptManual::layout() const {
    using namespace orvane::layout;
    return column({row({field("Attendance between", DTPicker1), field("and", DTPicker2), cell(cmdList), stretch()}),
                   field("Patient", cboVehNo),
                   facts({{"Bill No", &lblBill}, {"Client", &lblCoy}, {"Attendance", &lblDate}}),
                   row({column({row({field("Receipt No", txtRct, 18), field("Pay Type", cboPay, 14)}),
                                row({field("Receipt Date", dtDate), field("Clinic Type", cboClinic, 24)}),
                                field("Being Payment for", cboCat), field("Received By", cboReceived)}),
                        card({field("Amount Billed", txtBill), field("Debt", txtDebt), field("Amount Due", txtEmp),
                              large("Amount Paid", txtHt), cell(txtDuty)})}),
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
        grdData.setFormat(QLatin1String(column), "#,###.00");
    grdData.setWidth("AmountInWord", 30);
    listVisits(Sql("select distinct recdate,pno,fullname,consultID from qryhVisits where  recdate = '")
               << session.dWorkDate << "'");
    refreshGrid();
    setEntry(false);
}

void frmReceiptManual::loadLists() {
    cboCat.addItems({"CARD", "CONSULTING", "CONSULTING AND DRUGS", "DRUGS", "GP REVIEW", "SPECIALIST REVIEW",
                     "ANTE NATAL", "EXAMINATION", "ADMISSION", "GP FIRST VISIT", "SPECIALIST FIRST VISIT",
                     "CONSULTING AND INJECTION", "CONSULTING AND DRESSING", "CONSULTING AND INJECTION/INJECTION"});
    cboCat.setText("CONSULTING AND DRUGS");
    cboPay.addItems({"CASH", "CHEQUE"});
    cboPay.setText("CASH");
    Connection connection = program.openBilling();
    for (Recordset officers(connection, Sql("select empID,lastname,firstname from employees where deptID = 'ACC'"));
         !officers.eof(); officers.moveNext())
        cboReceived.addItem(officers.text("lastname") + " " + officers.text("firstname") + " [" +
                            officers.text("empID") + "]");
    for (Recordset clinics(connection, Sql("select ClinicID from clinicTypes")); !clinics.eof(); clinics.moveNext())
        cboClinic.addItem(clinics.text("ClinicID"));
    cboClinic.setText("OUT-PATIENT");
}

void frmReceiptManual::setEntry(bool entering) {
    for (Control* control : std::initializer_list<Control*>{&cboVehNo, &txtRct, &dtDate, &cboCat, &cboReceived, &cboPay,
                                                            &cboClinic, &txtBill, &txtDebt, &txtHt, &OKButton})
        control->setEnabled(entering);
    cmdAdd.setEnabled(!entering);
    if (!entering)
        cmdAdd.setFocus();
}

void frmReceiptManual::listVisits(const Sql& sql) {
    cboVehNo.clear();
    Connection connection = program.openBilling();
    for (Recordset visits(connection, sql); !visits.eof(); visits.moveNext())
        cboVehNo.addItem(visits.text("fullname") + " @ " + visits.date("recdate").toString("dd/MM/yyyy") + " [" +
                         visits.text("pno") + "]#" + visits.text("consultID"));
}

void frmReceiptManual::cmdList_Click() {
    listVisits(Sql("select distinct recdate,pno,fullname,consultID from qryhVisits where  recdate between '")
               << DTPicker1.date() << "' and '" << DTPicker2.date() << " '");
}

void frmReceiptManual::cmdAdd_Click() {
    resetFields();
    setEntry(true);
    cboVehNo.setFocus();
}

void frmReceiptManual::cboVehNo_Click() {
    if (cboVehNo.listIndex() < 0)
        return;
    clearPatient();
    const ListEntry entry = readListEntry(cboVehNo.text());
    if (entry.bill.isEmpty()) {
        program.box("No Bill No");
        return;
    }
    m_pno = entry.number;
    lblDate.setText(entry.name.mid(entry.name.lastIndexOf(" @ ") + 3));
    session.gConsultID = entry.bill;
    Connection connection = program.openBilling();
    const Recordset patient(connection,
                            Sql("select fullname,coyname,pcatID,clientcatID,debt from qryhfullname where pno='")
                                << m_pno << "'");
    // Only now: a patient whom a fault left half read gets no bill.
    lblBill.setText(entry.bill);
    if (patient.eof())
        return;
    txtDebt.setText(formatTwoDecimals(patient.number("debt")));
    const QString category = patient.text("clientcatID");
    const bool isPrivate = category == "PRIVATE" || category == "0001";
    lblCoy.setText(isPrivate ? "PRIVATE" : patient.text("coyName"));
}

void frmReceiptManual::workOutDue() {
    txtEmp.setText(
        formatTwoDecimals(parseAmount(txtBill.text()).value_or(0) + parseAmount(txtDebt.text()).value_or(0)));
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
    lblTotal.setText(formatTwoDecimals(total.eof() ? 0 : total.number("AmountPaid")));
}

void frmReceiptManual::cmdPrint_Click() {
    const QString number = grdData.text("ReceiptNo");
    if (number.isEmpty())
        program.box("Save Receipt Information before printing");
    else
        showCashReceipt(program, number);
}

void frmReceiptManual::OKButton_Click() {
    if (settlesSave() || !checkFields())
        return;
    if (!program.question("Are you sure to save? Please Confirm Receipt Date before Saving", "About to save"))
        return;
    if (!saveOnce(
            OKButton, [this] { return save(); }, [this] { afterSave(); }))
        program.box("This Bill is already processed! to Modify, unProcess the Batch");
}

void frmReceiptManual::afterSave() {
    // At once, so that no fault in what follows leaves an entry that could be saved again.
    resetFields();
    setEntry(false);
    program.box("Record Succesfully saved");
    refreshGrid();
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
        // Texts where a number belongs, a patient nobody picked and a receiver without his number are refused in the
        // words of their own checks.
        {!parseAmount(txtHt.text()) || *parseAmount(txtHt.text()) < 0, "Please enter Amount Paid", txtHt},
        {!txtBill.text().trimmed().isEmpty() && parseAmount(txtBill.text()).value_or(-1) < 0,
         "Please enter Amount Billed", txtBill},
        {cboVehNo.listIndex() < 0 || lblBill.text().isEmpty(), "Please Select Patient Name", cboVehNo},
        {readListEntry(cboReceived.text()).number.isEmpty(), "Please enter Name of Receiver", cboReceived},
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

/// False: the bill is on an invoice already and may not grow any more.
bool frmReceiptManual::save() {
    // In whole kobo, as they are printed.
    const double billed = round2(parseAmount(txtBill.text()).value_or(0));
    const double paid = round2(*parseAmount(txtHt.text()));
    session.gConsultID = lblBill.text();
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    Recordset bill(connection, Sql("select * from billing where billNo='") << lblBill.text() << "'");
    if (!bill.eof() && bill.integer("isProcess") != 0)
        return false;
    const double newTotal = writeBill(bill, billed, paid);
    postPatientTran(program, connection, dtDate.date(), m_pno, lblBill.text(), 0 - billed, session.gBillTo, "Payment");
    writePayment(connection, newTotal, paid);
    postPatientTran(program, connection, dtDate.date(), m_pno, lblBill.text(), paid, session.gBillTo, "Payment");
    Recordset total(connection, Sql("select * from Billing where billno='") << lblBill.text() << "'");
    total.set("isPaid", isPaidFlag(total.number("AmountPaid"), total.number("Amountbilled")));
    total.update();
    program.writeAuditTrail({"insert Payment for: " + cboVehNo.text(), lblBill.text(), QString::number(paid, 'f', 2)});
    transaction.commit({.action = name()});
    return true;
}

double frmReceiptManual::writeBill(Recordset& bill, double addedBill, double addedPayment) {
    const bool isNew = bill.eof();
    const double billed = (isNew ? 0 : bill.number("Amountbilled")) + addedBill;
    const double paid = (isNew ? 0 : bill.number("AmountPaid")) + addedPayment;
    if (isNew)
        bill.addNew();
    bill.set("bdate", dtDate.date());
    bill.set("billNo", lblBill.text());
    bill.set("PNo", m_pno);
    bill.set("clientID", lblCoy.text());
    bill.set("Amountbilled", billed);
    bill.set("AmountBIlledInWord", "XXX");
    bill.set("AmountPaid", paid);
    bill.set("profFee", 0);
    bill.set("AmtBF", 0);
    bill.set("billingMonth", QLocale::c().monthName(dtDate.date().month()));
    bill.set("billingYear", QString::number(dtDate.date().year()));
    bill.set("diagnosis", "XXX");
    bill.set("billType", "CASH");
    bill.update();
    return billed;
}

// The remark of a manual receipt is always "CASH", whatever its pay type.
void frmReceiptManual::writePayment(Connection& connection, double billed, double paid) {
    ReceiptEntry receipt;
    receipt.receiptDate = dtDate.date();
    receipt.receiptNo = formReceiptNumber(program, connection, ReceiptForm::Paper, txtRct.text()).number;
    receipt.clinicID = cboClinic.text();
    receipt.billNo = lblBill.text();
    receipt.pno = m_pno;
    receipt.paymentFor = cboCat.text();
    receipt.amountBilled = billed;
    receipt.amountPaid = paid;
    receipt.amountInWord = txtDuty.text();
    receipt.receivedBy = readListEntry(cboReceived.text()).number;
    receipt.payType = cboPay.text();
    receipt.time = ui().now().time();
    receipt.remarks = "CASH";
    addPayment(program, connection, receipt);
}

void frmReceiptManual::resetFields() {
    cboVehNo.setListIndex(-1);
    clearPatient();
    for (TextBox* box : {&txtRct, &txtBill, &txtHt, &txtDuty})
        box->clear();
}

void frmReceiptManual::clearPatient() {
    for (Label* label : {&lblBill, &lblCoy, &lblDate})
        label->clear();
    txtDebt.clear();
    m_pno.clear();
}

} // namespace orvane
