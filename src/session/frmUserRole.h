#pragma once

#include "session/Screen.h"
#include "session/UserRole.h"

namespace orvane {

/// "User Allocation To Roles": allots a user to a role; a tree of the roles lists who holds each.
class frmUserRole : public Screen {
public:
    explicit frmUserRole(Program& program);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdSubmit; }
    Button* cancelButton() override { return &cmdCancel; }

private:
    void cboRoleID_Click() { oNewUserRole.setRoleID(cboRoleID.text()); }
    void cboUsername_Click() { oNewUserRole.setUsername(cboUsername.text()); }
    void cmdSubmit_Click();
    void TreeView1_NodeClick();
    void answerEvents();

    using Me = frmUserRole;
    ComboBox cboRoleID{*this, "cboRoleID", ComboBox::FreeText, &Me::cboRoleID_Click};
    ComboBox cboUsername{*this, "cboUsername", ComboBox::FreeText, &Me::cboUsername_Click};
    Tree TreeView1{*this, "TreeView1", &Me::TreeView1_NodeClick};
    Grid ListView1{*this, "ListView1"};
    Button cmdSubmit{*this, "cmdSubmit", "&Save", &Me::cmdSubmit_Click};
    Button cmdCancel{*this, "cmdCancel", "&Close", &Me::unload};

    UserRole oNewUserRole;
};

} // namespace orvane
