#pragma once

#include "session/Program.h"

namespace orvane {

/// Reads the settings of the start into the session, in their order. False when a required one is missing, which its
/// box has said then: the program ends. Raises DataError.
bool readSettings(Program& program);

} // namespace orvane
