#pragma once

#include "billing/ReceiptFrame.h"
#include "forms/RangePicker.h"
#include "session/Screen.h"

namespace orvane {

/// "Collate/Verfy a Bill": turns the waiting items of a visit into its bill, shows what is payable and saves the bill,
/// with a receipt in the same save where one is taken.
class frmBillingVerify : public Screen {
public:
    explicit frmBillingVerify(Program& program);

    void Form_Load() override;
    void Form_Activate() override;
    Layout layout() const override;
    Button* defaultButton() override { return &OKButton; }
    void afterFault() override;

protected:
    PatientTaker patientTaker() override;

private:
    // Opening (frmBillingVerify.cpp).
    void fillLists();
    void enableFields();
    void SetButtons();
    Layout filterLayout() const;
    Layout billLayout() const;
    Layout receiptLayout() const;
    Layout diagnosisLayout() const;

    // Finding and reading a visit (frmBillingVerifyLoad.cpp).
    void cmdList_Click();
    void cmdAdm_Click();
    void cmdOK_Click();
    void cmdAdd_Click();
    void cboVehNo_Click();
    void cmdRefresh_Click();
    void cmdCancel_Click();
    void getPatForBill(const Sql& visits);
    Sql visitsBetweenDates() const;
    void clearFields();
    void clearVisit();
    void clearEntry();
    void loadVisit(QString consultID, QString pno, QString patient);
    bool readVisit(Connection& connection);
    void showVisit(Connection& connection);
    void takeInHand();
    void getConFromAdmission();
    void readAttendance(Connection& connection);
    void getAccumBill();
    void collate();
    void showFigures();
    void fillGrid(Connection& connection);
    void showScreen(const QString& heading);
    QDate today() const;

    // Saving, with the receipt (frmBillingVerifySave.cpp).
    void OKButton_Click();
    bool isReadyToSave();
    QString aboutBill() const; ///< for the question before a save
    bool isBillOpen();
    bool areDatesGiven();
    bool isReceiptComplete();
    void confirmProfFee();
    bool prepareSave();
    bool genIDNo();
    BillToSave billToSave() const;
    void afterSave(const QString& receiptNo);
    void saveApprvCode();
    void chkRct_Click();
    void followReceiptBox();
    void chkDep_Click();
    void chkCurr_Click();
    void txtEmp_Change();

    // Fees and further actions (frmBillingVerifyActions.cpp).
    bool hasPatient(const QString& refusal);
    bool isFeeGiven(TextBox& box, const QString& refusal);
    void cmdBill_Click();
    void cmdNHIS_Click();
    bool askFeeItem();
    void cmdCap_Click();
    bool isManager();
    void cmdAddBill_Click();
    void cmdPrice_Click();
    void cmdUnBilled_Click();
    void showOr(const QString& text, const QString& nothing); ///< `nothing` for an empty text
    void cmdPresc_Click();
    void cmdDispense_Click();
    void cmdLastDiag_Click();
    void cmdAcct_Click();
    void cmdCoy_Click();
    void cmdSplit_Click();
    void cmdExt_Click();
    void cmdRev_Click();
    void cmdPR_Click();
    void cmdPrint_Click();

    BillInHand m_bill;       ///< the visit on the screen; empty until it was read whole
    bool m_loading = false;  ///< a visit is being read
    bool m_saved = false;    ///< the bill on the screen was saved
    QString m_receiptClinic; ///< clinic of the receipt being taken
    QString m_feeItem;       ///< text of the fee being added

    // Finding a visit.
    using Me = frmBillingVerify;
    RangePicker visits{*this,
                       {"Attendance bet&ween", "cmdList", "&Get Patient"},
                       &Me::cmdList_Click,
                       ComboBox::ListOnly,
                       &Me::cboVehNo_Click};
    ComboBox cboHMO{*this, "cboHMO", ComboBox::ListOnly};
    CheckBox chkAll{*this, "chkAll", "Sho&w All"};
    Button cmdAdm{*this, "cmdAdm", "Admission ONLY", &Me::cmdAdm_Click};
    Button cmdAdd{*this, "cmdAdd", "Collate Bill", &Me::cmdAdd_Click};
    TextBox txtSearch{*this, "txtSearch"};
    Button cmdOK{*this, "cmdOK", "OK", &Me::cmdOK_Click};

    // The visit in hand.
    Label lblBill{*this, "lblBill"};
    Label lblCoy{*this, "lblCoy"};
    Label lblDate{*this, "lblDate"};       ///< client category
    Label lblDisplay{*this, "lblDisplay"}; ///< fee for service
    Label lblDate2{*this, "lblDate2"};
    Label lblDateLast{*this, "lblDateLast"};
    DatePicker dtDate{*this, "dtDate"};
    DatePicker dtAdmit{*this, "dtAdmit"};
    DatePicker dtDisch{*this, "dtDisch"};
    TextBox txtApprv{*this, "txtApprv"};
    TabStrip SSTab1{*this, "SSTab1"};

    // Its bill.
    Grid grdData{*this, "grdData", &Me::cmdPrice_Click};
    Label lblGen{*this, "lblGen"};
    Label lblBilled{*this, "lblBilled"};
    Label lblPaid{*this, "lblPaid"};
    Label lblSub{*this, "lblSub"};
    Label lblTotal{*this, "lblTotal"};
    Label lblCurr{*this, "lblCurr"};
    Label lblAmtDue{*this, "lblAmtDue"};
    Label txtDuty{*this, "txtDuty"}; ///< the payable in words
    TextBox txtProf{*this, "txtProf"};
    Button cmdBill{*this, "cmdBill", "Recalculate Bill", &Me::cmdBill_Click};
    TextBox txtNHIS{*this, "txtNHIS"};
    Button cmdNHIS{*this, "cmdNHIS", "Recalculate Bill", &Me::cmdNHIS_Click};
    Button cmdCap{*this, "cmdCap", "Capitate All", &Me::cmdCap_Click};

    // The receipt.
    Label lblScreen{*this, "lblScreen", "Collate / Verify Bill"};
    CheckBox chkRct{*this, "chkRct", "Issue &Receipt", &Me::chkRct_Click};
    Button cmdRev{*this, "cmdRev", "Headings...", &Me::cmdRev_Click};
    CheckBox chkDep{*this, "chkDep", "&Deposit", &Me::chkDep_Click};
    CheckBox chkCurr{*this, "chkCurr", "Tick to Enter Fresh Bill ONLY", &Me::chkCurr_Click};
    ReceiptFrame receipt{*this, session};

    // Diagnosis and treatment.
    TextBox txtDiag{*this, "txtDiag"};
    Button cmdPresc{*this, "cmdPresc", "View Prescription/ Lab", &Me::cmdPresc_Click};
    Button cmdDispense{*this, "cmdDispense", "View Treatment Plan", &Me::cmdDispense_Click};
    Button cmdLastDiag{*this, "cmdLastDiag", "Last Diagnosis", &Me::cmdLastDiag_Click};

    Button cmdAddBill{*this, "cmdAddBill", "&Add to Bill", &Me::cmdAddBill_Click};
    Button cmdPrice{*this, "cmdPrice", "Ad&just Bill", &Me::cmdPrice_Click};
    Button cmdUnBilled{*this, "cmdUnBilled", "View &UnBilled", &Me::cmdUnBilled_Click};
    Button cmdAcct{*this, "cmdAcct", "D&ebt Info", &Me::cmdAcct_Click};
    Button cmdCoy{*this, "cmdCoy", "Update Compan&y", &Me::cmdCoy_Click};
    Button cmdSplit{*this, "cmdSplit", "Split B&ill", &Me::cmdSplit_Click};
    Button cmdExt{*this, "cmdExt", "Service &Outlet", &Me::cmdExt_Click};
    Button cmdPR{*this, "cmdPR", "&Print Receipt", &Me::cmdPR_Click};
    Button cmdPrint{*this, "cmdPrint", "Print In&voice", &Me::cmdPrint_Click};
    Button cmdRefresh{*this, "cmdRefresh", "Re&fresh", &Me::cmdRefresh_Click};
    Button cmdCancel{*this, "cmdCancel", "&Cancel", &Me::cmdCancel_Click};
    Button OKButton{*this, "OKButton", "&Save Collated Bill", &Me::OKButton_Click};
};

} // namespace orvane
