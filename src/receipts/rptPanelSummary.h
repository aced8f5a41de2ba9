#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Print Receipt": finds an old receipt to print it again. Opened in mode "Coy" (session.sRptPanelMode) it finds a
/// client instead, whose bills the invoice screen prints.
class rptPanelSummary : public Screen {
public:
    explicit rptPanelSummary(Program& program);

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

    /// What an entry stands for: the number of a receipt with its key, or the code of a client.
    struct Entry {
        QString number;
        qlonglong sno = 0;
    };

    using Me = rptPanelSummary;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdInv{*this, "cmdInv", "&Get Rct No", &Me::cmdInv_Click};
    Label lblPanel{*this, "lblPanel"}; ///< what the user is to pick
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::FreeText, &Me::cboVehNo_Click};
    Button CancelButton{*this, "CancelButton", "E&xit", &Me::unload};
    Button OKButton{*this, "OKButton", "&Display Receipt", &Me::OKButton_Click};
};

} // namespace orvane
