#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Bills Not In Summary": visits that are billed in another month than they took place in.
class frmVerifyBillsInSummary : public Screen {
public:
    explicit frmVerifyBillsInSummary(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdList; }
    Button* cancelButton() override { return &CancelButton; }

private:
    bool isRangeGiven();
    void showVisits();
    void cmdList_Click();
    void OKButton_Click();

    using Me = frmVerifyBillsInSummary;
    DatePicker DTPicker1{*this, "DTPicker1"}, DTPicker2{*this, "DTPicker2"};
    Button cmdList{*this, "cmdList", "Get &List", &Me::cmdList_Click};
    Label Label1{*this, "Label1"};
    Grid grdData{*this, "grdData"};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button OKButton{*this, "OKButton", "&Update BillEndDate", &Me::OKButton_Click};
};

} // namespace orvane
