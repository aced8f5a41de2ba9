#pragma once

#include "printouts/ReportScreen.h"

namespace orvane {

/// "Payments Received by Cashier": the receipts of some days, of all cashiers or one, a line a receipt or by the way of
/// payment.
class FrmRptPaymentsByCashier : public ReportScreen {
public:
    explicit FrmRptPaymentsByCashier(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdDisplay; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cmdList_Click();
    void cmdDisplay_Click();
    void cmdDetails_Click();
    bool isReady();
    void showPayments(const QString& file, SqlLiteral view, SqlLiteral order);

    using Me = FrmRptPaymentsByCashier;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdList{*this, "cmdList", "&Get Cashier List", &Me::cmdList_Click};
    ComboBox cboCust{*this, "cboCust", ComboBox::ListOnly};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};
    Button cmdDetails{*this, "cmdDetails", "By &Way of Payment", &Me::cmdDetails_Click};
    Button cmdDisplay{*this, "cmdDisplay", "&Display", &Me::cmdDisplay_Click};
};

} // namespace orvane
