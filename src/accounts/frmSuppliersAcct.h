#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Post Suppliers Entries (Payables)": stock received on credit, by the days of its invoices; here the accountant
/// posts it to the ledger.
class frmSuppliersAcct : public Screen {
public:
    explicit frmSuppliersAcct(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdList; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void fillAccounts();
    bool isListShown();
    Sql chosen() const;
    void cboRev_Click();
    void cmdList_Click();
    void grdData_DblClick();
    void OKButton_Click();
    void clearEntry();
    void cmdPost_Click();
    void post();
    void cmdView_Click();
    void cmdExport_Click();

    using Me = frmSuppliersAcct;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    CheckBox chkAll{*this, "chkAll", "Show &All"};
    Button cmdList{*this, "cmdList", "&Get List", &Me::cmdList_Click};
    Grid grdData{*this, "grdData", &Me::grdData_DblClick};
    TextBox txtItem{*this, "txtItem"};
    TextBox txtAmt{*this, "txtAmt"};
    ComboBox cboRev{*this, "cboRev", ComboBox::ListOnly, &Me::cboRev_Click};
    Button OKButton{*this, "OKButton", "&Update", &Me::OKButton_Click};
    Button cmdPost{*this, "cmdPost", "&Post to Account", &Me::cmdPost_Click};
    Button cmdView{*this, "cmdView", "&View Revenue Report", &Me::cmdView_Click};
    Button cmdExport{*this, "cmdExport", "&Export to Excel", &Me::cmdExport_Click};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};

    qlonglong m_SNo = 0; ///< of the entry in hand
    QString m_account;   ///< picked for it
};

} // namespace orvane
