#pragma once

#include "session/Program.h"

namespace orvane {

/// Registers every built form under its name.
void registerScreens(Program& program);

} // namespace orvane
