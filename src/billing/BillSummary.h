#pragma once

#include "session/Program.h"

namespace orvane {

/// Keeps the Billing row in step with BillingDetails and shows the figures in the labels lblGen, lblBilled, lblPaid,
/// lblDep, lblTotal and lblSub of `screen`, those of them that it has. Sets session.dBillTotal, sAmountWords,
/// dAmountGen, dAmountBal, dAmountPaid (naira). Faults are not raised.
void saveBillSummary(Program& program, Form& screen, const QString& billNo);

} // namespace orvane
