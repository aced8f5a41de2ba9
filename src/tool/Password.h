#pragma once

#include <QString>

namespace orvane {

/// The first line of a file, or of the standard input for "-"; a person at a terminal is asked and types unseen. Raises
/// DataError when it cannot be read. So no password stands on a command line, which every user of the machine can see.
QString readPassword(const QString& file);

} // namespace orvane
