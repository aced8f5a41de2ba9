#pragma once

#include <QString>
#include <QStringList>

namespace orvane {

/// The lines of a small text file of the home folder, without their ends (LF or CR LF) and without a byte order mark.
/// Text is UTF-8; a line that is not is read as Latin-1. Raises DataError with one sentence for the user when the file
/// cannot be read, has a line of more than 64 KB, or is no text (holds a control character other than a tab).
QStringList readTextLines(const QString& path);

} // namespace orvane
