#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Application Users": creates accounts. An account is never changed here.
class frmUsers : public Screen {
public:
    explicit frmUsers(Program& program);

    Tree TreeView1{*this, "TreeView1"};
    TextBox txtUserName{*this, "txtUserName"};
    TextBox txtFullName{*this, "txtFullName"};
    TextBox txtPassword{*this, "txtPassword"};
    TextBox txtConfirmPWD{*this, "txtConfirmPWD"};
    ComboBox cboAcctStatus{*this, "cboAcctStatus", ComboBox::ListOnly};
    ComboBox cboBranchCode{*this, "cboBranchCode"};
    Button cmdApply{*this, "cmdApply", "&Save"};
    Button cmdRefresh{*this, "cmdRefresh", "&Reset"};
    Button cmdCancel{*this, "cmdCancel", "&Close"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdApply; }
    Button* cancelButton() override { return &cmdCancel; }

private:
    void buildTree();
    void clearFields();
    void TreeView1_NodeClick();
    bool txtConfirmPWD_LostFocus(); ///< false: the passwords differ, and the user was told
    void cmdApply_Click();
    bool addAccount(); ///< false: the name is taken
};

} // namespace orvane
