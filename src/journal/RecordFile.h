#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <optional>

namespace orvane {

/// The records of a plain text file: a line of column names, then a line a record, its fields apart by tabs. A record
/// that is short of fields has empty ones in their place. None when the file is not there; raises DataError when it
/// cannot be read as text.
std::optional<QVector<QStringList>> readRecords(const QString& path, const QStringList& columns);

/// Puts a new file in the place of the old one, written beside it and flushed to the disk first, so that whoever reads
/// it, whatever happens, finds the one or the other whole. False: the old one stands.
bool replaceRecords(const QString& path, const QStringList& columns, const QVector<QStringList>& records);

} // namespace orvane
