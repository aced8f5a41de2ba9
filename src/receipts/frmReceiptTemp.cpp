#include "receipts/frmReceiptTemp.h"

#include "books/Bill.h"
#include "books/BillReceipt.h"
#include "books/VisitFacts.h"
#include "data/words/Money.h"
#include "receipts/MoneyFields.h"
#include "receipts/frmCashReceipt.h"
#include "session/ListedVisit.h"

namespace orvane {

namespace {

/// What stands for the number until a save forms it: it passes the first check and is never stored.
const QString numberToCome = "XX";
const QString noRecord = "No Record is selected in the Grid";

} // namespace

frmReceiptTemp::frmReceiptTemp(Program& owner) : Screen(owner, "frmReceiptTemp", "Receipt Entry") {
    for (TextBox* box : {&txtEmp, &txtHt})
        box->numeric();
    for (TextBox* box : {&txtBill, &txtEmp, &txtDuty, &txtDiag})
        box->setLocked(true);
    txtDuty.multiline();
    for (const char* column : {"AmountBilled", "AmountPaid", "AmountDue"})
        grdData.setFormat(column, "#,###.00");
    grdData.hide({"SNo"});
}

Layout frmReceiptTemp::layout() const {
    using namespace orvane::layout;
    return column({bills.layout(),
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
    dtDate.setDate(today);
    bills.setDates(today);
    cboCat.addItems({"REGISTRATION", "CONSULTATION ", "CONSULTATION  AND DRUGS", "DRUGS", "GP REVIEW",
                     "SPECIALIST REVIEW", "ANTE NATAL", "EXAMINATION", "ADMISSION", "GP FIRST VISIT",
                     "SPECIALIST FIRST VISIT", "CONSULTATION  AND INJECTION", "CONSULTATION  AND DRESSING",
                     "CONSULTATION  AND INJECTION/INJECTION"});
    // One blank, where the entry has two: a text that is not of the list.
    cboCat.setText("CONSULTATION AND DRUGS");
    cboPay.addItems({"CASH", "CHEQUE"});
    cboPay.setText("CASH");
    setEntry(false);
    loadToday();
}

void frmReceiptTemp::setEntry(bool entering) {
    for (Control* control : std::initializer_list<Control*>{&bills.cboVehNo, &cboCat, &cboPay, &txtHt, &dtDate, &chkRev,
                                                            &OKButton, &cmdCancel})
        control->setEnabled(entering);
    cmdAdd.setEnabled(!entering);
    if (!entering)
        cmdAdd.setFocus();
    bills.get.setEnabled(true);
    cmdPrint.setEnabled(true);
}

void frmReceiptTemp::cmdInv_Click() {
    listBills(Sql("where  date between '")
              << bills.DTPicker1.date() << "' and '" << bills.DTPicker2.date() << "' order by fullname");
}

/// His bills that are due, whatever their dates; with "Add" first where no receipt is under way.
Screen::PatientTaker frmReceiptTemp::patientTaker() {
    if (!bills.cboVehNo.isUsable() && !cmdAdd.isUsable())
        return {};
    return [this](const QString& pno) {
        if (!bills.cboVehNo.isUsable())
            cmdAdd_Click();
        listBills(Sql("where pno='") << pno << "' order by billno desc");
        takeOnly(bills.cboVehNo, "This patient has no private bill that is due");
    };
}

void frmReceiptTemp::listBills(const Sql& which) {
    bills.cboVehNo.clear();
    bills.cboVehNo.addItem({});
    Connection connection = program.openBilling();
    Recordset due(connection, Sql("select distinct billno,fullname from qryBillingBalanceDueForPrivate  ") << which);
    for (; !due.eof(); due.moveNext()) {
        const ListedVisit visit{.consultID = due.text("billno"), .pno = {}, .patient = due.text("fullname")};
        bills.cboVehNo.addItem(visit.patient + " [" + visit.consultID + "]", QVariant::fromValue(visit));
    }
}

void frmReceiptTemp::cboVehNo_Click() {
    if (isReversal() || bills.cboVehNo.listIndex() < 0)
        return;
    const auto visit = bills.cboVehNo.picked<ListedVisit>();
    if (!visit) {
        session.gConsultID.clear();
        clearBill();
        program.box("No Consultation No");
        return;
    }
    session.gConsultID = visit->consultID;
    Label5.setText(visit->patient);
    loadBill(visit->consultID);
    loadGrid(Sql("where BillNo='") << visit->consultID << "' order by ReceiptNo desc");
}

/// The figures of a bill. One that is not due any more is no bill to receive money for.
void frmReceiptTemp::loadBill(const QString& billNo) {
    clearBill();
    txtBill.setText("0");
    Connection connection = program.openBilling();
    const Recordset bill(connection,
                         Sql("select distinct Date,billno,pno,amountbilled,currentDebt,prevDebt,AmountPaid from "
                             "qryBillingBalanceDueForPrivate where billno='")
                             << billNo << "'");
    if (!bill.eof()) {
        txtBill.setText(bill.text("billno"));
        lblDate.setText(bill.date("Date").toString("dd/MM/yyyy"));
        lblCurr.setText(formatTwoDecimals(bill.number("amountbilled")));
    }
    txtDiag.setText(diagnosisOfVisit(connection, billNo));
    lblClinic2.setText(clinicOfVisit(connection, billNo));
    const double paid = refreshPaid(billNo);
    lblDep.setText(formatTwoDecimals(paid));
    txtEmp.setText(formatTwoDecimals((bill.eof() ? 0 : bill.number("amountbilled")) - paid));
    // Only now: a bill that a fault left half read takes no money.
    if (bill.eof())
        return;
    m_billNo = bill.text("billno");
    m_pno = bill.text("pno");
}

/// What was paid on the bill, in naira, which its row repeats from now on. That the row could not be brought in step is
/// not shown: what was summed up is the answer, and the next look heals the row.
double frmReceiptTemp::refreshPaid(const QString& billNo) {
    double reached = 0;
    try {
        // In the gate, or a receipt of another workstation could come between the sum and the bill.
        program.desk().save<Saved>("REFRESH", [&](Books& books) -> Given<Saved> {
            reached = sumOfPayments(books.connection, billNo).value_or(0);
            refreshBillAmountPaid(books, billNo);
            return Saved{};
        });
    } catch (const DataError&) {
    }
    return reached;
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

/// The receipts that the end of the statement names; each with its key, for two paper receipts may bear one number.
void frmReceiptTemp::loadGrid(const Sql& which) {
    Connection connection = program.openBilling();
    grdData.load(Recordset(
        connection, Sql("SELECT ReceiptDate, Fullname,AmountBilled, AmountPaid,(AmountBilled-AmountPaid) as AmountDue, "
                        "PaymentFor, ReceiptNo, BillNO,retainName as Company,pno as PatNo,SNo From qryPayments ")
                        << which));
}

void frmReceiptTemp::loadToday() {
    loadGrid(Sql("where ReceiptDate='") << session.gServerDate << "' order by fullname");
}

void frmReceiptTemp::chkRev_Click() {
    if (chkRev.isChecked() && bills.cboVehNo.text().isEmpty())
        program.box("No Patient is selected");
}

void frmReceiptTemp::txtHt_Change() {
    showAmountInWords(txtHt, txtDuty);
}

void frmReceiptTemp::cmdAdd_Click() {
    setEntry(true);
    cmdInv_Click();
    chkRev.setChecked(false);
    lblRct.setText(numberToCome);
    bills.cboVehNo.setFocus();
}

void frmReceiptTemp::cmdCancel_Click() {
    resetFields();
    setEntry(false);
}

void frmReceiptTemp::resetFields() {
    // The date of a reversed receipt must not become that of the next one.
    if (isReversal())
        dtDate.setDate(session.gServerDate);
    m_reversedNo.clear();
    clearBill();
    bills.cboVehNo.setListIndex(-1);
    cboPay.setListIndex(-1);
    cboCat.setText("GOODS PURCHASED");
    txtHt.clear();
    txtDuty.clear();
    lblRct.clear();
    chkRev.setChecked(false);
    Label5.setText("Receipt Information");
}

/// Prints the receipt that is selected in the grid: a save leaves the one that it made selected.
void frmReceiptTemp::cmdPrint_Click() {
    const QString number = grdData.text("ReceiptNo");
    if (number.isEmpty()) {
        program.box("Save Receipt Information before printing");
        return;
    }
    showCashReceipt(program, number, qlonglong(grdData.number("SNo")));
    cmdPrint.setEnabled(false);
}

void frmReceiptTemp::cmdRev_Click() {
    if (!passes({{!mayReverse(), "You dont have Permission to Reverse a Receipt Entry"},
                 {grdData.number("AmountPaid") < 0, "Cannot Reverse a Reversed Entry"},
                 {grdData.text("receiptNo").isEmpty(), noRecord}}))
        return;
    resetFields();
    m_reversedNo = grdData.text("receiptNo");
    setEntry(true);
    fillReversal();
    for (Control* control : std::initializer_list<Control*>{&cboCat, &cboPay, &txtHt, &bills.cboVehNo, &bills.get})
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
    const QString billNo = grdData.text("billno");
    session.gConsultID = billNo;
    loadBill(billNo);
    m_billNo = billNo;
    m_pno = grdData.text("patNo");
    // The number is formed inside the save; until then the same mark as on a new receipt stands for it.
    lblRct.setText(numberToCome);
    txtBill.setText(billNo);
    dtDate.setDate(grdData.date("receiptDate"));
    txtEmp.setText(formatTwoDecimals(0 - grdData.number("AmountBilled")));
    txtHt.setText(formatTwoDecimals(0 - grdData.number("AmountPaid")));
    cboCat.setText(reversalPurpose(m_reversedNo));
    cboPay.setText("CASH");
    const QString name = grdData.text("Fullname");
    bills.cboVehNo.addItem(name + " [" + billNo + ']');
    bills.cboVehNo.setListIndex(bills.cboVehNo.count() - 1);
    Label5.setText(name);
}

bool frmReceiptTemp::isComplete() {
    const bool overpaid = parseAmount(txtEmp.text()).value_or(0) < 0;
    // A name that was typed and not picked is no bill to credit.
    const bool hasCustomer = bills.cboVehNo.listIndex() >= 0 && !m_billNo.isEmpty();
    return passes({{lblRct.text().isEmpty(), "Receipt No Required"},
                   {txtHt.text().trimmed().isEmpty(), "Please enter Amount Paid", &txtHt},
                   {overpaid && !chkRev.isChecked(),
                    "Receipt cannot be Issued!!! Tick Reversal Checkbox to Reverse OR Customer Qualifies for REFUND"},
                   {!hasCustomer, "Please enter Customer Name", &bills.cboVehNo},
                   {cboCat.text().isEmpty(), "Please enter Payment Purpose", &cboCat},
                   {cboPay.text().isEmpty(), "Please enter Payment type", &cboPay},
                   {isReversal() && !chkRev.isChecked(), "Please tick the reversal Checkbox"},
                   // Money goes back only by the reversal of a receipt: neither the tick alone nor a minus is one.
                   {!isReversal() && chkRev.isChecked(), noRecord, &grdData},
                   {!isReversal() && !statesNaira(txtHt), "Please enter Amount Paid", &txtHt},
                   // A receipt without a date would be in no day's cash.
                   {dtDate.isEmpty(), "Please enter Receipt Date", &dtDate}});
}

void frmReceiptTemp::OKButton_Click() {
    save<QString>({.button = OKButton,
                   .action = isReversal() ? "REVERSAL" : "RECEIPT",
                   .allowed = [this] { return isComplete(); },
                   .question = "Are you sure to save?",
                   .title = "About to save",
                   .detail =
                       [this] {
                           return aboutLines({Label5.text(), "Bill " + m_billNo, nairaText(nairaIn(txtHt))});
                       },
                   .prepare =
                       [this] {
                           session.gConsultID = m_billNo;
                           return true;
                       },
                   .step = [this](Books& books) { return saveEntry(books); },
                   .follow = [this](const QString& receiptNo) { showSaved(receiptNo); },
                   .refused = [this](Refusal refusal) { refuse(refusal); }});
}

Given<QString> frmReceiptTemp::saveEntry(Books& books) const {
    if (isReversal())
        return reverseReceipt(books, {.receiptNo = m_reversedNo,
                                      .billNo = m_billNo,
                                      .pno = m_pno,
                                      .customer = bills.cboVehNo.text(),
                                      .date = dtDate.date(),
                                      .billed = 0 - nairaIn(txtEmp),
                                      .paid = 0 - nairaIn(txtHt),
                                      .words = txtDuty.text()});
    return takeReceipt(books, {.billNo = m_billNo,
                               .pno = m_pno,
                               .customer = bills.cboVehNo.text(),
                               .date = dtDate.date(),
                               .amount = nairaIn(txtHt),
                               .due = nairaIn(txtEmp),
                               .words = txtDuty.text(),
                               .purpose = cboCat.text(),
                               .payType = cboPay.text()});
}

void frmReceiptTemp::showSaved(const QString& receiptNo) {
    const bool wasReversal = isReversal();
    // At once, so that no fault in what follows leaves an entry that could be saved again.
    resetFields();
    setEntry(false);
    program.box("Record Succesfully saved");
    if (!wasReversal)
        showCashReceipt(program, receiptNo);
    loadToday();
    grdData.selectRow(grdData.findRow("ReceiptNo", receiptNo));
}

/// Only the number can be missing; the screen that asked for it closes.
void frmReceiptTemp::refuse(Refusal refusal) {
    program.box(refusalText(refusal));
    unload();
}

} // namespace orvane
