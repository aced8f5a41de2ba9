#pragma once

#include "books/OutletBill.h"
#include "forms/RangePicker.h"
#include "session/ListedVisit.h"
#include "session/Screen.h"

namespace orvane {

/// "Service outlets": turns what an outlet was asked for into a bill, with a receipt in the same save where the
/// customer pays.
class frmBillingPublic : public Screen {
public:
    explicit frmBillingPublic(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    void Form_Activate() override;
    Button* defaultButton() override { return &OKButton; }

private:
    void fillLists();
    Layout billLayout() const;
    Layout receiptLayout() const;

    // Finding a visit and reading it.
    void cmdList_Click();
    void cmdAdd_Click();
    void cboVehNo_Click();
    void cmdRefresh_Click();
    void cmdCancel_Click();
    void listVisits(const Sql& which);
    void loadVisit(const ListedVisit& visit);
    void readItems(Connection& connection);
    void showFigures(Connection& connection);
    void clearVisit();

    // Saving (frmBillingPublicSave.cpp).
    void chkRct_Click();
    void formReceiptNo();
    void clearReceipt();
    void lblPay_Change();
    void txtHt_Change();
    bool isComplete();
    bool isReceiptComplete();
    bool isCreditComplete();
    void OKButton_Click();
    OutletBill entered() const;
    void showSaved(const QString& receiptNo);

    // Further actions (frmBillingPublicSave.cpp).
    bool hasPatient(const QString& refusal);
    void cmdPresc_Click();
    void cmdDispense_Click();
    void cmdPrice_Click();
    void cmdRev_Click();
    void cmdPR_Click();
    void cmdPrint_Click();

    using Me = frmBillingPublic;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker dtDate{*this, "dtDate"};
    Button cmdList{*this, "cmdList", "&Get Patient", &Me::cmdList_Click};
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::ListOnly, &Me::cboVehNo_Click};
    Label lblBill{*this, "lblBill"};
    Label lblCoy{*this, "lblCoy"};
    Label lblDisplay{*this, "lblDisplay", "Bill Collation"};
    Grid grdData{*this, "grdData"};
    Label lblSub{*this, "lblSub"};
    Label lblProf{*this, "lblProf"};
    Label lblBF{*this, "lblBF"};
    Label lblTotal{*this, "lblTotal"};
    Label lblDep{*this, "lblDep"};
    Label lblPay{*this, "lblPay", {}, &Me::lblPay_Change};
    TextBox txtDiag{*this, "txtDiag"};
    CheckBox chkRct{*this, "chkRct", "Issue &Receipt", &Me::chkRct_Click};
    Frame fraReceipt{*this, "fraReceipt",
                     "     Tick to enter FINAL Receipt Details (Use Part-Payment Page for Advance Amounts)"};
    Label lblRct{*this, "lblRct"};
    ComboBox cboCat{*this, "cboCat"};
    Button cmdRev{*this, "cmdRev", "&Headings...", &Me::cmdRev_Click};
    ComboBox cboPay{*this, "cboPay"};
    TextBox txtCheque{*this, "txtCheque"};
    ComboBox cboClinic{*this, "cboClinic"};
    TextBox txtEmp{*this, "txtEmp"};
    TextBox txtHt{*this, "txtHt", &Me::txtHt_Change};
    TextBox txtWord{*this, "txtWord"};
    Button cmdAdd{*this, "cmdAdd", "C&ollate Bill", &Me::cmdAdd_Click};
    Button cmdPresc{*this, "cmdPresc", "View Prescription/ Lab", &Me::cmdPresc_Click};
    Button cmdDispense{*this, "cmdDispense", "View &Treatment Plan", &Me::cmdDispense_Click};
    Button cmdPrice{*this, "cmdPrice", "Ad&just Bill", &Me::cmdPrice_Click};
    Button cmdPR{*this, "cmdPR", "&Print Receipt", &Me::cmdPR_Click};
    Button cmdPrint{*this, "cmdPrint", "Print In&voice", &Me::cmdPrint_Click};
    Button cmdRefresh{*this, "cmdRefresh", "Re&fresh", &Me::cmdRefresh_Click};
    Button cmdCancel{*this, "cmdCancel", "&Cancel", &Me::cmdCancel_Click};
    Button OKButton{*this, "OKButton", "&Save Collated Bill", &Me::OKButton_Click};

    ListedVisit m_visit; ///< in hand; empty until it was read whole
    double m_listed = 0; ///< naira, of the items in grdData
    QString m_receiptNo; ///< of the receipt that was taken last
};

} // namespace orvane
