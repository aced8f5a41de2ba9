#pragma once

#include "billing/ItemCapture.h"

namespace orvane {

/// "Bill Generation": adds items to the bill of the visit that the collation screen has in hand.
class frmBillPat : public ItemCapture {
public:
    explicit frmBillPat(Program& owner)
        : ItemCapture(owner, "frmBillPat", "Bill Generation",
                      {BillPatTariff, true, "Please specify Date", "BILL ITEMS", addToVisit}) {}
};

} // namespace orvane
