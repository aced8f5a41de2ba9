#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Revenue Headers": the revenue types that a payment covers, for the screen of its receipt, which finds them in
/// sRevHeads.
class frmRevHeaders : public Screen {
public:
    explicit frmRevHeaders(Program& owner) : Screen(owner, "frmRevHeaders", "Revenue Headers") {}

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void OKButton_Click();

    using Me = frmRevHeaders;
    Label lblHead{*this, "lblHead", "Select Items paid for"};
    ListBox LstRev{*this, "LstRev"};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button OKButton{*this, "OKButton", "&OK", &Me::OKButton_Click};
};

} // namespace orvane
