#pragma once

#include "billing/ItemCapture.h"

namespace orvane {

/// "Add to Collated Bill": adds items to a bill that waits for its monthly batch. Every line goes on the bill.
class frmBillPatAdjust : public ItemCapture {
public:
    explicit frmBillPatAdjust(Program& owner)
        : ItemCapture(owner, "frmBillPatAdjust", "Add to Collated Bill",
                      {BillPatAdjustTariff, false, "Please specify Attnd Date", "COLLATED ITEMS", addToCollatedBill}) {}
    void Form_Load() override;
};

} // namespace orvane
