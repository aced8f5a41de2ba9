#include "attendance/frmRecordsOffline.h"

namespace orvane {

void frmRecordsOffline::OKButton_Click() {
    if (bEditing)
        saveEdited();
    else
        saveNew();
}

void frmRecordsOffline::afterSave(const QString& message, const QString& consultID) {
    program.box(message);
    setButtons(false);
    clearForm();
    cmdRefresh_Click();
    grdData.selectRow(grdData.findRow("consultID", consultID));
    cmdAdd.setFocus();
}

bool frmRecordsOffline::isComplete() {
    tmrBill.setEnabled(false);
    Label5.setColor({});
    return passes(
        {{lblBill.text().trimmed().isEmpty(),
          " Consultation ID is needed for this Patient, select Patient Name OR see the Administrator", &cmdAdd},
         {dtDate.isEmpty(), " please specify Attendance date", &dtDate},
         // A patient whose facts were not found is none.
         {cboVehNo.text().isEmpty() || lblNo.text().isEmpty(), " please specify Name of Patient", &cboVehNo},
         {cboType.text().isEmpty(), " please specify clinic for Patient", &cboType},
         {cboClient.text().isEmpty(), " please specify Purpose of Visit for Patient", &cboClient},
         {cboAppr.text().isEmpty(), " please specify Name of record Officer", &cboAppr},
         {cboRef.text().isEmpty(), " please specify Whether Patient is on Referral", &cboRef},
         {cboBilling.text().isEmpty(), "please specify Patient Billing Category", &cboBilling},
         {bCardExpired, "Patient's Card has Expired", &cboVehNo}});
}

Visit frmRecordsOffline::visitInHand() const {
    return {.date = dtDate.date(),
            .pno = lblNo.text(),
            .clientID = sClientID,
            .category = cboBilling.text(),
            .clinic = cboType.text(),
            .purpose = cboClient.text(),
            .referral = cboRef.text(),
            .officer = sOfficerEmpID};
}

/// The visit of the list's current row.
Visit frmRecordsOffline::listedVisit() const {
    return {.date = grdData.date("Date"),
            .pno = grdData.text("patno"),
            .clientID = {},
            .category = grdData.text("clientCat"),
            .clinic = grdData.text("clinicType"),
            .purpose = grdData.text("Remarks"),
            .referral = grdData.text("Referal"),
            .officer = {}};
}

void frmRecordsOffline::saveEdited() {
    save<Saved>(
        {.button = OKButton,
         .action = "CHANGE VISIT",
         .allowed = [this] { return isComplete(); },
         .step = [this](Books& books) { return changeVisit(books, lRecID, edited, visitInHand()); },
         .follow = [this](const Saved&) { afterSave("Record Succesfully Edited and Updated", lblBill.text()); }});
}

void frmRecordsOffline::saveNew() {
    QDateTime now; // the server's, read before the gate is taken
    save<QString>(
        {.button = OKButton,
         .action = "VISIT",
         .allowed = [this] { return isComplete(); },
         .prepare =
             [this, &now] {
                 now = program.getServerDateTime();
                 return now.isValid();
             },
         .step = [this, &now](Books& books) { return enterVisit(books, visitInHand(), now, sReferralConsultID); },
         .follow =
             [this](const QString& consultID) {
                 lblBill.setText(consultID); // another workstation may have taken the one that was shown
                 afterSave("Record Succesfully saved", consultID);
             },
         .refused = [this](Refusal) { refuseDuplicate(); }});
}

} // namespace orvane
