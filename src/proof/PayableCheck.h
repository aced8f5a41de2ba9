#pragma once

#include "proof/Check.h"

namespace orvane {

/// The suppliers' entries against what the ledger has of them. `open`: transactions of postings that are not settled.
void checkPayables(Connection& billing, Connection& accounting, const QStringList& open, CheckReport& report);

/// The names of these checks.
QStringList payableCheckNames();

} // namespace orvane
