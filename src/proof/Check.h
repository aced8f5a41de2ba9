#pragma once

#include "data/rows/Connection.h"

#include <QStringList>

namespace orvane {

/// What a check of the databases found.
struct CheckReport {
    QStringList findings; ///< faults that no action of the program makes; one sentence each, the check's name in front
    QStringList notices;  ///< differences that actions of the program leave, told with their likely cause
    QStringList remarks;  ///< checks that could not be run here, and findings left out
};

/// Reads the databases of a hospital and looks for amounts, numbers and rows that do not agree. Changes nothing. A
/// schema of an earlier number is checked as far as it goes. Raises DataError when a database cannot be read.
CheckReport checkDatabases(Connection& billing, Connection& accounting);

/// The names of all checks, notices included, for tests that plant a fault for each.
QStringList checkNames();

} // namespace orvane
