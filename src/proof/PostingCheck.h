#pragma once

#include "proof/Check.h"

namespace orvane {

/// What billing has flagged as posted against what the ledger has of it: receipts by day, way and revenue type, and the
/// clients' invoices.
void checkPostings(Connection& billing, Connection& accounting, CheckReport& report);

/// The names of these checks.
QStringList postingCheckNames();

} // namespace orvane
