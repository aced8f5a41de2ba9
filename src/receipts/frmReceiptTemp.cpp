#include "receipts/frmReceiptTemp.h"

#include "data/Money.h"
#include "receipts/PatientAccount.h"
#include "receipts/frmCashReceipt.h"
#include "session/Words.h"

#include <cmath>

namespace orvane {

namespace {

const QString twoDecimals = QStringLiteral("0.00");

/// What stands for the number until a save forms it: it passes the first check and is never stored.
const QString numberToCome = QStringLiteral("XX");

} // namespace

frmReceiptTemp::frmReceiptTemp(Program& owner)
    : Screen(owner, QStringLiteral("frmReceiptTemp"), QStringLiteral("Receipt Entry")) {
    for (TextBox* box : {&txtEmp, &txtHt})
        box->numeric();
    for (TextBox* box : {&txtBill, &txtEmp, &txtDuty, &txtDiag})
        box->setLocked(true);
    connectHandlers();
}

void frmReceiptTemp::connectHandlers() {
    cmdInv.onClick = [this] { cmdInv_Click(); };
    cboVehNo.onClick = [this] { cboVehNo_Click(); };
    txtHt.onChange = [this] { txtHt_Change(); };
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
    return column(
        {row({field("Attendance Date between", DTPicker1), field("and", DTPicker2), cell(cmdInv), stretch()}),
         field("Patient", cboVehNo),
         facts({{"Receipt", &Label5}, {"Receipt No", &lblRct}, {"Bill date", &lblDate}, {"Clinic Type", &lblClinic2}}),
         growing(row({column({field("Bill No", txtBill, 18), field("Receipt Date", dtDate),
                              field("Being Payment for", cboCat, 34), field("Pay Type", cboPay, 14),
                              field("Diagnosis", txtDiag, 34), cell(chkRev), stretch()}),
                      growing(cell(grdData)),
                      card({field("Current Bill", lblCurr), field("Amount Paid", lblDep), field("Amount Due", txtEmp),
                            large("Fresh Payment", txtHt), field("In Words", txtDuty)})})),
         buttons({&cmdRev, &cmdPrint}, {&cmdAdd, &cmdCancel, &CancelButton, &OKButton})});
}

void frmReceiptTemp::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    for (DatePicker* picker : {&dtDate, &DTPicker1, &DTPicker2})
        picker->setDate(today);
    cboCat.addItems({QStringLiteral("REGISTRATION"), QStringLiteral("CONSULTATION "),
                     QStringLiteral("CONSULTATION  AND DRUGS"), QStringLiteral("DRUGS"), QStringLiteral("GP REVIEW"),
                     QStringLiteral("SPECIALIST REVIEW"), QStringLiteral("ANTE NATAL"), QStringLiteral("EXAMINATION"),
                     QStringLiteral("ADMISSION"), QStringLiteral("GP FIRST VISIT"),
                     QStringLiteral("SPECIALIST FIRST VISIT"), QStringLiteral("CONSULTATION  AND INJECTION"),
                     QStringLiteral("CONSULTATION  AND DRESSING"),
                     QStringLiteral("CONSULTATION  AND INJECTION/INJECTION")});
    // One blank, where the entry has two: a text that is not of the list.
    cboCat.setText(QStringLiteral("CONSULTATION AND DRUGS"));
    cboPay.addItems({QStringLiteral("CASH"), QStringLiteral("CHEQUE")});
    cboPay.setText(QStringLiteral("CASH"));
    for (const char* column : {"AmountBilled", "AmountPaid", "AmountDue"})
        grdData.setFormat(QLatin1String(column), QStringLiteral("#,###.00"));
    chkRev.setEnabled(false);
    setEntry(false);
    loadGrid(true);
}

void frmReceiptTemp::setEntry(bool entering) {
    for (Control* control :
         std::initializer_list<Control*>{&cboVehNo, &cboCat, &cboPay, &txtHt, &dtDate, &OKButton, &cmdCancel})
        control->setEnabled(entering);
    cmdAdd.setEnabled(!entering);
}

void frmReceiptTemp::cmdInv_Click() {
    cboVehNo.clear();
    cboVehNo.addItem({});
    Connection connection = program.openBilling();
    Recordset bills(connection,
                    Sql("select distinct billno,fullname from qryBillingBalanceDueForPrivate  where  date between '")
                        << DTPicker1.date() << "' and '" << DTPicker2.date() << "' order by fullname");
    for (; !bills.eof(); bills.moveNext())
        cboVehNo.addItem(bills.text(QStringLiteral("fullname")) + QStringLiteral(" [") +
                         bills.text(QStringLiteral("billno")) + QStringLiteral("]"));
}

void frmReceiptTemp::cboVehNo_Click() {
    if (m_reversal || cboVehNo.listIndex() < 0)
        return;
    const QString entry = cboVehNo.text();
    const auto bracket = entry.lastIndexOf(QLatin1Char('['));
    if (bracket < 0) {
        session.gConsultID.clear();
        program.box(QStringLiteral("No Consultation No"));
        return;
    }
    session.gConsultID = entry.mid(bracket + 1).chopped(1);
    Label5.setText(entry.left(bracket).trimmed());
    loadBillFigures();
    loadGrid(false);
}

void frmReceiptTemp::loadBillFigures() {
    {
        Connection connection = program.openBilling();
        const Recordset bill(connection,
                             Sql("select distinct Date,billno,pno,amountbilled,currentDebt,prevDebt,AmountPaid from "
                                 "qryBillingBalanceDueForPrivate where billno='")
                                 << session.gConsultID << "'");
        if (bill.eof()) {
            txtBill.setText(QStringLiteral("0"));
            lblCurr.setText(QStringLiteral("0"));
            lblDep.setText(QStringLiteral("0"));
            lblDate.clear();
        } else {
            txtBill.setText(bill.text(QStringLiteral("billno")));
            lblDate.setText(bill.date(QStringLiteral("Date")).toString(QStringLiteral("dd/MM/yyyy")));
            lblCurr.setText(formatNumber(bill.number(QStringLiteral("amountbilled")), twoDecimals));
            m_pno = bill.text(QStringLiteral("pno"));
        }
    }
    const double paid = refreshBillAmountPaid(program, session.gConsultID);
    lblDep.setText(formatNumber(paid, twoDecimals));
    txtEmp.setText(formatNumber(parseAmount(lblCurr.text()).value_or(0) - paid, twoDecimals));
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

// The words of a reversal read like those of a receipt.
void frmReceiptTemp::txtHt_Change() {
    if (txtHt.text().isEmpty())
        return;
    const std::optional<double> amount = parseAmount(txtHt.text());
    txtDuty.setText(amount ? getValInWord(std::abs(*amount)) : QString());
}

void frmReceiptTemp::chkRev_Click() {
    if (chkRev.isChecked() && cboVehNo.text().isEmpty())
        program.box(QStringLiteral("No Patient is selected"));
}

void frmReceiptTemp::cmdAdd_Click() {
    setEntry(true);
    cmdInv_Click();
    chkRev.setChecked(false);
    m_reversal = false;
    lblRct.setText(numberToCome);
    cboVehNo.setFocus();
}

void frmReceiptTemp::cmdCancel_Click() {
    m_reversal = false;
    resetFields();
    setEntry(false);
}

void frmReceiptTemp::resetFields() {
    lblCurr.setText(QStringLiteral("0"));
    lblDep.setText(QStringLiteral("0"));
    cboVehNo.setListIndex(-1);
    cboPay.setListIndex(-1);
    cboCat.setText(QStringLiteral("GOODS PURCHASED"));
    for (TextBox* box : {&txtEmp, &txtHt, &txtDuty, &txtBill, &txtDiag})
        box->clear();
    for (Label* label : {&lblRct, &lblDate, &lblClinic2})
        label->clear();
    chkRev.setChecked(false);
    chkRev.setEnabled(false);
    Label5.setText(QStringLiteral("Receipt Information"));
    m_pno.clear();
    m_reversedNo.clear();
}

void frmReceiptTemp::cmdPrint_Click() {
    const QString number = lblRct.text().isEmpty() || lblRct.text() == numberToCome
                               ? (grdData.currentRow() < 0 ? QString() : grdData.text(QStringLiteral("ReceiptNo")))
                               : lblRct.text();
    if (number.isEmpty()) {
        program.box(QStringLiteral("Save Receipt Information before printing"));
        return;
    }
    showCashReceipt(program, number);
    cmdPrint.setEnabled(false);
}

void frmReceiptTemp::cmdRev_Click() {
    {
        Connection connection = program.openBilling();
        const Recordset manager(connection,
                                Sql("select username from vwusers where loginrole = 'MANAGEMENT' and username='")
                                    << session.gUsername << "'");
        if (manager.eof()) {
            program.box(QStringLiteral("You dont have Permission to Reverse a Receipt Entry"));
            return;
        }
    }
    if (grdData.number(QStringLiteral("AmountPaid")) < 0) {
        program.box(QStringLiteral("Cannot Reverse a Reversed Entry"));
        return;
    }
    m_reversedNo = grdData.text(QStringLiteral("receiptNo"));
    if (m_reversedNo.isEmpty()) {
        program.box(QStringLiteral("No Record is selected in the Grid"));
        return;
    }
    m_reversal = true;
    setEntry(true);
    chkRev.setEnabled(true);
    session.gConsultID = grdData.text(QStringLiteral("billno"));
    const QString name = grdData.text(QStringLiteral("Fullname"));
    const double billed = grdData.number(QStringLiteral("AmountBilled"));
    const double paid = grdData.number(QStringLiteral("AmountPaid"));
    loadBillFigures();
    // The number is formed inside the save; until then the same mark as on a new receipt stands for it.
    lblRct.setText(numberToCome);
    txtBill.setText(session.gConsultID);
    dtDate.setDate(grdData.date(QStringLiteral("receiptDate")));
    txtEmp.setText(formatNumber(-billed, twoDecimals));
    txtHt.setText(formatNumber(-paid, twoDecimals));
    cboCat.setText(QStringLiteral("REVERSAL for RctNo: ") + m_reversedNo);
    cboPay.setText(QStringLiteral("CASH"));
    m_pno = grdData.text(QStringLiteral("patNo"));
    for (Control* control : std::initializer_list<Control*>{&cboCat, &cboPay, &txtHt, &cboVehNo})
        control->setEnabled(false);
    cboVehNo.addItem(name + QStringLiteral(" [") + session.gConsultID + QStringLiteral("]"));
    cboVehNo.setListIndex(cboVehNo.count() - 1);
    Label5.setText(name);
}

} // namespace orvane
