#pragma once

#include "session/Program.h"

#include <optional>

namespace orvane {

/// The program's one entry: reads made.sys and sysdoc.sys, proves the user, reads the settings into the session, shows
/// the shell MdiTolmek. Every refusal shows its box and gives false: the program ends. `userName`: instead of the last
/// line of sysdoc.sys, which is then not read.
bool Main(Program& program, const std::optional<QString>& userName = std::nullopt);

/// The entry for a place without a launcher: as Main up to the user, whom frmWelcome and frmLogin then ask for name and
/// password.
bool MainWithLogin(Program& program);

/// The server of made.sys, the connection strings and the flags of a fresh run. False after the box of a missing file.
/// Raises DataError when made.sys cannot be read as text.
bool prepareServer(Program& program);

/// What the start takes over for the user in session.gUsername: proves the role, takes the hospital's names, reads the
/// settings. False after the box of a refusal. Raises DataError.
bool prepareSession(Program& program);

} // namespace orvane
