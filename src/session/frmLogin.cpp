#include "session/frmLogin.h"

#include "books/Trail.h"
#include "session/Main.h"
#include "session/Scramble.h"

namespace orvane {

frmLogin::frmLogin(Program& owner) : Screen(owner, "frmLogin", "Login") {
    txtPassword.masked();
}

Layout frmLogin::layout() const {
    return layout::column({layout::field("&User Name", txtUserName, 24), layout::field("&Password", txtPassword, 24),
                           layout::buttons({}, {&cmdCancel, &cmdOK})});
}

void frmLogin::cmdOK_Click() {
    if (m_attempts >= 3) {
        program.end();
        return;
    }
    const QString loginName = txtUserName.text().trimmed();
    const QString scrambled = scramblePassword(program, txtPassword.text().trimmed());
    const Recordset user = findUser(loginName, scrambled);
    if (user.eof()) {
        refuse(loginName);
        return;
    }
    session.gEmpID = user.text("empID");
    session.gUsername = user.text("username");
    session.gFullName = user.text("fullName");
    // The server may compare without regard to case; a password does not.
    if (scrambled != user.text("Password"))
        program.box("Invalid Login details");
    else
        enter(loginName);
}

void frmLogin::cmdCancel_Click() {
    program.end();
}

Recordset frmLogin::findUser(const QString& loginName, const QString& scrambled) {
    Connection connection = program.openBilling();
    return Recordset(
        connection,
        Sql("SELECT Username,Branchcode, Fullname,EmpID,loginRole, Password FROM vwUsers WHERE Username =  '")
            << loginName << "'  And Password = '" << scrambled << "' AND AccountStatus = 'Enabled' and loginrole='"
            << session.gModuleName << "'");
}

void frmLogin::refuse(const QString& loginName) {
    writeTrail(trailLogonFailure, loginName);
    program.box("Alert! Invalid Login details.", Icon::Information);
    txtUserName.clear();
    txtPassword.clear();
    txtUserName.setFocus();
    ++m_attempts;
}

void frmLogin::enter(const QString& loginName) {
    // Nobody may work before the hospital and all settings are known; a start by the launcher has them already.
    if (session.gHospIDName.isEmpty() && !prepareSession(program)) {
        program.end();
        return;
    }
    program.box("You're welcome, " + session.gFullName + ".", Icon::Information);
    program.openUserActivity(false, false, session.gModuleName);
    writeTrail(trailLogonSuccess, loginName);
    program.open("MdiTolmek");
    if (Form* welcome = program.loadedForm("frmWelcome"))
        welcome->unload();
    unload();
}

void frmLogin::writeTrail(TrailWriter trail, const QString& loginName) {
    program.desk().save<Saved>(
        "LOG ON",
        [&](Books& books) -> Given<Saved> {
            trail(books, loginName, ui().now());
            return Saved{};
        });
}

} // namespace orvane
