#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Print Receipt": finds an old receipt to print it again. Opened in mode "Coy" (session.sRptPanelMode) it finds a
/// client instead, whose bills the invoice screen prints.
class rptPanelSummary : public Screen {
public:
    explicit rptPanelSummary(Program& program);

    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdInv{*this, "cmdInv", "&Get Rct No"};
    Label lblPanel{*this, "lblPanel"}; ///< what the user is to pick
    ComboBox cboVehNo{*this, "cboVehNo"};
    Button CancelButton{*this, "CancelButton", "E&xit"};
    Button OKButton{*this, "OKButton", "&Display Receipt"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    bool showsClients() const;
    void cmdInv_Click();
    void listReceipts();
    void listClients();
    void cboVehNo_Click();
    void OKButton_Click();
};

} // namespace orvane
