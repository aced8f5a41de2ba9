#include "attendance/frmRecordsOffline.h"

#include <QScopedValueRollback>

namespace orvane {

namespace {

constexpr int manyFound = 200; ///< a longer list is not counted: that would be to read it all

} // namespace

frmRecordsOffline::frmRecordsOffline(Program& owner) : Screen(owner, "frmRecordsOffline", "OFFLINE ATTENDANCE :") {
    txtName.onEnter = [this] { cmdOK_Click(); };
    cboVehNo.setToolTip("F3 finds any patient");
}

Layout frmRecordsOffline::layout() const {
    using namespace orvane::layout;
    return column({row({field("Search by Name", txtName, 28), cell(cmdOK), cell(lblFound, 8)}),
                   row({column({field("Patient", cboVehNo, 46), field("Clinic", cboType, 46),
                                field("Purpose of Visit", cboClient, 46), field("Records Officer", cboAppr, 46),
                                field("Remarks", txtRem, 46)}),
                        column({field("Attendance Date", dtDate), field("Next Appointment", dtNext),
                                field("Billing Category", cboBilling), field("On Referral", cboRef), cell(Label5)}),
                        cell(piX)}),
                   cell(chkCon),
                   facts({{"Consult No", &lblBill},
                          {"Patient No", &lblNo},
                          {"Old No", &lblOld},
                          {"Company", &lblCoy},
                          {"Policy", &lblPolicy},
                          {"Occupation", &LblOccup},
                          {"Card Expires", &lblExpire}}),
                   growing(cell(grdData)),
                   buttons({&cmdAdd, &cmdEdit, &cmdDel, &cmdRefresh}, {&CancelButton, &cmdCancel, &OKButton})});
}

void frmRecordsOffline::Form_Load() {
    Label5.setVisible(false);
    fillLists();
    cmdRefresh_Click();
}

void frmRecordsOffline::fillLists() {
    Connection connection = program.openBilling();
    cboType.addItem("OUT-PATIENT");
    for (Recordset row(connection, Sql("select distinct * from clinicTypes")); !row.eof(); row.moveNext())
        cboType.addItem(row.text("ClinicID"));
    cboClient.addItems({"CONSULTATION", "REVIEW", "FOLLOW-UP"});
    cboRef.addItems({"YES", "NO"});
    for (Recordset row(connection, Sql("select clientcatID from billingprice")); !row.eof(); row.moveNext())
        cboBilling.addItem(row.text("clientcatID"));
    Recordset officer(connection, Sql("select distinct empID,lastname,firstname from employees "));
    for (; !officer.eof(); officer.moveNext())
        cboAppr.addItem(officer.text("lastname") + " " + officer.text("firstname") + " [" + officer.text("empID") + "]",
                        officer.text("empID"));
}

void frmRecordsOffline::cmdOK_Click() {
    if (txtName.text().isEmpty())
        return;
    // The view has one row a patient: "distinct" would only sort them all before the first one shows.
    showFound(Sql("select * from vwhpatients where fullname like '") << txtName.text() << "%'");
}

Screen::PatientTaker frmRecordsOffline::patientTaker() {
    return [this](const QString& pno) {
        showFound(Sql("select * from vwhpatients where PNo='") << pno << "'");
        takeOnly(cboVehNo, "This patient is not registered");
    };
}

void frmRecordsOffline::showFound(const Sql& patients) {
    const Recordset found = Recordset::paged(program.openBilling(), patients);
    grdData.showAllColumns();
    grdData.load(found);
    grdData.hide({"expired"});
    lblFound.setText(found.eof() ? "***" : found.has(manyFound) ? "200+" : QString::number(found.count()));
    cboVehNo.clear();
    cboVehNo.fill(found, [](const Recordset& row) {
        return ComboBox::Entry{row.text("fullName") + " [" + row.text("PNo") + "]", row.text("PNo")};
    });
    if (!found.eof())
        grdData.setFocus();
}

void frmRecordsOffline::cmdRefresh_Click() {
    Connection connection = program.openBilling();
    grdData.showAllColumns();
    grdData.load(Recordset(connection, Sql("select * from qryhVisitsOffline")));
    grdData.hide({"recID", "attendedTo", "referal", "Surname", "empID"});
    const QString title = "OFFLINE ATTENDANCE:";
    setCaption(grdData.rowCount() == 0 ? title : title + QString::number(grdData.rowCount()));
}

void frmRecordsOffline::cmdAdd_Click() {
    if (bEditing)
        clearForm();
    setButtons(false);
    dtDate.setDate(ui().now().date());
    dtNext.clear();
    Connection connection = program.openBilling();
    lblBill.setText(genConsultID(connection, session.gHospID));
    txtName.setFocus();
}

bool frmRecordsOffline::isSearchResult() const {
    return grdData.columnIndex("recID") < 0 ||
           (grdData.columnIndex("Surname") >= 0 && !grdData.text("Surname").isEmpty());
}

void frmRecordsOffline::cmdEdit_Click() {
    if (!passes({{grdData.currentRow() < 0, "Select the attendance in the list first"},
                 {isSearchResult(), "Search Result cannot be Edited, Only Attendance"}}))
        return;
    clearForm();
    const QScopedValueRollback filling(bFilling, true);
    lRecID = grdData.text("recID").toLongLong();
    edited = listedVisit();
    sPatientNo = edited.pno;
    cboVehNo.clear();
    cboVehNo.addItem(grdData.text("fullname") + " [" + sPatientNo + "]", sPatientNo);
    cboVehNo.setListIndex(0);
    Connection connection = program.openBilling();
    showPatient(connection);
    lblBill.setText(grdData.text("consultID"));
    // What the visit lacks, or what is no longer offered, must not become the patient's own.
    cboRef.setListIndex(-1);
    cboBilling.setListIndex(-1);
    cboClient.setText(edited.purpose);
    cboRef.setText(edited.referral);
    cboType.setText(edited.clinic);
    cboBilling.setText(edited.category);
    dtDate.setDate(edited.date);
    setButtons(true);
}

void frmRecordsOffline::cmdDel_Click() {
    save<Saved>(
        {.button = cmdDel,
         .action = "DELETE VISIT",
         .allowed =
             [this] {
                 return passes(
                     {{grdData.currentRow() < 0 || isSearchResult(), "Select the attendance in the list first"}});
             },
         .question = "Are you sure to Delete Record",
         .title = "Delete",
         .consent = Consent::Destroys,
         .detail =
             [this] {
                 return aboutLines({grdData.text("fullname"), "Visit " + grdData.text("consultID")});
             },
         .step = [this](Books& books) { return deleteVisit(books, grdData.text("recID").toLongLong(), listedVisit()); },
         .follow =
             [this](const Saved&) {
                 program.box(" Record successfully deleted ");
                 cmdRefresh_Click();
             }});
}

void frmRecordsOffline::cmdCancel_Click() {
    clearForm();
    setButtons(false);
}

void frmRecordsOffline::clearForm() {
    for (ComboBox* box : {&cboVehNo, &cboType, &cboClient, &cboRef, &cboBilling, &cboAppr})
        box->setListIndex(-1);
    txtName.clear();
    txtRem.clear();
    lblFound.clear();
    lblBill.clear();
    chkCon.setChecked(false);
    dtDate.clear();
    dtNext.clear();
    sPatientNo.clear();
    clearPatient();
}

/// A visit under edit is saved or cancelled before another one is added, edited or deleted.
void frmRecordsOffline::setButtons(bool editing) {
    bEditing = editing;
    for (Button* button : {&cmdAdd, &cmdEdit, &cmdDel})
        button->setEnabled(!editing);
}

} // namespace orvane
