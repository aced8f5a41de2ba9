#pragma once

#include "printouts/ReportScreen.h"

namespace orvane {

/// "Bills Collated by Billing Officers": the bills of the visits of some days, of all officers or one. A bill counts
/// for the officer who collated it last.
class FrmRptBillsByBillingOfficers : public ReportScreen {
public:
    explicit FrmRptBillsByBillingOfficers(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdDisplay; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cmdList_Click();
    void cmdDisplay_Click();
    bool isReady();

    using Me = FrmRptBillsByBillingOfficers;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdList{*this, "cmdList", "&Get Officer List", &Me::cmdList_Click};
    ComboBox cboCust{*this, "cboCust", ComboBox::ListOnly};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};
    Button cmdDisplay{*this, "cmdDisplay", "&Display", &Me::cmdDisplay_Click};
};

} // namespace orvane
