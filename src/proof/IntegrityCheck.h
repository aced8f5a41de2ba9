#pragma once

#include "data/rows/Recordset.h"
#include "proof/Check.h"

namespace orvane {

/// Has the engine check its own files: findings for what it reports, a remark where it has no such check.
void checkIntegrity(Connection& connection, const QString& database, CheckReport& report);

} // namespace orvane
