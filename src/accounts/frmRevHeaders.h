#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Revenue Headers": the revenue types that a payment covers, for the screen of its receipt, which finds them in
/// sRevHeads.
class frmRevHeaders : public Screen {
public:
    explicit frmRevHeaders(Program& owner) : frmRevHeaders(owner, "frmRevHeaders") {}

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    frmRevHeaders(Program& owner, const QString& name) : Screen(owner, name, "Revenue Headers") {}
    virtual void picked() {} ///< what follows a choice, when this screen has closed

private:
    void OKButton_Click();

    using Me = frmRevHeaders;
    Label lblHead{*this, "lblHead", "Select Items paid for"};
    ListBox LstRev{*this, "LstRev"};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button OKButton{*this, "OKButton", "&OK", &Me::OKButton_Click};
};

} // namespace orvane
