#pragma once

#include "billing/PriceAdjustScreen.h"

namespace orvane {

/// Changes an item of a visit before it is billed; its line on a bill, if it has one, stays.
class frmPriceAdjust : public PriceAdjustScreen {
public:
    explicit frmPriceAdjust(Program& program);

    Layout layout() const override;
    void Form_Load() override;

private:
    Recordset openRow(Connection& connection) const override;
    bool isComplete() override;
    QString action() const override { return "PRICE ADJUST"; }
    Given<Saved> write(Books& books) override;

    ComboBox cboCap{*this, "cboCap", ComboBox::ListOnly};
};

} // namespace orvane
