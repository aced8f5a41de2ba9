#include "session/frmLogin.h"

#include "session/LoginTrail.h"
#include "session/Main.h"
#include "session/Scramble.h"

namespace orvane {

frmLogin::frmLogin(Program& owner) : Screen(owner, "frmLogin", "Login") {
    txtPassword.masked();
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { program.end(); };
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
    session.sLoginName = txtUserName.text().trimmed();
    session.sLoginPassword = scramblePassword(program, txtPassword.text().trimmed());
    Recordset user;
    {
        Connection connection = program.openBilling();
        user = Recordset(
            connection,
            Sql("SELECT Username,Branchcode, Fullname,EmpID,loginRole, Password FROM vwUsers WHERE Username =  '")
                << session.sLoginName << "'  And Password = '" << session.sLoginPassword
                << "' AND AccountStatus = 'Enabled' and loginrole='" << session.gModuleName << "'");
    }
    if (user.eof()) {
        refuse();
        return;
    }
    takeUser(user);
    // The server may compare without regard to case; a password does not.
    if (session.sLoginPassword != session.sUserPassword)
        program.box("Invalid Login details");
    else
        enter();
}

void frmLogin::refuse() {
    trailLogonFailure(program, m_attempts);
    program.box("Alert! Invalid Login details.", Icon::Information);
    txtUserName.clear();
    txtPassword.clear();
    txtUserName.setFocus();
    ++m_attempts;
}

void frmLogin::takeUser(const Recordset& user) {
    session.gEmpID = user.text("empID");
    session.gUsername = user.text("username");
    session.gFullName = user.text("fullName");
    session.sUserPassword = user.text("Password");
    session.sLoginBranch = user.text("branchcode");
}

void frmLogin::enter() {
    program.box("You're welcome, " + session.gFullName + ".", Icon::Information);
    program.openUserActivity(false, false, session.gModuleName);
    trailLogonSuccess(program, m_attempts);
    // Nobody may work before the hospital and the settings are known; a start by the launcher has them already.
    if (session.gHospIDName.isEmpty() && !prepareSession(program)) {
        program.end();
        return;
    }
    program.open("MdiTolmek");
    if (Form* welcome = program.loadedForm("frmWelcome"))
        welcome->unload();
    unload();
}

} // namespace orvane
