#pragma once

#include "proof/Check.h"

namespace orvane {

/// What billing has flagged as posted against what the ledger has of it: receipts by day, way and revenue type, the clients'
/// invoices, vouchers and the suppliers' entries. What a posting that is not settled is about, is left aside.
void checkPostings(Connection& billing, Connection& accounting, CheckReport& report);

/// The names of these checks.
QStringList postingCheckNames();

} // namespace orvane
