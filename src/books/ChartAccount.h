#pragma once

#include "data/rows/Connection.h"

namespace orvane {

/// The name of an account of the ledger, as billing repeats the chart; empty for one that is not in it.
QString accountName(Connection& billing, const QString& accountNo);

} // namespace orvane
