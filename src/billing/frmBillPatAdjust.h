#pragma once

#include "billing/ItemCapture.h"

namespace orvane {

/// "Add to Collated Bill": adds items to a bill that waits for its monthly batch. Every line goes on the bill.
class frmBillPatAdjust : public ItemCapture {
public:
    explicit frmBillPatAdjust(Program& owner);
    void Form_Load() override;

private:
    void saveLine(Connection& connection, int row) override;
};

} // namespace orvane
