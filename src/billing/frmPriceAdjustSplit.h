#pragma once

#include "billing/PriceAdjustScreen.h"

namespace orvane {

/// Says who pays a line of a bill; the line itself is only shown.
class frmPriceAdjustSplit : public PriceAdjustScreen {
public:
    explicit frmPriceAdjustSplit(Program& program);

    Layout layout() const override;
    void Form_Load() override;

private:
    Recordset openRow(Connection& connection) const override;
    std::vector<Check> checks() override;
    void saveRow(Connection& connection, Recordset& row) override;

    ComboBox cboPat{*this, "cboPat", ComboBox::ListOnly};
};

} // namespace orvane
