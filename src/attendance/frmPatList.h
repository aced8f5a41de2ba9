#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Patient List for Printing of Bills": picks a private bill with a balance and displays it.
class frmPatList : public Screen {
public:
    explicit frmPatList(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    void cboVehNo_Click();
    void OKButton_Click();

    // Both stand for a bill's number.
    using Me = frmPatList;
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::FreeText, &Me::cboVehNo_Click};
    ComboBox cboBill{*this, "cboBill"};
    Button OKButton{*this, "OKButton", "&Display Bill", &Me::OKButton_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
};

} // namespace orvane
