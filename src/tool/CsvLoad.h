#pragma once

#include "data/dialect/Catalog.h"
#include "data/rows/Connection.h"

namespace orvane {

/// Adds the records of a CSV file (see CsvReader) to a table. The first record names columns, without regard to case;
/// the others are read by the kinds of these columns: numbers in plain decimals, flags 0 or 1, dates yyyy-MM-dd,
/// date-times yyyy-MM-dd HH:mm:ss. A field that states no value leaves its column at its default, null where it has
/// none. All or nothing, in one transaction. Gives the number of rows. Raises DataError "FILE:LINE: column C: ...".
int loadCsv(Connection& connection, const Table& table, const QString& fileName, const QByteArray& content);

} // namespace orvane
