#pragma once

#include "data/rows/Recordset.h"

namespace orvane {

/// The rows of a query, cells apart by "|", rows apart by "\n"; amounts in plain decimals.
inline QString rowsOf(Connection& connection, const QString& tsql) {
    QStringList lines;
    for (Recordset found = connection.run(tsql); !found.eof(); found.moveNext()) {
        QStringList cells;
        for (int column = 0; column < found.columns().size(); ++column)
            cells << found.text(column);
        lines << cells.join('|');
    }
    return lines.join('\n');
}

} // namespace orvane
