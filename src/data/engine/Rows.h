#pragma once

#include "data/Engine.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>
#include <deque>
#include <memory>
#include <vector>

namespace orvane {

class RowReader;

/// In pieces: a long list that grows is never copied whole.
using Values = std::deque<QVariant>;

/// What a statement gave: values in rows, typed the same on every engine. Copies share the rows until one of them
/// writes; a row that one of them has read on to is there for all.
class Rows {
public:
    Rows() = default;
    Rows(const QStringList& names, Values values);
    /// The rows that the reader gives; it is asked for them as they are needed.
    Rows(const QStringList& names, std::shared_ptr<RowReader> reader);

    QStringList columns;
    int indexOf(const QString& column) const; ///< without regard to case; -1 when there is none

    qsizetype read() const { ///< rows that are here
        return columns.isEmpty() ? 0 : static_cast<qsizetype>(m_values->size()) / columns.size();
    }
    bool isWhole() const; ///< or broke off: a fault that came half-way is told once to who reads on bit by bit
    void readOn(qsizetype rows) const; ///< up to so many more
    bool has(qsizetype row) const;     ///< reads on as far as that row; raises the fault behind the last row there is
    qsizetype count() const;           ///< reads on to the end, or raises the fault again

    const QVariant& at(qsizetype row, qsizetype column) const {
        return (*m_values)[static_cast<std::size_t>(row * columns.size() + column)];
    }
    void set(qsizetype row, qsizetype column, const QVariant& value);
    void add(const QList<QVariant>& row);

private:
    void own();

    std::shared_ptr<Values> m_values = std::make_shared<Values>(); ///< row after row
    mutable std::shared_ptr<RowReader> m_rest;                     ///< what is not read yet; null: nothing
};

/// What a column of a SQLite result was declared as; an expression has no declaration.
enum class Declared { Nothing, Date, DateTime, Other };

/// The columns of a query's result; none when it gives no rows.
struct Columns {
    QStringList names;
    std::vector<Declared> declared; ///< of SQLite's columns; empty on a server
};

Columns columnsOf(const QSqlQuery& query, Engine engine);

/// Appends the values of up to so many rows of a query and tells how many there were; fewer, where it has come to its
/// end or to a fault, which `fault` then is. Dates become QDate and QDateTime, flags and whole numbers qlonglong, all
/// other numbers double.
qsizetype readValues(QSqlQuery& query, const Columns& columns, Values& values, qsizetype rows, QSqlError& fault);

/// Reads a query to its end or to a fault, which `fault` then is.
Rows readRows(QSqlQuery& query, const Columns& columns, QSqlError& fault);

} // namespace orvane
