#pragma once

#include "proof/Check.h"

namespace orvane {

/// Money beside the saves that made it, saves beside the audit trail, and postings beside their saves. What came before
/// parts of saves were kept stands in the save OPENING; postings count from the first one on that a save noted.
void checkActions(Connection& billing, Connection& accounting, CheckReport& report);
QStringList actionCheckNames();

} // namespace orvane
