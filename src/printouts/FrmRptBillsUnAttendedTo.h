#pragma once

#include "printouts/ReportScreen.h"

namespace orvane {

/// "Attendance Yet to be AttendedTo": the visits of some days whose bill nobody has saved, of all or of some
/// categories. One of them is picked for what a fixed fee covers of it, or for its treatment.
class FrmRptBillsUnAttendedTo : public ReportScreen {
public:
    explicit FrmRptBillsUnAttendedTo(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdDisplay; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cmdList_Click();
    void cmdDisplay_Click();
    void cmdCap_Click();
    void cmdPresc_Click();
    bool isReady();
    std::optional<QString> pickedVisit();
    Sql chosenVisits() const;

    using Me = FrmRptBillsUnAttendedTo;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    OptionButton radPvt{*this, "radPvt", "Pri&vate"};
    OptionButton radHMO{*this, "radHMO", "&HMO"};
    OptionButton radCorp{*this, "radCorp", "C&orporate"};
    OptionButton radAll{*this, "radAll", "A&ll"};
    Button cmdList{*this, "cmdList", "&Get Patient List", &Me::cmdList_Click};
    ComboBox cboCust{*this, "cboCust", ComboBox::ListOnly};
    Button cmdPresc{*this, "cmdPresc", "Vie&w Treatment", &Me::cmdPresc_Click};
    Button CancelButton{*this, "CancelButton", "Clos&e", &Me::unload};
    Button cmdCap{*this, "cmdCap", "Ca&pitated Invoice", &Me::cmdCap_Click};
    Button cmdDisplay{*this, "cmdDisplay", "&Display", &Me::cmdDisplay_Click};
};

} // namespace orvane
