#pragma once

#include "support/MoneyActions.h"

namespace orvane {

/// What the accountant does between the two databases, on a receipt of the test hospital (`layReceipt`) and on its
/// month, processed (`layProcessed`).
QList<MoneyAction> postingActions(void (*layReceipt)(Workstation&), void (*layProcessed)(Workstation&));

/// A ledger whose current period is March 2026, with accounts for banks and stock.
void layLedger(Workstation& ws);

/// Finishes what was cut off, as orvane-db post --left-over does.
void postLeftOver(Workstation& ws);

} // namespace orvane
