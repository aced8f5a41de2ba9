#pragma once

#include "printouts/ReportScreen.h"

namespace orvane {

/// "Attendance by Company": the visits of a client's patients in some days, with what was billed on each and what of it
/// a fixed fee covers.
class FrmRptAttendByCoy : public ReportScreen {
public:
    explicit FrmRptAttendByCoy(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdDisplay; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cmdDisplay_Click();

    using Me = FrmRptAttendByCoy;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    ComboBox cboCust{*this, "cboCust", ComboBox::ListOnly};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};
    Button cmdDisplay{*this, "cmdDisplay", "&Display", &Me::cmdDisplay_Click};
};

} // namespace orvane
