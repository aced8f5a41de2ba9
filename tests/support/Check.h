#pragma once

#include "proof/Check.h"
#include "session/Program.h"

namespace orvane {

/// The check of the databases that a program works on.
inline CheckReport checkDatabases(Program& program) {
    Connection billing = program.openBilling();
    Connection accounting = program.openAccounting();
    return checkDatabases(billing, accounting);
}

} // namespace orvane
