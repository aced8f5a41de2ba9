#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Change Password".
class frmDialog : public Screen {
public:
    explicit frmDialog(Program& owner);

    Layout layout() const override;
    Button* defaultButton() override { return &OKButton; }
    Button* saveButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    bool txtPassC_LostFocus(); ///< false: the passwords differ, and the user was told
    void OKButton_Click();
    void clearFields();

    using Me = frmDialog;
    TextBox txtUser{*this, "txtUser"};
    TextBox txtPass{*this, "txtPass"};
    TextBox txtPassN{*this, "txtPassN"};
    TextBox txtPassC{*this, "txtPassC"};
    Button OKButton{*this, "OKButton", "&OK", &Me::OKButton_Click};
    Button CancelButton{*this, "CancelButton", "&Cancel", &Me::unload};
};

} // namespace orvane
