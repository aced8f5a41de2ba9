#pragma once

#include "billing/PriceAdjustScreen.h"

namespace orvane {

/// "Bill Adjustment Before Processing": changes a line of a collated bill and names the heading under which the
/// client's invoice shows it.
class frmPriceAdjustCustom : public PriceAdjustScreen {
public:
    explicit frmPriceAdjustCustom(Program& program);

    Layout layout() const override;
    void Form_Load() override;

private:
    Recordset openRow(Connection& connection) const override;
    bool isComplete() override;
    QString action() const override { return "BILL CUSTOM"; }
    Given<Saved> write(Books& books) override;

    ComboBox cboHead{*this, "cboHead"};
    ComboBox cboPat{*this, "cboPat", ComboBox::ListOnly};
};

} // namespace orvane
