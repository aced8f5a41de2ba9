#pragma once

#include "printouts/ReportScreen.h"

namespace orvane {

/// "Payment Voucher from Cashier": what was paid on vouchers in some days.
class frmRptPaymentVoucherByCashier : public ReportScreen {
public:
    explicit frmRptPaymentVoucherByCashier(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdDisplay; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cmdDisplay_Click();

    using Me = frmRptPaymentVoucherByCashier;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};
    Button cmdDisplay{*this, "cmdDisplay", "&Display", &Me::cmdDisplay_Click};
};

} // namespace orvane
