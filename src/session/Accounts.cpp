#include "session/Accounts.h"

#include "books/User.h"

namespace orvane {

namespace {

void askAndChange(Program& program, const QString& status, const QString& done) {
    // A cancelled input is an empty one.
    const QString name = program.ui().inputBox("Kindly indicate the Account's Username.").value_or(QString()).trimmed();
    if (name.isEmpty()) {
        program.box("Alert! Username can't be empty.", Icon::Exclamation);
        return;
    }
    const Given<Saved> given = program.desk().save<Saved>(
        "ACCOUNT STATUS", [&](Books& books) { return changeAccountStatus(books, name, status); });
    program.box(given ? done : refusalText(given.refusal()));
}

} // namespace

void enableUserAccount(Program& program) {
    askAndChange(program, "Enabled", "Congrats! User Account Enabled successfully.");
}

void disableUserAccount(Program& program) {
    askAndChange(program, "Disabled", "Congrats! User Account diasbled successfully.");
}

} // namespace orvane
