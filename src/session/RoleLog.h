#pragma once

#include "session/Program.h"

namespace orvane {

/// The two text logs of the role classes, beside the program file, made when missing and readable by their owner only.

/// One line to ServerUserActivities.txt: server date-time, message, `who`.
void logUserActivity(Program& program, const QString& message, const QString& who);
/// One line to ServerErrorLog.txt: now, the operation's name, the fault. The statement is left out: it may hold a
/// password.
void logServerError(Program& program, const QString& operation, const DataError& fault);

} // namespace orvane
