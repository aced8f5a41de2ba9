#pragma once

#include "session/Program.h"

namespace orvane {

/// Registers the forms of this folder under their names.
void registerSessionForms(Program& program);

} // namespace orvane
