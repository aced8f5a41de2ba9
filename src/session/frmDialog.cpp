#include "session/frmDialog.h"

#include "session/Accounts.h"

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
    OKButton.onClick = [this] { OKButton_Click(); };
    CancelButton.onClick = [this] { unload(); };
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
    changeUserPassword(program, txtUser.text(), txtPass.text(), txtPassN.text());
    for (TextBox* box : {&txtUser, &txtPass, &txtPassN, &txtPassC})
        box->clear();
}

} // namespace orvane
