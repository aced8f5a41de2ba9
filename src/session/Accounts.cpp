#include "session/Accounts.h"

namespace orvane {

namespace {

const QString unknownUser = "Alert! Indicated username not found in the list of accredited users.";
const QString emptyUser = "Alert! Username can't be empty.";

/// False: there is no such account.
bool setAccountStatus(Program& program, const QString& name, const QString& status) {
    Connection connection = program.openBilling();
    Recordset account(connection, Sql("SELECT Username, AccountStatus FROM ApplicationUsers WHERE Username = '")
                                      << name << "' ");
    if (account.eof())
        return false;
    account.set("AccountStatus", status);
    account.update();
    return true;
}

void changeAccountStatus(Program& program, const QString& status, const QString& done) {
    const std::optional<QString> answer = program.ui().inputBox("Kindly indicate the Account's Username.");
    if (!answer)
        return;
    const QString name = answer->trimmed();
    if (name.isEmpty()) {
        program.box(emptyUser, Icon::Exclamation);
        return;
    }
    program.box(setAccountStatus(program, name, status) ? done : unknownUser);
}

} // namespace

void enableUserAccount(Program& program) {
    changeAccountStatus(program, "Enabled", "Congrats! User Account Enabled successfully.");
}

void disableUserAccount(Program& program) {
    changeAccountStatus(program, "Disabled", "Congrats! User Account diasbled successfully.");
}

void changeUserPassword(Program& program, const QString& user, const QString& oldPassword, const QString& newPassword) {
    if (user.trimmed().isEmpty()) {
        program.box(emptyUser);
        return;
    }
    if (oldPassword.trimmed().isEmpty()) {
        program.box("Alert! Old Account password can't be empty.");
        return;
    }
    Connection connection = program.openBilling();
    const Recordset account(connection, Sql("SELECT Username, Password FROM ApplicationUsers WHERE Username = '")
                                            << user << "' AND Password = '" << oldPassword << "' ");
    if (account.eof()) {
        program.box(unknownUser);
        return;
    }
    connection.execute(Sql("UPDATE ApplicationUsers SET Password = '")
                       << newPassword << "' where Username = '" << user << "'");
    program.box("Congrats! User Account's Password changed.");
}

} // namespace orvane
