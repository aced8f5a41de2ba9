#include "attendance/frmRecordsOffline.h"
#include "books/Client.h"

namespace orvane {

namespace {

constexpr unsigned FlashColor = 0xFFB300;
constexpr qint64 ReviewHours = 12;

} // namespace

void frmRecordsOffline::cboVehNo_Click() {
    const auto picked = cboVehNo.picked<QString>();
    if (bFilling || !picked)
        return;
    sPatientNo = *picked;
    clearPatient();
    if (dtDate.isEmpty()) {
        program.box("Specify Attendance Date");
        // Without its facts a patient is not in hand: picked again after the date.
        cboVehNo.setListIndex(-1);
        dtDate.setFocus();
        return;
    }
    Connection connection = program.openBilling();
    const bool ownVisit = bEditing && sPatientNo == edited.pno;
    if (!ownVisit && hasOpenVisit(connection, sPatientNo, dtDate.date())) {
        refuseDuplicate();
        return;
    }
    const QDate expiry = showPatient(connection);
    bCardExpired = expiry.isValid() && expiry <= ui().now().date();
    if (bCardExpired) {
        program.box("Patient's Card has Expired");
        return;
    }
    piX.setFile(session.gPatientsFolder + QString(sPatientNo).remove("/") + ".JPG");
    checkAppointment(connection);
    checkReview(); // the purpose may have been chosen first, or for the patient before
}

/// The patient of the row; the list of the patients found has the same order.
void frmRecordsOffline::takeFound() {
    if (grdData.currentRow() < 0 || grdData.columnIndex("recID") >= 0)
        return;
    cboVehNo.setListIndex(grdData.currentRow());
    if (!lblNo.text().isEmpty())
        cboType.setFocus();
}

void frmRecordsOffline::refuseDuplicate() {
    program.box(refusalText(Refusal::VisitOpen));
    setButtons(false);
    clearForm();
}

void frmRecordsOffline::clearPatient() {
    for (Label* label : {&lblNo, &lblOld, &lblCoy, &lblPolicy, &LblOccup, &lblExpire})
        label->clear();
    piX.setFile({});
    bCardExpired = false;
    sReferralConsultID.clear();
    sClientID.clear();
}

/// Gives the day on which the patient's card expires; empty: never.
QDate frmRecordsOffline::showPatient(Connection& connection) {
    const Recordset patient(
        connection,
        Sql("select clientcatID,coyname,occupation,pno,oldpNo,policytype,ref,expirydate from hpatients where pNo='")
            << sPatientNo << "'");
    if (patient.eof())
        return {};
    // A category that is no longer offered must not leave the one of the patient before.
    cboBilling.setListIndex(-1);
    cboBilling.setText(patient.text("clientcatID"));
    sClientID = patient.text("coyName");
    lblCoy.setText(clientName(connection, sClientID));
    lblNo.setText(patient.text("PNo"));
    lblOld.setText(patient.text("OldPNo"));
    LblOccup.setText(patient.text("occupation"));
    lblPolicy.setText(patient.text("policyType"));
    const QDate expiry = patient.date("expirydate");
    lblExpire.setText(expiry.toString("dd/MM/yyyy"));
    cboRef.setListIndex(-1);
    cboRef.setText(patient.isNull("ref") ? "NO" : patient.text("ref"));
    return expiry;
}

void frmRecordsOffline::checkAppointment(Connection& connection) {
    const Recordset appointment(connection,
                                Sql("select ApptDate,pno,clinictype,remarks,consultID from qryhAppt where pno='")
                                    << sPatientNo << "' and attendedto =0  ");
    if (appointment.eof())
        return;
    program.box(" This Patient has " + appointment.text("clinicType") + " Appointment Today");
    sReferralConsultID = appointment.text("Remarks") == "FOLLOW-UP" ? appointment.text("consultID") : QString();
}

void frmRecordsOffline::cboClient_Click() {
    if (!bFilling)
        checkReview();
}

/// A review costs nothing, so it must follow the patient's last visit closely.
void frmRecordsOffline::checkReview() {
    if (cboClient.text() != "REVIEW")
        return;
    Connection connection = program.openBilling();
    const Recordset last(connection, Sql("select top 1 consultID,recDate from hrecords where pNo='")
                                         << sPatientNo << "' order by consultID desc");
    if (last.eof() || last.dateTime("recDate").secsTo(ui().now()) / 3600 <= ReviewHours)
        return;
    program.box(" This patient last visit to clinic is beyond time limit of 12HRS for Review. \n"
                "The system will Enter 'CONSULTATION' for purpose of visit");
    cboClient.setText("CONSULTATION");
}

void frmRecordsOffline::cboRef_Click() {
    const bool onReferral = cboRef.text() == "YES";
    tmrBill.setEnabled(onReferral);
    Label5.setVisible(onReferral);
    Label5.setColor({});
}

void frmRecordsOffline::tmrBill_Timer() {
    Label5.setColor(Label5.color() ? std::optional<unsigned>() : FlashColor);
}

void frmRecordsOffline::cboAppr_Click() {
    sOfficerEmpID = cboAppr.picked<QString>().value_or(QString());
}

} // namespace orvane
