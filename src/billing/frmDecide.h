#pragma once

#include "session/Screen.h"

namespace orvane {

/// Offers the account or a bill of the private patient whose number is in session.sPrintBillNo.
class frmDecide : public Screen {
public:
    explicit frmDecide(Program& owner);

    Layout layout() const override;
    Button* cancelButton() override { return &CancelButton; }

private:
    void cmdAcc_Click();
    void cmdBill_Click();

    Button cmdAcc{*this, "cmdAcc", "View Patient Account", &frmDecide::cmdAcc_Click};
    Button cmdBill{*this, "cmdBill", "View a Bill at a time", &frmDecide::cmdBill_Click};
    Button CancelButton{*this, "CancelButton", "Close", &frmDecide::unload};
};

} // namespace orvane
