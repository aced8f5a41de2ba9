#pragma once

#include "session/Screen.h"
#include "session/UserRole.h"

namespace orvane {

/// "User Allocation To Roles": allots a user to a role; a tree of the roles lists who holds each.
class frmUserRole : public Screen {
public:
    explicit frmUserRole(Program& program);

    ComboBox cboRoleID{*this, "cboRoleID"};
    ComboBox cboUsername{*this, "cboUsername"};
    Tree TreeView1{*this, "TreeView1"};
    Grid ListView1{*this, "ListView1"};
    Button cmdSubmit{*this, "cmdSubmit", "&Save"};
    Button cmdCancel{*this, "cmdCancel", "&Close"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdSubmit; }
    Button* cancelButton() override { return &cmdCancel; }

private:
    void cmdSubmit_Click();
    void TreeView1_NodeClick();
    void answerEvents();

    UserRole oNewUserRole;
};

} // namespace orvane
