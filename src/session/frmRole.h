#pragma once

#include "session/Role.h"
#include "session/Screen.h"

namespace orvane {

/// "Role Creation": adds roles; all of them show in the grid.
class frmRole : public Screen {
public:
    explicit frmRole(Program& program);

    TextBox txtRID{*this, "txtRID"};
    TextBox txtRName{*this, "txtRName"};
    Grid DataGrid1{*this, "DataGrid1"};
    Button cmdSubmit{*this, "cmdSubmit", "&Save"};
    Button cmdCancel{*this, "cmdCancel", "&Close"};
    StatusBar StatusBar1{*this, "StatusBar1", 1};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdSubmit; }
    Button* cancelButton() override { return &cmdCancel; }

private:
    bool txtRID_KeyPress(QChar key);
    void cmdSubmit_Click();
    void waitForRoleID();
    void narrate(const QString& text) { StatusBar1.setPanel(1, text); }

    Role m_role;
};

} // namespace orvane
