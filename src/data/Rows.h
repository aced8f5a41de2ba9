#pragma once

#include "data/Engine.h"

#include <QSqlQuery>
#include <QStringList>
#include <QVariant>
#include <vector>

namespace orvane {

/// What a statement gave: values in rows, typed the same on every engine.
struct Rows {
    QStringList columns;
    std::vector<QVariant> values; ///< row after row

    qsizetype count() const { return columns.isEmpty() ? 0 : static_cast<qsizetype>(values.size()) / columns.size(); }
    int indexOf(const QString& column) const; ///< without regard to case; -1 when there is none
    const QVariant& at(qsizetype row, qsizetype column) const {
        return values[static_cast<std::size_t>(row * columns.size() + column)];
    }
    QVariant& at(qsizetype row, qsizetype column) {
        return values[static_cast<std::size_t>(row * columns.size() + column)];
    }
};

/// What a column of a SQLite result was declared as; an expression has no declaration.
enum class Declared { Nothing, Date, DateTime, Other };

/// The columns of a query's result; none when it gives no rows.
struct Columns {
    QStringList names;
    std::vector<Declared> declared;
};

Columns columnsOf(const QSqlQuery& query, Engine engine);

/// Reads a query to its end. Dates become QDate and QDateTime, flags and whole numbers qlonglong, all other numbers
/// double.
Rows readRows(QSqlQuery& query, const Columns& columns);

} // namespace orvane
