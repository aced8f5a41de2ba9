#include "attendance/ConsultID.h"
#include "attendance/ConsultationFee.h"
#include "attendance/frmRecordsOffline.h"

namespace orvane {

void frmRecordsOffline::OKButton_Click() {
    if (settlesSave())
        return;
    tmrBill.setEnabled(false);
    Label5.setColor({});
    if (!isComplete())
        return;
    if (bEditing)
        saveEdited();
    else
        saveNew();
}

void frmRecordsOffline::afterSave(const QString& message) {
    program.box(message);
    setButtons(false);
    clearForm();
    cmdRefresh_Click();
}

bool frmRecordsOffline::isComplete() {
    struct FieldCheck {
        bool missing;
        const char* message;
        Control& control;
    };
    const FieldCheck checks[] = {
        {lblBill.text().trimmed().isEmpty(),
         " Consultation ID is needed for this Patient, select Patient Name OR see the Administrator", cmdAdd},
        {dtDate.isEmpty(), " please specify Attendance date", dtDate},
        // A patient whose facts were not found is none.
        {cboVehNo.text().isEmpty() || lblNo.text().isEmpty(), " please specify Name of Patient", cboVehNo},
        {cboType.text().isEmpty(), " please specify clinic for Patient", cboType},
        {cboClient.text().isEmpty(), " please specify Purpose of Visit for Patient", cboClient},
        {cboAppr.text().isEmpty(), " please specify Name of record Officer", cboAppr},
        {cboRef.text().isEmpty(), " please specify Whether Patient is on Referral", cboRef},
        {cboBilling.text().isEmpty(), "please specify Patient Billing Category", cboBilling},
        {bCardExpired, "Patient's Card has Expired", cboVehNo},
    };
    for (const FieldCheck& check : checks) {
        if (!check.missing)
            continue;
        program.box(check.message);
        check.control.setFocus();
        return false;
    }
    return true;
}

void frmRecordsOffline::setVisitColumns(Recordset& visit) const {
    visit.set("recDate", dtDate.date());
    visit.set("clientCat", cboBilling.text());
    visit.set("clinicType", cboType.text());
    visit.set("Remarks", cboClient.text());
    visit.set("referal", cboRef.text());
    visit.set("PNo", lblNo.text());
    visit.set("empID", sOfficerEmpID);
    // A visit without a client of its own goes by its patient's.
    visit.set("coyName", lblCoy.text().isEmpty() ? QVariant() : lblCoy.text());
}

void frmRecordsOffline::saveEdited() {
    saveOnce(
        OKButton, [this] { return changeVisit(); }, [this] { afterSave("Record Succesfully Edited and Updated"); });
}

/// Changes the visit only; its bill items are not touched.
bool frmRecordsOffline::changeVisit() {
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    Recordset visit(connection, Sql("select * from hRecords where recID=") << lRecID);
    if (visit.eof())
        throw DataError("This attendance was deleted by another user.");
    setVisitColumns(visit);
    visit.set("exitDate", dtDate.date());
    visit.update();
    transaction.commit({.action = name()});
    return true;
}

void frmRecordsOffline::saveNew() {
    const QDateTime now = program.getServerDateTime();
    if (!now.isValid())
        return;
    if (!saveOnce(
            OKButton, [&] { return enterVisit(now); }, [this] { afterSave("Record Succesfully saved"); }))
        refuseDuplicate();
}

bool frmRecordsOffline::enterVisit(const QDateTime& now) {
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    // Another workstation may have entered the same patient since the pick.
    if (hasOpenVisit(connection))
        return false;
    lblBill.setText(genConsultID(connection, session.gHospID));
    addVisit(connection, now.time());
    postConsultationFee(connection, {cboType.text(), session.sClientName, lblNo.text(), lblBill.text(), now.date()});
    updatePatientAndAppointment(connection);
    transaction.commit({.action = name()});
    return true;
}

void frmRecordsOffline::addVisit(Connection& connection, QTime at) {
    Recordset visit(connection, Sql("select  * from hRecords where 1=2"));
    visit.addNew();
    setVisitColumns(visit);
    visit.set("consultID", lblBill.text());
    visit.set("htime", at.toString("HH:mm"));
    visit.set("attendedto", 0);
    visit.update();
}

/// Items that an outlet captured without a visit come under the new one, a kept follow-up appointment is closed, and
/// the category and referral chosen here become the patient's own.
void frmRecordsOffline::updatePatientAndAppointment(Connection& connection) {
    connection.execute(Sql("update billaccum set consultID='")
                       << lblBill.text() << "' where pno = '" << lblNo.text() << "' and consultID = ''");
    if (!sReferralConsultID.isEmpty())
        connection.execute(Sql("Update hreferal set attendedTo = 1 where ConsultID = '") << sReferralConsultID << "'");
    connection.execute(Sql("Update hpatients set ") << "clientCatID='" << cboBilling.text() << "',"
                                                    << "ref='" << cboRef.text() << "' "
                                                    << "where pno = '" << lblNo.text() << "'");
}

} // namespace orvane
