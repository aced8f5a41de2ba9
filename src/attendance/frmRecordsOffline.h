#pragma once

#include "books/Visit.h"
#include "session/Screen.h"

namespace orvane {

/// Attendance entry: a records officer enters a patient's visit. Saving gives the visit its consultation id and puts
/// the consultation charge into BillAccum.
class frmRecordsOffline : public Screen {
public:
    explicit frmRecordsOffline(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    // The list (frmRecordsOffline.cpp).
    void fillLists();
    void cmdOK_Click();
    void showFound(const Sql& patients);
    void cmdRefresh_Click();
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDel_Click();
    void cmdCancel_Click();
    void clearForm();
    void setButtons(bool editing);
    bool isSearchResult() const;

    // The patient in hand (frmRecordsOfflinePatient.cpp).
    void cboVehNo_Click();
    void takeFound();
    void cboClient_Click();
    void cboRef_Click();
    void cboAppr_Click();
    void tmrBill_Timer();
    void refuseDuplicate();
    void clearPatient();
    QDate showPatient(Connection& connection);
    void checkAppointment(Connection& connection);
    void checkReview();

    // Saving (frmRecordsOfflineSave.cpp).
    void OKButton_Click();
    bool isComplete();
    Visit visitInHand() const;
    Visit listedVisit() const;
    void saveEdited();
    void saveNew();
    void afterSave(const QString& message, const QString& consultID);

    using Me = frmRecordsOffline;
    TextBox txtName{*this, "txtName"};
    Button cmdOK{*this, "cmdOK", "Search", &Me::cmdOK_Click};
    Label lblFound{*this, "lblFound"};
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::ListOnly, &Me::cboVehNo_Click};
    DatePicker dtDate{*this, "dtDate"};
    DatePicker dtNext{*this, "dtNext"};
    ComboBox cboType{*this, "cboType", ComboBox::ListOnly};
    ComboBox cboClient{*this, "cboClient", ComboBox::ListOnly, &Me::cboClient_Click};
    ComboBox cboRef{*this, "cboRef", ComboBox::ListOnly, &Me::cboRef_Click};
    Label Label5{*this, "Label5", "Patient on referral"};
    ComboBox cboBilling{*this, "cboBilling", ComboBox::ListOnly};
    ComboBox cboAppr{*this, "cboAppr", ComboBox::ListOnly, &Me::cboAppr_Click};
    TextBox txtRem{*this, "txtRem"};
    CheckBox chkCon{*this, "chkCon", "tick this box only if Attendee is getting a card without seeing the Doctor"};
    Label lblBill{*this, "lblBill"};
    Label lblNo{*this, "lblNo"};
    Label lblOld{*this, "lblOld"};
    Label lblCoy{*this, "lblCoy"};
    Label lblPolicy{*this, "lblPolicy"};
    Label LblOccup{*this, "LblOccup"};
    Label lblExpire{*this, "lblExpire"};
    Picture piX{*this, "piX"};
    Grid grdData{*this, "grdData", &Me::takeFound};
    Timer tmrBill{*this, "tmrBill", 500, false, &Me::tmrBill_Timer};
    Button cmdAdd{*this, "cmdAdd", "Add", &Me::cmdAdd_Click};
    Button cmdEdit{*this, "cmdEdit", "Edit", &Me::cmdEdit_Click};
    Button cmdDel{*this, "cmdDel", "Delete", &Me::cmdDel_Click};
    Button cmdRefresh{*this, "cmdRefresh", "Refresh", &Me::cmdRefresh_Click};
    Button cmdCancel{*this, "cmdCancel", "Cancel", &Me::cmdCancel_Click};
    Button CancelButton{*this, "CancelButton", "Close", &Me::unload};
    Button OKButton{*this, "OKButton", "Save", &Me::OKButton_Click};

    QString sPatientNo;         ///< the number taken from the picker
    QString sClientID;          ///< his client's retainID; the screen shows the client's name
    QString sReferralConsultID; ///< the consult id of a follow-up appointment, else empty
    QString sOfficerEmpID;
    bool bCardExpired = false; ///< of the patient picked last: he cannot be saved
    bool bEditing = false;
    bool bFilling = false; ///< a row goes into the fields: their events are not the user's
    qlonglong lRecID = 0;  ///< the visit under edit
    Visit edited;          ///< and how it stood in the list
};

} // namespace orvane
