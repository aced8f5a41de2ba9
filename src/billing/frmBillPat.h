#pragma once

#include "billing/ItemCapture.h"

namespace orvane {

/// "Bill Generation": adds items to the bill of the visit that the collation screen has in hand.
class frmBillPat : public ItemCapture {
public:
    explicit frmBillPat(Program& owner);

private:
    void saveLine(Connection& connection, int row) override;
    void putOnBill(Connection& connection, int row);
    QString billMode() const;
};

} // namespace orvane
