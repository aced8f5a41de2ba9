#pragma once

#include "session/Screen.h"

namespace orvane {

/// "More Reports": plain lists of bills and receipts of some days, each in a window of its own.
class rptPanelForFinancial : public Screen {
public:
    explicit rptPanelForFinancial(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void OKButton_Click();

    using Me = rptPanelForFinancial;
    ComboBox cboRpt{*this, "cboRpt", ComboBox::ListOnly};
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button CancelButton{*this, "CancelButton", "E&xit", &Me::unload};
    Button OKButton{*this, "OKButton", "&Display", &Me::OKButton_Click};
};

} // namespace orvane
