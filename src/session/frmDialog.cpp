#include "session/frmDialog.h"

#include "books/User.h"

namespace orvane {

frmDialog::frmDialog(Program& owner) : Screen(owner, "frmDialog", "Change Password") {
    for (TextBox* box : {&txtPass, &txtPassN, &txtPassC})
        box->masked();
    txtPassC.onLeave = [this] { txtPassC_LostFocus(); };
    // Enter presses the button without leaving the box, so the passwords are compared first.
    txtPassC.onEnter = [this] {
        if (txtPassC_LostFocus())
            OKButton.click();
    };
}

Layout frmDialog::layout() const {
    using namespace orvane::layout;
    return column({field("User Name", txtUser, 24), field("Old Password", txtPass, 24),
                   field("New Password", txtPassN, 24), field("Confirm Password", txtPassC, 24),
                   buttons({}, {&CancelButton, &OKButton})});
}

bool frmDialog::txtPassC_LostFocus() {
    if (txtPassC.text() == txtPassN.text())
        return true;
    program.box("Alert! Unmatched password. Kindly re-type to go on.", Icon::Critical);
    txtPassC.setFocus();
    return false;
}

void frmDialog::OKButton_Click() {
    // Its letter and Ctrl+S press the button without leaving the box.
    if (settlesSave() || !txtPassC_LostFocus())
        return;
    save<Saved>(
        {.button = OKButton,
         .action = "PASSWORD",
         .allowed =
             [this] {
                 return passes({{txtUser.text().trimmed().isEmpty(), "Alert! Username can't be empty."},
                                {txtPass.text().trimmed().isEmpty(), "Alert! Old Account password can't be empty."}});
             },
         .step =
             [this](Books& books) { return changePassword(books, txtUser.text(), txtPass.text(), txtPassN.text()); },
         .follow =
             [this](const Saved&) {
                 program.box("Congrats! User Account's Password changed.");
                 clearFields();
             }});
    // Refused or saved, nothing that was typed here stays to be read.
    clearFields();
}

void frmDialog::clearFields() {
    for (TextBox* box : {&txtUser, &txtPass, &txtPassN, &txtPassC})
        box->clear();
}

} // namespace orvane
