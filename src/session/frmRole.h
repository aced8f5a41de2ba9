#pragma once

#include "session/Role.h"
#include "session/Screen.h"

namespace orvane {

/// "Role Creation": adds roles; all of them show in the grid.
class frmRole : public Screen {
public:
    explicit frmRole(Program& program);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdSubmit; }
    Button* cancelButton() override { return &cmdCancel; }

private:
    bool txtRID_KeyPress(QChar key);
    void txtRID_Change() { narrate("Accepting RoleID from " + session.gFullName + "..."); }
    void txtRName_Change() { narrate("Accepting Role Name from " + session.gFullName + "..."); }
    void txtRID_LostFocus();
    void txtRName_LostFocus();
    void cmdSubmit_Click();
    void waitForRoleID();
    void narrate(const QString& text) { StatusBar1.setPanel(1, text); }

    using Me = frmRole;
    TextBox txtRID{*this, "txtRID", &Me::txtRID_Change};
    TextBox txtRName{*this, "txtRName", &Me::txtRName_Change};
    Grid DataGrid1{*this, "DataGrid1"};
    Button cmdSubmit{*this, "cmdSubmit", "&Save", &Me::cmdSubmit_Click};
    Button cmdCancel{*this, "cmdCancel", "&Close", &Me::unload};
    StatusBar StatusBar1{*this, "StatusBar1", 1};

    Role m_role;
};

} // namespace orvane
