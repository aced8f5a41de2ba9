#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Clients' Consultation FEE Not Displayed on Bill": the clients on whose bills the consultation fee is not shown.
class frmClients : public Screen {
public:
    explicit frmClients(Program& owner)
        : Screen(owner, "frmClients", "Clients' Consultation FEE Not Displayed on Bill") {}

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void fillGrid();
    void cboVehNo_Click();
    void grdData_Click();
    void OKButton_Click();
    void cmdDelete_Click();

    using Me = frmClients;
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::ListOnly, &Me::cboVehNo_Click};
    Label lblName{*this, "lblName"};
    Grid grdData{*this, "grdData"};
    Button cmdDelete{*this, "cmdDelete", "&Delete", &Me::cmdDelete_Click};
    Button CancelButton{*this, "CancelButton", "E&xit", &Me::unload};
    Button OKButton{*this, "OKButton", "&Save", &Me::OKButton_Click};
};

} // namespace orvane
