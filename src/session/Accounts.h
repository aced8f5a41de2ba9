#pragma once

#include "session/Program.h"

namespace orvane {

/// Asks for a user name and sets that account's status; the menu entries "Enable Account" and "Disable Account".
void enableUserAccount(Program& program);
void disableUserAccount(Program& program);

} // namespace orvane
