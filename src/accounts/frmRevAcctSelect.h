#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Select an Account": one account of the ledger for the screen in sAcctCaller, which finds it in sAcctSelected.
class frmRevAcctSelect : public Screen {
public:
    explicit frmRevAcctSelect(Program& owner) : Screen(owner, "frmRevAcctSelect", "Select an Account") {}

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void OKButton_Click();
    bool isForClient() const { return session.sAcctCaller == "frmRetainership"; }

    using Me = frmRevAcctSelect;
    Label lblHead{*this, "lblHead", "Select one Account at a time"};
    ListBox LstAcct{*this, "LstAcct"};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button OKButton{*this, "OKButton", "&OK", &Me::OKButton_Click};
};

} // namespace orvane
