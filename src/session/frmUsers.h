#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Application Users": creates accounts. An account is never changed here.
class frmUsers : public Screen {
public:
    explicit frmUsers(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdApply; }
    Button* cancelButton() override { return &cmdCancel; }

private:
    void buildTree();
    void clearFields();
    void TreeView1_NodeClick();
    void txtUserName_Change();
    bool txtConfirmPWD_LostFocus(); ///< false: the passwords differ, and the user was told
    void cmdApply_Click();

    using Me = frmUsers;
    Tree TreeView1{*this, "TreeView1", &Me::TreeView1_NodeClick};
    TextBox txtUserName{*this, "txtUserName", &Me::txtUserName_Change};
    TextBox txtFullName{*this, "txtFullName"};
    TextBox txtPassword{*this, "txtPassword"};
    TextBox txtConfirmPWD{*this, "txtConfirmPWD"};
    ComboBox cboAcctStatus{*this, "cboAcctStatus", ComboBox::ListOnly};
    ComboBox cboBranchCode{*this, "cboBranchCode"};
    Button cmdApply{*this, "cmdApply", "&Save", &Me::cmdApply_Click};
    Button cmdRefresh{*this, "cmdRefresh", "&Reset", &Me::clearFields};
    Button cmdCancel{*this, "cmdCancel", "&Close", &Me::unload};
};

} // namespace orvane
