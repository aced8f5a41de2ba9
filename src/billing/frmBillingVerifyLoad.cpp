#include "billing/BillLook.h"
#include "billing/TreatmentPlan.h"
#include "billing/frmBillingVerify.h"
#include "books/ApprovalCode.h"
#include "books/Bill.h"
#include "books/Collate.h"
#include "data/words/Money.h"
#include "session/ListedVisit.h"

namespace orvane {

namespace {

QString shortDate(QDate date) {
    return date.toString("dd/MM/yyyy");
}

} // namespace

void frmBillingVerify::cmdList_Click() {
    getPatForBill(visitsBetweenDates());
}

void frmBillingVerify::cmdAdm_Click() {
    getPatForBill(Sql("select distinct  Date,Remarks,coyname,pno,fullname,consultID from vwhConsultingVisitsAdmission "
                      "order by fullname"));
}

void frmBillingVerify::cmdOK_Click() {
    getPatForBill(Sql("select distinct  Date,Remarks,coyname,pno,fullname,consultID from vwhConsultingVisitsList where "
                      "consultid ='")
                  << txtSearch.text().trimmed() << "'");
    if (visits.cboVehNo.count() > 1)
        visits.cboVehNo.setListIndex(1);
}

/// His visits, the newest first: those not billed yet, as in the list of a day.
Screen::PatientTaker frmBillingVerify::patientTaker() {
    return [this](const QString& pno) {
        Sql his(
            "select distinct  Date,Remarks,coyname,pno,fullname,consultID from vwhConsultingVisitsList where pno='");
        his << pno << "'";
        if (!chkAll.isChecked())
            his << " and isbilled=0";
        getPatForBill(his << " order by Date desc");
        takeOnly(visits.cboVehNo, chkAll.isChecked()
                                      ? "This patient has no visit"
                                      : "This patient has no visit to bill; tick Show All for the others");
    };
}

void frmBillingVerify::cmdAdd_Click() {
    chkRct.setChecked(false);
    dtDate.setDate(session.gServerDate);
    getPatForBill(visitsBetweenDates());
}

Sql frmBillingVerify::visitsBetweenDates() const {
    const QString client = cboHMO.picked<QString>().value_or(QString());
    Sql rows("select distinct  Date,Remarks,coyname,pno,fullname,consultID from vwhConsultingVisitsList where ");
    if (!client.isEmpty())
        rows << "retainID='" << client << "' and ";
    rows << "date between '" << visits.DTPicker1.date() << "' and '" << visits.DTPicker2.date() << "'";
    if (!chkAll.isChecked())
        rows << " and isbilled=0";
    return rows << " order by fullname";
}

/// Fills the patient box.
void frmBillingVerify::getPatForBill(const Sql& statement) {
    clearFields();
    visits.cboVehNo.clear();
    visits.cboVehNo.addItem(QString());
    Connection connection = program.openBilling();
    for (Recordset rows(connection, statement); !rows.eof(); rows.moveNext()) {
        const ListedVisit visit{rows.text("consultID"), rows.text("pno"), rows.text("fullname"), rows.date("Date")};
        const QString entry = QStringLiteral("%1 @%2 %3 - %4 [%5]#%6")
                                  .arg(visit.patient, shortDate(visit.date), rows.text("Remarks"), rows.text("coyname"),
                                       visit.pno, visit.consultID);
        visits.cboVehNo.addItem(entry, QVariant::fromValue(visit));
    }
}

void frmBillingVerify::clearFields() {
    m_saved = false;
    visits.cboVehNo.setListIndex(-1);
    clearVisit();
    enableFields();
    SetButtons();
}

/// Empties everything that belongs to a visit.
void frmBillingVerify::clearVisit() {
    m_bill = {};
    for (Label* label : {&lblBill, &lblCoy, &lblDate, &lblDisplay, &lblDate2, &lblDateLast, &lblGen, &lblBilled,
                         &lblPaid, &receipt.lblDep, &lblSub, &lblTotal, &lblCurr, &lblAmtDue})
        label->clear();
    lblScreen.setText("Collate / Verify Bill");
    for (TextBox* box : {&receipt.txtEmp, &txtDiag, &txtApprv})
        box->clear();
    dtAdmit.clear();
    dtDisch.clear();
    chkRct.setChecked(false);
    clearEntry();
    grdData.clear();
}

/// What was entered for one bill is meant for no other one: nobody pays with it, and no fee is worked out from it.
void frmBillingVerify::clearEntry() {
    for (TextBox* percent : {&txtProf, &txtNHIS})
        percent->clear();
    for (CheckBox* box : {&chkDep, &chkCurr})
        box->setChecked(false);
    receipt.clear();
}

void frmBillingVerify::cmdRefresh_Click() {
    if (!m_bill.consultID.isEmpty())
        loadVisit(m_bill.consultID, m_bill.pno, m_bill.patient);
}

void frmBillingVerify::cmdCancel_Click() {
    clearFields();
    visits.cboVehNo.clear();
    dtDate.setDate(session.gServerDate);
    SSTab1.setTab(0);
}

void frmBillingVerify::cboVehNo_Click() {
    if (const auto visit = visits.cboVehNo.picked<ListedVisit>())
        loadVisit(visit->consultID, visit->pno, visit->patient);
}

/// Reads the visit and collates its bill. Until it was read whole no visit is in hand, so that a half-read one cannot
/// be saved. By value: the visit in hand, which may be named here, is emptied first.
void frmBillingVerify::loadVisit(QString consultID, QString pno, QString patient) {
    if (lblBill.text() != consultID)
        clearEntry();
    m_loading = true;
    cmdAddBill.setEnabled(false);
    cmdNHIS.setEnabled(false);
    lblBill.setText(consultID);
    m_bill = {};
    m_bill.consultID = consultID;
    m_bill.pno = pno;
    m_bill.patient = patient;
    takeInHand();
    getConFromAdmission();

    Connection connection = program.openBilling();
    if (!readVisit(connection))
        return;
    showVisit(connection);
    cmdPrint.setEnabled(true);
    cmdAddBill.setEnabled(true);
    cmdNHIS.setEnabled(true);
    m_loading = false;
}

bool frmBillingVerify::readVisit(Connection& connection) {
    const Given<BilledVisit> visit = readBilledVisit(connection, m_bill.consultID, m_bill.pno, m_bill.patient);
    if (visit) {
        m_bill = visit->bill;
        dtDate.setDate(visit->date);
        lblDisplay.setText(m_bill.referal);
        lblDate.setText(m_bill.category);
        lblCoy.setText(visit->client);
        return true;
    }
    if (visit.refusal() == Refusal::NoPatient) {
        m_loading = false;
        clearFields();
        lblScreen.setText("Process Bill");
    } else {
        afterFault();
    }
    program.box(refusalText(visit.refusal()));
    return false;
}

void frmBillingVerify::showVisit(Connection& connection) {
    session.sBillCoy = lblCoy.text();
    readAttendance(connection);
    connection.call("updateRevType", {{"ConsultID", m_bill.consultID}});
    getAccumBill();
    txtDiag.setText(diagnosesInOneLine(connection, m_bill.consultID));
    txtApprv.setText(firstApprovalCode(connection, m_bill.consultID));
    showScreen("Collated Bill for ");
    if (session.gModuleName == "BILLING")
        chkRct.setEnabled(true);
    followReceiptBox();
}

/// What was read of a visit before the fault is not in hand, and nothing of the visit before it stays to be taken for
/// this one's. The buttons that a load locks are free again, but not those of a save that is open.
void frmBillingVerify::afterFault() {
    if (!m_loading)
        return;
    m_loading = false;
    clearVisit();
    cmdAddBill.setEnabled(true);
    cmdNHIS.setEnabled(true);
}

/// The visit on this screen becomes the one that other screens work on.
void frmBillingVerify::takeInHand() {
    session.gConsultID = m_bill.consultID;
    session.sBillPno = m_bill.pno;
    session.sBillPatName = m_bill.patient;
    session.sBillPatLabel = m_bill.patient;
    session.sBillCoy = lblCoy.text();
}

void frmBillingVerify::getConFromAdmission() {
    Connection connection = program.openBilling();
    const Recordset ward(connection, Sql("select * from vwAdmissionAndDischargeInfo  where consultID='")
                                         << m_bill.consultID << "'");
    if (!ward.eof()) {
        dtAdmit.setDate(ward.date("admdate"));
        dtAdmit.setLocked(true);
        const bool discharged = !ward.isNull("DischDate");
        dtDisch.setDate(ward.date("DischDate"));
        dtDisch.setLocked(discharged);
        program.box(discharged ? "This Patient has been Discharged!!! Please Collate Bill"
                               : "This Patient is on Admission!!! Discharge Patient before Collating Bill");
        return;
    }
    const Recordset bill(connection, Sql("select AdmDate,DischDate from Billing  where billNo='")
                                         << m_bill.consultID << "'");
    dtAdmit.setDate(bill.eof() ? QDate() : bill.date("AdmDate"));
    dtDisch.setDate(bill.eof() ? QDate() : bill.date("DischDate"));
    dtAdmit.setLocked(false);
    dtDisch.setLocked(false);
}

/// The two newest attendances of the patient.
void frmBillingVerify::readAttendance(Connection& connection) {
    Recordset rows(connection, Sql("Select recdate from qryhvisits where  pno='")
                                   << m_bill.pno << "' order by recdate desc");
    for (Label* label : {&lblDate2, &lblDateLast}) {
        label->setText(rows.eof() ? QString() : shortDate(rows.date("recdate")));
        if (!rows.eof())
            rows.moveNext();
    }
}

/// Collates what waits and shows the bill as it then stands. Of this screen's visit: what became of a fee may be found
/// out after another screen has worked on another one.
void frmBillingVerify::getAccumBill() {
    takeInHand();
    if (std::exchange(m_saved, false))
        receipt.clear(); // what was entered has been paid: it must not be taken once more
    OKButton.setEnabled(true);
    for (Button* button : {&cmdCoy, &cmdSplit, &cmdBill, &cmdNHIS})
        button->setEnabled(true);
    collate();
    showFigures();
}

void frmBillingVerify::collate() {
    Connection connection = program.openBilling();
    if (!passes({{m_bill.consultID.isEmpty(), "No Patient is selected"},
                 {isBillProcessed(connection, m_bill.consultID), refusalText(Refusal::BillProcessed)}}) ||
        !needsCollation(connection, m_bill))
        return;
    const Given<double> billed =
        program.desk().save<double>("COLLATION", [this](Books& books) { return collateBillItems(books, m_bill); });
    if (!billed)
        program.box(refusalText(billed.refusal()));
}

void frmBillingVerify::showFigures() {
    const BillFigures figures = lookAtBill(program, m_bill.consultID);
    Connection connection = program.openBilling();
    showAmount({&lblGen}, figures.generated);
    showAmount({&lblBilled, &lblTotal, &lblCurr}, figures.billed);
    showAmount({&lblPaid, &receipt.lblDep}, figures.paid);
    showAmount({&lblSub}, itemsTotal(connection, m_bill.consultID));
    showAmount({&lblAmtDue}, figures.billed - figures.paid);
    chkCurr_Click();
    showScreen("Bill for ");
    fillGrid(connection);
}

void frmBillingVerify::fillGrid(Connection& connection) {
    grdData.load(
        Recordset(connection,
                  Sql("select distinct [Date],Service,ClientCatID,ClientCatID as ClientCat,Referal,billtype,SNo,conID,"
                      "case AttendedTo when 1  then 'YES' else 'NO' end as AttendedTo ,Capitated ,Qty,UnitPrice,"
                      "Subtotal as Amount,RevType,CoyName,BillTo,ConsultID,Dosage from qryBillAccum where consultid='")
                      << m_bill.consultID << "' order by Service"));
    const int adjusted = session.sAdjustItem.isEmpty() ? -1 : grdData.findRow("Service", session.sAdjustItem);
    if (adjusted >= 0)
        grdData.selectRow(adjusted);
}

void frmBillingVerify::showScreen(const QString& heading) {
    lblScreen.setText(heading + m_bill.patient + "\n=N=" + lblAmtDue.text());
}

} // namespace orvane
