#pragma once

#include "session/Program.h"

#include <QStringList>

namespace orvane {

/// What a check of the databases found: faults that no action of the program makes.
struct CheckReport {
    QStringList findings; ///< one sentence each, the check's name in front
    QStringList remarks;  ///< checks that could not be run here, and findings left out
};

/// Reads the databases of the program's home folder and looks for amounts, numbers and rows that do not agree. Changes
/// nothing. Raises DataError when a database cannot be read.
CheckReport checkDatabases(Program& program);

/// The names of all checks, for tests that plant a fault for each.
QStringList checkNames();

} // namespace orvane
