#pragma once

#include "session/Program.h"

namespace orvane {

/// Asks for a user name and sets that account's status; the menu entries "Enable Account" and "Disable Account".
void enableUserAccount(Program& program);
void disableUserAccount(Program& program);

/// Changes a password after the old one was proved; every outcome is told in a box. The new one is stored as typed.
void changeUserPassword(Program& program, const QString& user, const QString& oldPassword, const QString& newPassword);

} // namespace orvane
