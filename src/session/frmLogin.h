#pragma once

#include "session/Screen.h"

namespace orvane {

/// The log-on by name and password, for a place without a launcher.
class frmLogin : public Screen {
public:
    explicit frmLogin(Program& owner);

    Layout layout() const override;
    Button* defaultButton() override { return &cmdOK; }
    Button* cancelButton() override { return &cmdCancel; }

private:
    void cmdOK_Click();
    void refuse();
    void takeUser(const Recordset& user);
    void enter();

    TextBox txtUserName{*this, "txtUserName"};
    TextBox txtPassword{*this, "txtPassword"};
    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdCancel{*this, "cmdCancel", "Exit"};
    int m_attempts = 0;
};

} // namespace orvane
