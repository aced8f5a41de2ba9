#pragma once

#include "books/CashPosting.h"
#include "session/Screen.h"

namespace orvane {

/// "Cash Transfer to Accounts": the receipts of some days by way of payment, with the bank account that each goes to;
/// here the accountant posts them to the ledger.
class frmRevCashAcct : public Screen {
public:
    explicit frmRevCashAcct(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdList; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void fillBanks();
    bool isRangeGiven();
    bool isGroupGiven(const QString& none);
    void cboGroup_Change();
    void cboRev_Click();
    void cmdList_Click();
    void grdData_DblClick();
    void OKButton_Click();
    void clearEntry();
    void cmdView_Click();
    void post();
    void cmdCash_Click();
    void cmdDetails_Click();
    void cmdExport_Click();
    Sql ofClient() const;

    using Me = frmRevCashAcct;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdList{*this, "cmdList", "&Get List", &Me::cmdList_Click};
    Label lblHead{*this, "lblHead", "Daily Cash Transfer to Accounts (UnPosted Entries)"};
    Grid grdData{*this, "grdData", &Me::grdData_DblClick};
    TextBox txtItem{*this, "txtItem"};
    TextBox txtDate{*this, "txtDate"};
    TextBox txtType{*this, "txtType"};
    ComboBox cboRev{*this, "cboRev", ComboBox::ListOnly, &Me::cboRev_Click};
    Button OKButton{*this, "OKButton", "&Update", &Me::OKButton_Click};
    ComboBox cboGroup{*this, "cboGroup", ComboBox::FreeText, &Me::cboGroup_Change};
    Button cmdView{*this, "cmdView", "&Post to Account", &Me::cmdView_Click};
    Button cmdCash{*this, "cmdCash", "View &Cash Distribution", &Me::cmdCash_Click};
    Button cmdDetails{*this, "cmdDetails", "View Revenue &Details by Date", &Me::cmdDetails_Click};
    Button cmdExport{*this, "cmdExport", "&Export to Excel", &Me::cmdExport_Click};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};

    DayOfCash m_cash;             ///< the row in hand
    QString m_account;            ///< picked for it
    QString m_client, m_clientOf; ///< code and name of the client that the reports are about
};

} // namespace orvane
