#pragma once

#include "data/rows/Recordset.h"

namespace orvane {

/// The rows of a query, cells apart by "|", rows apart by "\n"; amounts in plain decimals. A null reads as `null`.
inline QString rowsOf(Connection& connection, const QString& tsql, const QString& null = {}) {
    QStringList lines;
    for (Recordset found = connection.run(tsql); !found.eof(); found.moveNext()) {
        QStringList cells;
        for (int column = 0; column < found.columns().size(); ++column)
            cells << (found.value(column).isNull() ? null : found.text(column));
        lines << cells.join('|');
    }
    return lines.join('\n');
}

/// Runs "insert into `into` values (`row`)" for each row; `into` names the columns too.
inline void addRows(Connection& connection, const char* into, std::initializer_list<const char*> rows) {
    for (const char* row : rows)
        connection.run(QStringLiteral("insert into %1 values (%2)").arg(into, QString::fromUtf8(row)));
}

} // namespace orvane
