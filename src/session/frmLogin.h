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
    using TrailWriter = void (*)(Books&, const QString& loginName, const QDateTime& at);

    void cmdOK_Click();
    void cmdCancel_Click();
    Recordset findUser(const QString& loginName, const QString& scrambled);
    void refuse(const QString& loginName);
    void enter(const QString& loginName);
    void writeTrail(TrailWriter trail, const QString& loginName);

    using Me = frmLogin;
    TextBox txtUserName{*this, "txtUserName"};
    TextBox txtPassword{*this, "txtPassword"};
    Button cmdOK{*this, "cmdOK", "OK", &Me::cmdOK_Click};
    Button cmdCancel{*this, "cmdCancel", "Exit", &Me::cmdCancel_Click};
    int m_attempts = 0;
};

} // namespace orvane
