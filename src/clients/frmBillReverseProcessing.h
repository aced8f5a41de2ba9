#pragma once

#include "clients/TickList.h"
#include "clients/WorkBar.h"
#include "session/Screen.h"

namespace orvane {

/// "Reverse Last Processed Batch": takes back what the monthly run did for one client in one batch.
class frmBillReverseProcessing : public Screen {
public:
    explicit frmBillReverseProcessing(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    void afterFault() override { bar.hide(); }
    Button* defaultButton() override { return &cmdProcess; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cboYear_Click();
    void cboCust_Click();
    void getPatList();
    void cmdAll_Click();
    void cmdDeSelect_Click();
    void cmdRefresh_Click() {} ///< the list is as it was picked
    void cmdProcess_Click();
    bool isOneTicked();

    using Me = frmBillReverseProcessing;
    ComboBox cboYear{*this, "cboYear", ComboBox::ListOnly, &Me::cboYear_Click};
    ComboBox cboCust{*this, "cboCust", ComboBox::ListOnly, &Me::cboCust_Click};
    Label Label1{*this, "Label1", "Batch List"};
    TickList batches{*this, &Me::cmdAll_Click, &Me::cmdDeSelect_Click};
    WorkBar bar{*this};
    Button cmdRefresh{*this, "cmdRefresh", "Re&fresh", &Me::cmdRefresh_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button cmdProcess{*this, "cmdProcess", "&Reverse", &Me::cmdProcess_Click};
};

} // namespace orvane
