#pragma once

#include "billing/Collate.h"
#include "receipts/ReceiptRows.h"
#include "session/Screen.h"

#include <array>

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

private:
    enum class Search { Range, InPatients, OneBill };

    /// What a line has charged to an account.
    struct Charge {
        double amount = 0; ///< naira
        QString clientCode;
    };

    /// One means of payment of a receipt.
    struct PayWay {
        PayWay(Form& form, int index, const QString& caption);
        Label lblAmt;
        TextBox txtAmt;
        std::optional<ComboBox> cboBank; ///< none for cash
        Label lblAcctNo;
    };

    // Opening (frmBillingVerify.cpp).
    void connectHandlers();
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
    void getPatForBill(Search search);
    Sql visitsBetweenDates() const;
    void clearFields();
    void loadVisit(QString pno, QString consultID, QString patient);
    void takeInHand();
    void getConFromAdmission();
    bool readVisit(Connection& connection);
    bool readClient(Connection& connection);
    void readAttendance(Connection& connection);
    void getDiagnosis(Connection& connection);
    void getApprvCode(Connection& connection);
    void getAccumBill();
    double sumOfItems(Connection& connection) const;
    void fillGrid(Connection& connection);
    void showScreen(const QString& heading);
    QDate today() const;

    // Saving (frmBillingVerifySave.cpp).
    void OKButton_Click();
    bool isBillInHand();
    bool isBillOpen();
    bool areDatesGiven();
    void confirmProfFee();
    QString writeBill(const ReceiptEntry* receipt);
    void afterSave(const QString& receiptNo);
    void saveVisit(Connection& connection);
    void saveBillRow(Connection& connection);
    void saveApprvCode();

    // The receipt (frmBillingVerifyReceipt.cpp).
    void chkRct_Click();
    void followReceiptBox();
    void clearReceipt();
    void txtAmt_Change();
    void txtHt_Change();
    void chkExact_Click();
    void chkDep_Click();
    void chkCurr_Click();
    void cboBank_Click(int way);
    QString defaultAccount(int way) const;
    bool isReceiptComplete();
    bool refuseReceipt(const QString& text, Control& control, const QString& title = {});
    void genIDNo();
    ReceiptEntry receiptOnScreen() const;
    void saveReceipt(Connection& connection, const ReceiptEntry& receipt);

    // Further actions (frmBillingVerifyActions.cpp).
    bool hasPatient(const QString& refusal);
    void cmdAddBill_Click();
    void cmdPrice_Click();
    void cmdUnBilled_Click();
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

    // Fees and capitation (frmBillingVerifyFees.cpp).
    void cmdBill_Click();
    void cmdNHIS_Click();
    void cmdCap_Click();
    bool isFeeGiven(TextBox& box, const QString& refusal);
    void addFeeItem(Connection& connection, const QString& text, double fee, const QString& revType, bool billed);
    void addFeeLine(Connection& connection, const QString& text, double fee, const QString& revType);
    void addServiceFee(Connection& connection, const QString& text);
    bool isManager();
    bool changeBill(Button& button, const std::function<void(Connection&)>& steps, std::function<void()> afterChange);
    void updateBillTotal(Connection& connection);
    void capitateItems(Connection& connection);
    void capitateItem(Connection& connection, const Recordset& item, const Charge& charge);

    BillInHand m_bill;       ///< the visit on the screen; empty until it was read whole
    bool m_loading = false;  ///< a visit is being read
    bool m_saved = false;    ///< the bill on the screen was saved
    QString m_receiptClinic; ///< clinic of the receipt being taken
    QString m_namedWays;     ///< what this screen wrote into cboPay by itself

    // Finding a visit.
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    ComboBox cboHMO{*this, "cboHMO", ComboBox::ListOnly};
    CheckBox chkAll{*this, "chkAll", "Sho&w All"};
    Button cmdList{*this, "cmdList", "&Get Patient"};
    Button cmdAdm{*this, "cmdAdm", "Admission ONLY"};
    Button cmdAdd{*this, "cmdAdd", "Collate Bill"};
    TextBox txtSearch{*this, "txtSearch"};
    Button cmdOK{*this, "cmdOK", "OK"};
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::ListOnly};

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
    Grid grdData{*this, "grdData"};
    Label lblGen{*this, "lblGen"};
    Label lblBilled{*this, "lblBilled"};
    Label lblPaid{*this, "lblPaid"};
    Label lblSub{*this, "lblSub"};
    Label lblTotal{*this, "lblTotal"};
    Label lblCurr{*this, "lblCurr"};
    Label lblAmtDue{*this, "lblAmtDue"};
    Label txtDuty{*this, "txtDuty"}; ///< the payable in words
    TextBox txtProf{*this, "txtProf"};
    Button cmdBill{*this, "cmdBill", "Recalculate Bill"};
    TextBox txtNHIS{*this, "txtNHIS"};
    Button cmdNHIS{*this, "cmdNHIS", "Recalculate Bill"};
    Button cmdCap{*this, "cmdCap", "Capitate All"};

    // The receipt.
    Label lblScreen{*this, "lblScreen", "Collate / Verify Bill"};
    CheckBox chkRct{*this, "chkRct", "Issue &Receipt"};
    Button cmdRev{*this, "cmdRev", "Headings..."};
    CheckBox chkDep{*this, "chkDep", "&Deposit"};
    CheckBox chkCurr{*this, "chkCurr", "Tick to Enter Fresh Bill ONLY"};
    Frame fraReceipt{*this, "fraReceipt"};
    Label lblRct{*this, "lblRct"};
    DatePicker dtRctDate{*this, "dtRctDate"};
    ComboBox cboPayFor{*this, "cboPayFor"};
    Label lblDep{*this, "lblDep"};
    TextBox txtEmp{*this, "txtEmp"};
    CheckBox chkExact{*this, "chkExact", "E&xact amount in cash"};
    std::array<PayWay, 4> ways{
        {PayWay(*this, 0, "CASH"), PayWay(*this, 1, "POS"), PayWay(*this, 2, "CHEQUE"), PayWay(*this, 3, "TRANSFER")}};
    TextBox txtCheque{*this, "txtCheque"};
    ComboBox cboPay{*this, "cboPay"};
    TextBox txtHt{*this, "txtHt"};
    TextBox txtWord{*this, "txtWord"};

    // Diagnosis and treatment.
    TextBox txtDiag{*this, "txtDiag"};
    Button cmdPresc{*this, "cmdPresc", "View Prescription/ Lab"};
    Button cmdDispense{*this, "cmdDispense", "View Treatment Plan"};
    Button cmdLastDiag{*this, "cmdLastDiag", "Last Diagnosis"};

    Button cmdAddBill{*this, "cmdAddBill", "&Add to Bill"};
    Button cmdPrice{*this, "cmdPrice", "Ad&just Bill"};
    Button cmdUnBilled{*this, "cmdUnBilled", "View &UnBilled"};
    Button cmdAcct{*this, "cmdAcct", "D&ebt Info"};
    Button cmdCoy{*this, "cmdCoy", "Update Compan&y"};
    Button cmdSplit{*this, "cmdSplit", "Split B&ill"};
    Button cmdExt{*this, "cmdExt", "Service &Outlet"};
    Button cmdPR{*this, "cmdPR", "&Print Receipt"};
    Button cmdPrint{*this, "cmdPrint", "Print In&voice"};
    Button cmdRefresh{*this, "cmdRefresh", "Re&fresh"};
    Button cmdCancel{*this, "cmdCancel", "&Cancel"};
    Button OKButton{*this, "OKButton", "&Save Collated Bill"};
};

/// What a text box holds as naira; a blank or a text that is no amount is 0.
double amountIn(const TextBox& box);

} // namespace orvane
