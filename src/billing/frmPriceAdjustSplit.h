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
    bool isComplete() override;
    QString action() const override { return "BILL SPLIT"; }
    Given<Saved> write(Books& books) override;

    ComboBox cboPat{*this, "cboPat", ComboBox::ListOnly};
};

} // namespace orvane
