#include "billing/BillSummary.h"
#include "billing/frmBillingVerify.h"
#include "data/words/Money.h"

#include <QRegularExpression>

namespace orvane {

namespace {

QString shortDate(QDate date) {
    return date.toString("dd/MM/yyyy");
}

} // namespace

void frmBillingVerify::cmdList_Click() {
    getPatForBill(Search::Range);
}

void frmBillingVerify::cmdAdm_Click() {
    getPatForBill(Search::InPatients);
}

void frmBillingVerify::cmdOK_Click() {
    getPatForBill(Search::OneBill);
}

void frmBillingVerify::cmdAdd_Click() {
    chkRct.setChecked(false);
    dtDate.setDate(session.gServerDate);
    getPatForBill(Search::Range);
}

Sql frmBillingVerify::visitsBetweenDates() const {
    const QString client = cboHMO.listIndex() > 0 ? cboHMO.itemData(cboHMO.listIndex()).toString() : QString();
    Sql visits("select distinct  Date,Remarks,coyname,pno,fullname,consultID from vwhConsultingVisitsList where ");
    if (!client.isEmpty())
        visits << "retainID='" << client << "' and ";
    visits << "date between '" << DTPicker1.date() << "' and '" << DTPicker2.date() << "'";
    if (!chkAll.isChecked())
        visits << " and isbilled=0";
    return visits << " order by fullname";
}

/// Fills the patient box.
void frmBillingVerify::getPatForBill(Search search) {
    clearFields();
    cboVehNo.clear();
    cboVehNo.addItem(QString());
    Sql visits;
    if (search == Search::InPatients)
        visits = Sql("select distinct  Date,Remarks,coyname,pno,fullname,consultID from vwhConsultingVisitsAdmission "
                     "order by fullname");
    else if (search == Search::OneBill)
        visits = Sql("select distinct  Date,Remarks,coyname,pno,fullname,consultID from vwhConsultingVisitsList where "
                     "consultid ='")
                 << txtSearch.text().trimmed() << "'";
    else
        visits = visitsBetweenDates();
    Connection connection = program.openBilling();
    for (Recordset rows(connection, visits); !rows.eof(); rows.moveNext()) {
        const QString pno = rows.text("pno");
        const QString consultID = rows.text("consultID");
        const QString entry = QStringLiteral("%1 @%2 %3 - %4 [%5]#%6")
                                  .arg(rows.text("fullname"), shortDate(rows.date("Date")), rows.text("Remarks"),
                                       rows.text("coyname"), pno, consultID);
        cboVehNo.addItem(entry, QStringList{pno, consultID, rows.text("fullname")});
    }
    if (search == Search::OneBill && cboVehNo.count() > 1)
        cboVehNo.setListIndex(1);
}

/// Empties everything that belongs to a visit.
void frmBillingVerify::clearFields() {
    m_bill = {};
    m_saved = false;
    cboVehNo.setListIndex(-1);
    for (Label* label : {&lblBill, &lblCoy, &lblDate, &lblDisplay, &lblDate2, &lblDateLast, &lblGen, &lblBilled,
                         &lblPaid, &lblDep, &lblSub, &lblTotal, &lblCurr, &lblAmtDue})
        label->clear();
    lblScreen.setText("Collate / Verify Bill");
    for (TextBox* box : {&txtEmp, &txtDiag, &txtApprv, &txtProf, &txtNHIS})
        box->clear();
    dtAdmit.clear();
    dtDisch.clear();
    chkRct.setChecked(false);
    for (CheckBox* box : {&chkDep, &chkCurr})
        box->setChecked(false);
    clearReceipt();
    grdData.clear();
    enableFields();
    SetButtons();
}

void frmBillingVerify::cmdRefresh_Click() {
    if (!m_bill.consultID.isEmpty())
        loadVisit(m_bill.pno, m_bill.consultID, m_bill.patient);
}

void frmBillingVerify::cmdCancel_Click() {
    clearFields();
    cboVehNo.clear();
    dtDate.setDate(session.gServerDate);
    SSTab1.setTab(0);
}

void frmBillingVerify::cboVehNo_Click() {
    if (cboVehNo.listIndex() <= 0)
        return;
    const QStringList key = cboVehNo.itemData(cboVehNo.listIndex()).toStringList();
    loadVisit(key.at(0), key.at(1), key.at(2));
}

/// Reads the visit and collates its bill. Until it was read whole no visit is in hand, so that a half-read one cannot
/// be saved. By value: the visit in hand, which may be named here, is emptied first.
void frmBillingVerify::loadVisit(QString pno, QString consultID, QString patient) {
    if (lblBill.text() != consultID)
        clearReceipt(); // nobody pays with what was entered for another bill
    m_loading = true;
    m_bill = {};
    cmdAddBill.setEnabled(false);
    cmdNHIS.setEnabled(false);

    lblBill.setText(consultID);
    m_bill.consultID = consultID;
    m_bill.pno = pno;
    m_bill.patient = patient;
    takeInHand();
    getConFromAdmission();

    Connection connection = program.openBilling();
    if (!readVisit(connection)) {
        m_loading = false;
        clearFields();
        lblScreen.setText("Process Bill");
        program.box("Patient does not Exist");
        return;
    }
    if (!readClient(connection)) {
        afterFault();
        program.box("BillTo Value Cannot be Empty!!! Check your Client Information");
        return;
    }
    readAttendance(connection);
    connection.call("updateRevType", {{"ConsultID", consultID}});
    getAccumBill();
    getDiagnosis(connection);
    getApprvCode(connection);
    showScreen("Collated Bill for ");
    if (session.gModuleName == QLatin1String("BILLING"))
        chkRct.setEnabled(true);
    followReceiptBox();
    cmdPrint.setEnabled(true);
    cmdAddBill.setEnabled(true);
    cmdNHIS.setEnabled(true);
    m_loading = false;
}

/// What was read of a visit before the fault is not in hand; the buttons that a load locks are free again, but not
/// those of a save that is open.
void frmBillingVerify::afterFault() {
    if (!m_loading)
        return;
    m_loading = false;
    m_bill = {};
    lblBill.clear();
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

bool frmBillingVerify::readVisit(Connection& connection) {
    const Recordset visit(connection,
                          Sql("select pCatid,recdate,consultID,clientcat as clientcatID,referal,retainID,RetainName "
                              "from qryhVisitsForAttend where consultid ='")
                              << m_bill.consultID << "'");
    if (visit.eof())
        return false;
    dtDate.setDate(visit.date("recdate"));
    m_bill.referal = visit.text("referal");
    m_bill.category = visit.text("clientcatID");
    m_bill.retainID = visit.text("retainID");
    lblDisplay.setText(m_bill.referal);
    lblDate.setText(m_bill.category);
    lblCoy.setText(visit.text("RetainName"));
    session.sBillCoy = lblCoy.text();
    return true;
}

bool frmBillingVerify::readClient(Connection& connection) {
    const Recordset client(connection,
                           Sql("Select retainCode ,retainName,BillEndDate from hretainership where retainID='")
                               << m_bill.retainID << "'");
    if (client.eof())
        return false;
    m_bill.retainCode = client.text("retainCode");
    m_bill.billEndDay = int(client.integer("BillEndDate"));
    return true;
}

/// The two newest attendances of the patient.
void frmBillingVerify::readAttendance(Connection& connection) {
    Recordset visits(connection, Sql("Select recdate from qryhvisits where  pno='")
                                     << m_bill.pno << "' order by recdate desc");
    for (Label* label : {&lblDate2, &lblDateLast}) {
        label->setText(visits.eof() ? QString() : shortDate(visits.date("recdate")));
        if (!visits.eof())
            visits.moveNext();
    }
}

/// The diagnoses of the visit's consultations in one line.
void frmBillingVerify::getDiagnosis(Connection& connection) {
    static const QRegularExpression lineEnd("\r\n|\r|\n");
    QStringList diagnoses;
    for (Recordset rows(connection, Sql("select Diagnosis from hconsulting where consultid='")
                                        << m_bill.consultID << "'");
         !rows.eof(); rows.moveNext()) {
        const QString diagnosis = rows.text("Diagnosis");
        if (!diagnosis.trimmed().isEmpty())
            diagnoses << diagnosis;
    }
    txtDiag.setText(diagnoses.join(QLatin1Char('\n')).replace(lineEnd, ";"));
}

void frmBillingVerify::getApprvCode(Connection& connection) {
    const Recordset code(connection, Sql("select * from hApprvCode where consultID='")
                                         << m_bill.consultID << "' order by SNO");
    txtApprv.setText(code.eof() ? QString() : code.text("ApprvCode"));
}

/// Collates what waits and shows the bill as it then stands. Of this screen's visit: what became of a fee may be found
/// out after another screen has worked on another one.
void frmBillingVerify::getAccumBill() {
    takeInHand();
    if (std::exchange(m_saved, false))
        clearReceipt(); // what was entered has been paid: it must not be taken once more
    OKButton.setEnabled(true);
    for (Button* button : {&cmdCoy, &cmdSplit, &cmdBill, &cmdNHIS})
        button->setEnabled(true);
    collateBillItems(program, m_bill);
    // A bill without lines leaves these as they are: they must not be those of the bill before.
    session.dBillTotal = 0;
    session.dAmountPaid = 0;
    saveBillSummary(program, *this, session.gConsultID);
    Connection connection = program.openBilling();
    lblSub.setText(formatTwoDecimals(sumOfItems(connection)));
    lblCurr.setText(formatTwoDecimals(session.dBillTotal));
    const QString payable = formatTwoDecimals(session.dBillTotal - session.dAmountPaid);
    lblAmtDue.setText(payable);
    txtEmp.setText(chkCurr.isChecked() ? lblSub.text() : payable);
    showScreen("Bill for ");
    fillGrid(connection);
}

/// What the items come to: all of them, but of a capitated patient only those that are charged one by one.
double frmBillingVerify::sumOfItems(Connection& connection) const {
    Recordset items(connection,
                    Sql("select distinct ClientCatID,ClientCatID as ClientCat,Referal,billtype,SNo,conID,[Date],"
                        "Capitated ,ConsultID,Service,Dosage,UnitPrice,Qty,Subtotal,CoyName,BillTo,RevType "
                        "from qryBillAccum where consultid='")
                        << m_bill.consultID << "'");
    if (items.eof())
        return 0;
    const bool chargedOnly =
        isCapitatedCategory(items.text("ClientCatID")) && items.text("Referal") != QLatin1String("YES");
    double sum = 0;
    for (; !items.eof(); items.moveNext())
        if (!chargedOnly || items.text("Capitated") == QLatin1String("NO"))
            sum += items.number("Subtotal");
    return sum;
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
