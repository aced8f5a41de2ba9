#include "receipts/frmReceiptManual.h"

#include "books/Bill.h"
#include "books/ManualReceipt.h"
#include "data/words/Money.h"
#include "receipts/MoneyFields.h"
#include "receipts/frmCashReceipt.h"
#include "session/ListedVisit.h"

namespace orvane {

frmReceiptManual::frmReceiptManual(Program& owner) : Screen(owner, "frmReceiptManual", "Entries from Manual Receipt") {
    for (TextBox* box : {&txtBill, &txtDebt, &txtEmp, &txtHt})
        box->numeric();
    for (TextBox* box : {&txtEmp, &txtDuty})
        box->setLocked(true);
    txtDuty.multiline();
    for (const char* column : {"AmountBilled", "AmountPaid", "Balance"})
        grdData.setFormat(column, "#,###.00");
    grdData.setWidth("AmountInWord", 30);
    grdData.hide({"SNo"});
}

Layout frmReceiptManual::layout() const {
    using namespace orvane::layout;
    return column({visits.layout(), facts({{"Bill No", &lblBill}, {"Client", &lblCoy}, {"Attendance", &lblDate}}),
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
    dtDate.setDate(today);
    visits.setDates(today);
    loadLists();
    cmdList_Click();
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
                                officers.text("empID") + "]",
                            officers.text("empID"));
    for (Recordset clinics(connection, Sql("select ClinicID from clinicTypes")); !clinics.eof(); clinics.moveNext())
        cboClinic.addItem(clinics.text("ClinicID"));
    cboClinic.setText("OUT-PATIENT");
}

void frmReceiptManual::setEntry(bool entering) {
    for (Control* control : std::initializer_list<Control*>{&visits.cboVehNo, &txtRct, &dtDate, &cboCat, &cboReceived,
                                                            &cboPay, &cboClinic, &txtBill, &txtDebt, &txtHt, &OKButton})
        control->setEnabled(entering);
    cmdAdd.setEnabled(!entering);
    if (!entering)
        cmdAdd.setFocus();
}

void frmReceiptManual::cmdList_Click() {
    listVisits(Sql("recdate between '") << visits.DTPicker1.date() << "' and '" << visits.DTPicker2.date() << " '");
}

/// His visits, the newest first; with "Add" first where no receipt is under way.
Screen::PatientTaker frmReceiptManual::patientTaker() {
    return [this](const QString& pno) {
        if (!visits.cboVehNo.isUsable())
            cmdAdd_Click();
        listVisits(Sql("pno='") << pno << "' order by recdate desc");
        takeOnly(visits.cboVehNo, "This patient has no visit");
    };
}

void frmReceiptManual::listVisits(const Sql& which) {
    visits.cboVehNo.clear();
    Connection connection = program.openBilling();
    Recordset rows(connection, Sql("select distinct recdate,pno,fullname,consultID from qryhVisits where  ") << which);
    for (; !rows.eof(); rows.moveNext()) {
        const ListedVisit visit{rows.text("consultID"), rows.text("pno"), rows.text("fullname"), rows.date("recdate")};
        visits.cboVehNo.addItem(visit.patient + " @ " + visit.date.toString("dd/MM/yyyy") + " [" + visit.pno + "]#" +
                                    visit.consultID,
                                QVariant::fromValue(visit));
    }
}

void frmReceiptManual::cmdAdd_Click() {
    resetFields();
    setEntry(true);
    visits.cboVehNo.setFocus();
}

void frmReceiptManual::cboVehNo_Click() {
    const auto visit = visits.cboVehNo.picked<ListedVisit>();
    if (!visit)
        return;
    clearPatient();
    if (visit->consultID.isEmpty()) {
        program.box("No Bill No");
        return;
    }
    m_pno = visit->pno;
    lblDate.setText(visit->date.toString("dd/MM/yyyy"));
    session.gConsultID = visit->consultID;
    Connection connection = program.openBilling();
    const Recordset patient(connection,
                            Sql("select fullname,coyname,pcatID,clientcatID,debt from qryhfullname where pno='")
                                << m_pno << "'");
    // Only now: a patient whom a fault left half read gets no bill.
    lblBill.setText(visit->consultID);
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

void frmReceiptManual::txtHt_Change() {
    showAmountInWords(txtHt, txtDuty);
}

/// The receipts of the date; each with its key, for two paper receipts may bear one number.
void frmReceiptManual::refreshGrid() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(
        connection, Sql("SELECT     ReceiptDate AS Date, rTime as Time, ReceiptNo, Fullname, AmountBilled, "
                        "AmountPaid,(AmountBilled- AmountPaid) as Balance, PaymentFor, AmountInWord, PayType, clinicID "
                        "AS Clinic, Receivedby, BillNO, CoyName, SNo FROM qryhBillingReceipt where receiptdate='")
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
        showCashReceipt(program, number, qlonglong(grdData.number("SNo")));
}

QString frmReceiptManual::receiver() const {
    return cboReceived.picked<QString>().value_or(QString());
}

bool frmReceiptManual::isComplete() {
    const bool statesBill = txtBill.text().trimmed().isEmpty() || statesNaira(txtBill);
    return passes(
        {{dtDate.isEmpty(), "Please enter Receipt Date", &dtDate},
         {txtRct.text().trimmed().isEmpty(), "Please enter Receipt No", &txtRct},
         {visits.cboVehNo.text().isEmpty(), "Please Select Patient Name", &visits.cboVehNo},
         {txtHt.text().trimmed().isEmpty(), "Please enter Amount Paid", &txtHt},
         {cboCat.text().isEmpty(), "Please enter Payment Purpose", &cboCat},
         {cboReceived.text().isEmpty(), "Please enter Name of Receiver", &cboReceived},
         {cboPay.text().isEmpty(), "Please enter Payment type", &cboPay},
         {cboClinic.text().isEmpty(), "Please enter Clinic type", &cboClinic},
         // Texts where a number belongs, a patient nobody picked and a receiver without his number are
         // refused in the words of their own checks.
         {!statesNaira(txtHt), "Please enter Amount Paid", &txtHt},
         {!statesBill, "Please enter Amount Billed", &txtBill},
         {visits.cboVehNo.listIndex() < 0 || lblBill.text().isEmpty(), "Please Select Patient Name", &visits.cboVehNo},
         {receiver().isEmpty(), "Please enter Name of Receiver", &cboReceived}});
}

/// A bill on an invoice may not grow any more: said before anything is asked; the save sees to it again.
bool frmReceiptManual::isBillOpen() {
    Connection connection = program.openBilling();
    return passes({{isBillProcessed(connection, lblBill.text()), refusalText(Refusal::BillProcessed)}});
}

void frmReceiptManual::OKButton_Click() {
    save<QString>({.button = OKButton,
                   .action = "MANUAL RECEIPT",
                   .allowed = [this] { return isComplete() && isBillOpen(); },
                   .question = "Are you sure to save? Please Confirm Receipt Date before Saving",
                   .title = "About to save",
                   .detail =
                       [this] {
                           const auto visit = visits.cboVehNo.picked<ListedVisit>().value_or(ListedVisit{});
                           return aboutLines({visit.patient, "Bill " + lblBill.text(),
                                              "Receipt " + txtRct.text().trimmed(), nairaText(nairaIn(txtHt))});
                       },
                   .prepare =
                       [this] {
                           session.gConsultID = lblBill.text();
                           return true;
                       },
                   .step = [this](Books& books) { return saveEntry(books); },
                   .follow = [this](const QString& receiptNo) { showSaved(receiptNo); }});
}

Given<QString> frmReceiptManual::saveEntry(Books& books) const {
    return enterManualReceipt(books, {.paperNo = txtRct.text(),
                                      .billNo = lblBill.text(),
                                      .pno = m_pno,
                                      .clientID = lblCoy.text(),
                                      .customer = visits.cboVehNo.text(),
                                      .date = dtDate.date(),
                                      .billed = nairaIn(txtBill),
                                      .paid = nairaIn(txtHt),
                                      .words = txtDuty.text(),
                                      .clinicID = cboClinic.text(),
                                      .purpose = cboCat.text(),
                                      .payType = cboPay.text(),
                                      .receivedBy = receiver()});
}

void frmReceiptManual::showSaved(const QString& receiptNo) {
    // At once, so that no fault in what follows leaves an entry that could be saved again.
    resetFields();
    setEntry(false);
    program.box("Record Succesfully saved");
    refreshGrid();
    selectNewest(receiptNo);
}

/// The row of the receipt, so that "Print Receipt" prints it: of two paper receipts of one number the later one.
void frmReceiptManual::selectNewest(const QString& receiptNo) {
    const int number = grdData.columnIndex("ReceiptNo"), key = grdData.columnIndex("SNo");
    int newest = -1;
    for (int row = 0; row < grdData.rowCount(); ++row)
        if (grdData.value(row, number).toString() == receiptNo &&
            (newest < 0 || grdData.value(row, key).toLongLong() > grdData.value(newest, key).toLongLong()))
            newest = row;
    grdData.selectRow(newest);
}

void frmReceiptManual::resetFields() {
    visits.cboVehNo.setListIndex(-1);
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
