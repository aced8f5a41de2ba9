#include "receipts/frmReceiptTemp.h"

#include "data/words/Money.h"
#include "receipts/AmountInWords.h"
#include "receipts/ListEntry.h"
#include "receipts/PatientAccount.h"
#include "receipts/VisitFacts.h"
#include "receipts/frmCashReceipt.h"

namespace orvane {

namespace {

/// What stands for the number until a save forms it: it passes the first check and is never stored.
const QString numberToCome = "XX";

} // namespace

frmReceiptTemp::frmReceiptTemp(Program& owner) : Screen(owner, "frmReceiptTemp", "Receipt Entry") {
    for (TextBox* box : {&txtEmp, &txtHt})
        box->numeric();
    for (TextBox* box : {&txtBill, &txtEmp, &txtDuty, &txtDiag})
        box->setLocked(true);
    txtDuty.multiline();
    connectHandlers();
}

void frmReceiptTemp::connectHandlers() {
    cmdInv.onClick = [this] { cmdInv_Click(); };
    cboVehNo.onClick = [this] { cboVehNo_Click(); };
    txtHt.onChange = [this] { showAmountInWords(txtHt, txtDuty); };
    chkRev.onClick = [this] { chkRev_Click(); };
    cmdAdd.onClick = [this] { cmdAdd_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
    cmdPrint.onClick = [this] { cmdPrint_Click(); };
    cmdRev.onClick = [this] { cmdRev_Click(); };
    OKButton.onClick = [this] { OKButton_Click(); };
    CancelButton.onClick = [this] { unload(); };
}

Layout frmReceiptTemp::layout() const {
    using namespace orvane::layout;
    return column({row({field("Attendance Date between", DTPicker1), field("and", DTPicker2), cell(cmdInv), stretch()}),
                   field("Patient", cboVehNo),
                   facts({{"Receipt for", &Label5},
                          {"Receipt No", &lblRct},
                          {"Bill date", &lblDate},
                          {"Clinic Type", &lblClinic2}}),
                   row({column({row({field("Bill No", txtBill, 20), field("Receipt Date", dtDate)}),
                                row({field("Being Payment for", cboCat, 38), field("Pay Type", cboPay, 14)}),
                                field("Diagnosis", txtDiag), cell(chkRev)}),
                        card({field("Current Bill", lblCurr), field("Amount Paid", lblDep), field("Amount Due", txtEmp),
                              large("Fresh Payment", txtHt), cell(lblDuty), cell(txtDuty)})}),
                   growing(cell(grdData)),
                   buttons({&cmdRev, &cmdPrint}, {&cmdAdd, &cmdCancel, &CancelButton, &OKButton})});
}

void frmReceiptTemp::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    for (DatePicker* picker : {&dtDate, &DTPicker1, &DTPicker2})
        picker->setDate(today);
    cboCat.addItems({"REGISTRATION", "CONSULTATION ", "CONSULTATION  AND DRUGS", "DRUGS", "GP REVIEW",
                     "SPECIALIST REVIEW", "ANTE NATAL", "EXAMINATION", "ADMISSION", "GP FIRST VISIT",
                     "SPECIALIST FIRST VISIT", "CONSULTATION  AND INJECTION", "CONSULTATION  AND DRESSING",
                     "CONSULTATION  AND INJECTION/INJECTION"});
    // One blank, where the entry has two: a text that is not of the list.
    cboCat.setText("CONSULTATION AND DRUGS");
    cboPay.addItems({"CASH", "CHEQUE"});
    cboPay.setText("CASH");
    for (const char* column : {"AmountBilled", "AmountPaid", "AmountDue"})
        grdData.setFormat(QLatin1String(column), "#,###.00");
    chkRev.setEnabled(false);
    setEntry(false);
    loadGrid(true);
}

void frmReceiptTemp::setEntry(bool entering) {
    for (Control* control :
         std::initializer_list<Control*>{&cboVehNo, &cboCat, &cboPay, &txtHt, &dtDate, &OKButton, &cmdCancel})
        control->setEnabled(entering);
    cmdAdd.setEnabled(!entering);
    if (!entering)
        cmdAdd.setFocus();
    cmdInv.setEnabled(true);
    cmdPrint.setEnabled(true);
}

void frmReceiptTemp::cmdInv_Click() {
    cboVehNo.clear();
    cboVehNo.addItem({});
    Connection connection = program.openBilling();
    Recordset bills(connection,
                    Sql("select distinct billno,fullname from qryBillingBalanceDueForPrivate  where  date between '")
                        << DTPicker1.date() << "' and '" << DTPicker2.date() << "' order by fullname");
    for (; !bills.eof(); bills.moveNext())
        cboVehNo.addItem(bills.text("fullname") + " [" + bills.text("billno") + "]");
}

void frmReceiptTemp::cboVehNo_Click() {
    if (m_reversal || cboVehNo.listIndex() < 0)
        return;
    const ListEntry entry = readListEntry(cboVehNo.text());
    if (entry.number.isEmpty()) {
        session.gConsultID.clear();
        clearBill();
        program.box("No Consultation No");
        return;
    }
    session.gConsultID = entry.number;
    Label5.setText(entry.name);
    loadBillFigures();
    loadGrid(false);
}

/// The figures of the bill in session.gConsultID. One that is not due any more is no bill to receive money for.
void frmReceiptTemp::loadBillFigures() {
    clearBill();
    txtBill.setText("0");
    QString billNo, pno;
    {
        Connection connection = program.openBilling();
        const Recordset bill(connection,
                             Sql("select distinct Date,billno,pno,amountbilled,currentDebt,prevDebt,AmountPaid from "
                                 "qryBillingBalanceDueForPrivate where billno='")
                                 << session.gConsultID << "'");
        if (!bill.eof()) {
            billNo = bill.text("billno");
            pno = bill.text("pno");
            txtBill.setText(billNo);
            lblDate.setText(bill.date("Date").toString("dd/MM/yyyy"));
            lblCurr.setText(formatTwoDecimals(bill.number("amountbilled")));
        }
        txtDiag.setText(diagnosisOfVisit(connection, session.gConsultID));
        lblClinic2.setText(clinicOfVisit(connection, session.gConsultID));
    }
    const double paid = refreshBillAmountPaid(program, session.gConsultID);
    lblDep.setText(formatTwoDecimals(paid));
    txtEmp.setText(formatTwoDecimals(parseAmount(lblCurr.text()).value_or(0) - paid));
    // Only now: a bill that a fault left half read takes no money.
    m_billNo = billNo;
    m_pno = pno;
}

void frmReceiptTemp::clearBill() {
    m_billNo.clear();
    m_pno.clear();
    for (Label* figure : {&lblCurr, &lblDep})
        figure->setText("0");
    for (Label* label : {&lblDate, &lblClinic2})
        label->clear();
    for (TextBox* box : {&txtBill, &txtEmp, &txtDiag})
        box->clear();
}

void frmReceiptTemp::loadGrid(bool all) {
    Sql sql("SELECT ReceiptDate, Fullname,AmountBilled, AmountPaid,(AmountBilled-AmountPaid) as AmountDue, PaymentFor, "
            "ReceiptNo, "
            "BillNO,retainName as Company,pno as PatNo From qryPayments ");
    if (all)
        sql << "where ReceiptDate='" << session.gServerDate << "' order by fullname";
    else
        sql << "where BillNo='" << session.gConsultID << "' order by ReceiptNo desc";
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, sql));
}

void frmReceiptTemp::chkRev_Click() {
    if (chkRev.isChecked() && cboVehNo.text().isEmpty())
        program.box("No Patient is selected");
}

void frmReceiptTemp::cmdAdd_Click() {
    setEntry(true);
    cmdInv_Click();
    chkRev.setChecked(false);
    lblRct.setText(numberToCome);
    cboVehNo.setFocus();
}

void frmReceiptTemp::cmdCancel_Click() {
    resetFields();
    setEntry(false);
}

void frmReceiptTemp::resetFields() {
    // The date of a reversed receipt must not become that of the next one.
    if (m_reversal)
        dtDate.setDate(session.gServerDate);
    m_reversal = false;
    m_reversedNo.clear();
    clearBill();
    cboVehNo.setListIndex(-1);
    cboPay.setListIndex(-1);
    cboCat.setText("GOODS PURCHASED");
    txtHt.clear();
    txtDuty.clear();
    lblRct.clear();
    chkRev.setChecked(false);
    chkRev.setEnabled(false);
    Label5.setText("Receipt Information");
}

/// Prints the receipt that is selected in the grid: a save leaves the one that it made selected.
void frmReceiptTemp::cmdPrint_Click() {
    const QString number = grdData.text("ReceiptNo");
    if (number.isEmpty()) {
        program.box("Save Receipt Information before printing");
        return;
    }
    showCashReceipt(program, number);
    cmdPrint.setEnabled(false);
}

void frmReceiptTemp::cmdRev_Click() {
    if (!mayReverse()) {
        program.box("You dont have Permission to Reverse a Receipt Entry");
        return;
    }
    if (grdData.number("AmountPaid") < 0) {
        program.box("Cannot Reverse a Reversed Entry");
        return;
    }
    if (grdData.text("receiptNo").isEmpty()) {
        program.box("No Record is selected in the Grid");
        return;
    }
    resetFields();
    m_reversal = true;
    setEntry(true);
    chkRev.setEnabled(true);
    fillReversal();
    for (Control* control : std::initializer_list<Control*>{&cboCat, &cboPay, &txtHt, &cboVehNo, &cmdInv})
        control->setEnabled(false);
}

bool frmReceiptTemp::mayReverse() {
    Connection connection = program.openBilling();
    return !Recordset(connection, Sql("select username from vwusers where loginrole = 'MANAGEMENT' and username='")
                                      << session.gUsername << "'")
                .eof();
}

/// The opposite of the receipt that is selected in the grid, always in cash.
void frmReceiptTemp::fillReversal() {
    session.gConsultID = grdData.text("billno");
    loadBillFigures();
    m_reversedNo = grdData.text("receiptNo");
    m_billNo = session.gConsultID;
    m_pno = grdData.text("patNo");
    // The number is formed inside the save; until then the same mark as on a new receipt stands for it.
    lblRct.setText(numberToCome);
    txtBill.setText(m_billNo);
    dtDate.setDate(grdData.date("receiptDate"));
    txtEmp.setText(formatTwoDecimals(0 - grdData.number("AmountBilled")));
    txtHt.setText(formatTwoDecimals(0 - grdData.number("AmountPaid")));
    cboCat.setText("REVERSAL for RctNo: " + m_reversedNo);
    cboPay.setText("CASH");
    const QString name = grdData.text("Fullname");
    cboVehNo.addItem(name + " [" + m_billNo + ']');
    cboVehNo.setListIndex(cboVehNo.count() - 1);
    Label5.setText(name);
}

} // namespace orvane
