#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Patient List for Printing of Bills": picks a private bill with a balance and displays it.
class frmPatList : public Screen {
public:
    explicit frmPatList(Program& program);

    ComboBox cboVehNo{*this, "cboVehNo"};
    ComboBox cboBill{*this, "cboBill"};
    Button OKButton{*this, "OKButton", "&Display Bill"};
    Button CancelButton{*this, "CancelButton", "&Close"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cboVehNo_Click();
    void OKButton_Click();
};

} // namespace orvane
