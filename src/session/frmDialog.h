#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Change Password".
class frmDialog : public Screen {
public:
    explicit frmDialog(Program& program);

    TextBox txtUser{*this, "txtUser"};
    TextBox txtPass{*this, "txtPass"};
    TextBox txtPassN{*this, "txtPassN"};
    TextBox txtPassC{*this, "txtPassC"};
    Button OKButton{*this, "OKButton", "&OK"};
    Button CancelButton{*this, "CancelButton", "&Cancel"};

    Layout layout() const override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    bool txtPassC_LostFocus(); ///< false: the passwords differ, and the user was told
    void OKButton_Click();
};

} // namespace orvane
