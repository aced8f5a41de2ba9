#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Items With No Rpt Heading": the lines of a batch that the assignment of headings has left without one.
class frmRptHeading : public Screen {
public:
    explicit frmRptHeading(Program& owner);

    Layout layout() const override;
    void Form_Load() override { fillGridBills(); }
    Button* cancelButton() override { return &CancelButton; }

private:
    void fillGridBills();
    void cmdCust_Click();

    using Me = frmRptHeading;
    Grid grdData2{*this, "grdData2", &Me::cmdCust_Click};
    Button cmdCust{*this, "cmdCust", "&Adjust/Customize Details", &Me::cmdCust_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
};

} // namespace orvane
