#pragma once

#include "session/Program.h"

namespace orvane {

/// The program's one entry: reads made.sys and sysdoc.sys, proves the user, reads the settings into the session, shows the shell
/// MdiTolmek. Every refusal shows its box and gives false: the program ends.
bool Main(Program& program);

} // namespace orvane
