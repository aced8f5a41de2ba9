#pragma once

#include "session/Program.h"

namespace orvane {

/// Add the row of one log-on attempt of session.sLoginName, stamped with the workstation's clock. `count` comes back as
/// it is. Raise DataError.
int trailLogonSuccess(Program& program, int count);
int trailLogonFailure(Program& program, int count);

} // namespace orvane
