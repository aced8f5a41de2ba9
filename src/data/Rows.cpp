#include "data/Rows.h"

#include "data/RowReader.h"
#include "data/Value.h"

#include <QSqlDriver>
#include <QSqlField>
#include <QSqlRecord>
#include <QSqlResult>
#include <QTime>
#include <limits>
#include <sqlite3.h>

namespace orvane {

namespace {

Declared declaredAs(sqlite3_stmt* statement, int column) {
    const char* type = sqlite3_column_decltype(statement, column);
    if (!type) {
        return Declared::Nothing;
    }
    return qstricmp(type, "date") == 0       ? Declared::Date
           : qstricmp(type, "datetime") == 0 ? Declared::DateTime
                                             : Declared::Other;
}

/// SQLite keeps dates as text: the declaration tells them, and in an expression their shape.
QVariant fromSqliteText(const QString& text, Declared declared) {
    if (declared == Declared::Date || (declared == Declared::Nothing && text.size() == 10)) {
        return dateFromText(text);
    }
    if (declared == Declared::DateTime || (declared == Declared::Nothing && text.size() == 19)) {
        return dateTimeFromText(text);
    }
    return text;
}

QVariant normalized(const QVariant& value, Declared declared) {
    if (value.isNull()) {
        return {};
    }
    switch (value.typeId()) {
    case QMetaType::QString:
        return fromSqliteText(value.toString(), declared);
    case QMetaType::Bool:
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
        return value.toLongLong();
    case QMetaType::Float:
        return value.toDouble();
    case QMetaType::QTime:
        return valueText(value);
    case QMetaType::QByteArray:
        return QString::fromUtf8(value.toByteArray());
    default:
        return value;
    }
}

constexpr qsizetype mostRows = std::numeric_limits<qsizetype>::max();
constexpr qsizetype rowsAtOnce = 200; ///< to get at one that is not here yet

} // namespace

Rows::Rows(const QStringList& names, std::vector<QVariant> values)
    : columns(names), m_values(std::make_shared<std::vector<QVariant>>(std::move(values))) {}

Rows::Rows(const QStringList& names, std::shared_ptr<RowReader> reader) : columns(names), m_rest(std::move(reader)) {}

bool Rows::isWhole() const {
    return !m_rest || m_rest->atEnd();
}

void Rows::readOn(qsizetype rows) const {
    if (!isWhole()) {
        m_rest->read(*m_values, rows);
    }
}

bool Rows::has(qsizetype row) const {
    while (row >= read() && !isWhole()) {
        readOn(rowsAtOnce);
    }
    return row < read();
}

qsizetype Rows::count() const {
    readOn(mostRows);
    m_rest.reset();
    return read();
}

/// Before a change: what others have read stays theirs as it was.
void Rows::own() {
    if (m_values.use_count() > 1) {
        count();
        m_values = std::make_shared<std::vector<QVariant>>(*m_values);
    }
}

void Rows::set(qsizetype row, qsizetype column, const QVariant& value) {
    own();
    (*m_values)[static_cast<std::size_t>(row * columns.size() + column)] = value;
}

void Rows::add(const QList<QVariant>& row) {
    own();
    m_values->insert(m_values->end(), row.begin(), row.end());
}

int Rows::indexOf(const QString& column) const {
    for (int i = 0; i < columns.size(); ++i) {
        if (columns[i].size() == column.size() && columns[i].compare(column, Qt::CaseInsensitive) == 0) {
            return i;
        }
    }
    return -1;
}

Columns columnsOf(const QSqlQuery& query, Engine engine) {
    Columns columns;
    if (!query.isSelect()) {
        return columns;
    }
    const QSqlRecord record = query.record();
    const int count = record.count();
    columns.names.reserve(count);
    for (int i = 0; i < count; ++i) {
        columns.names += record.fieldName(i);
    }
    columns.declared.assign(static_cast<std::size_t>(count), Declared::Other);
    if (engine == Engine::Sqlite) {
        const QVariant handle = query.result()->handle();
        sqlite3_stmt* statement = *static_cast<sqlite3_stmt* const*>(handle.constData());
        for (int i = 0; i < count; ++i) {
            columns.declared[static_cast<std::size_t>(i)] = declaredAs(statement, i);
        }
    }
    return columns;
}

qsizetype readValues(QSqlQuery& query, const Columns& columns, std::vector<QVariant>& values, qsizetype rows) {
    const int count = static_cast<int>(columns.names.size());
    qsizetype taken = 0;
    for (; count > 0 && taken < rows && query.next(); ++taken) {
        for (int i = 0; i < count; ++i) {
            values.push_back(normalized(query.value(i), columns.declared[static_cast<std::size_t>(i)]));
        }
    }
    return taken;
}

Rows readRows(QSqlQuery& query, const Columns& columns) {
    std::vector<QVariant> values;
    readValues(query, columns, values, mostRows);
    return {columns.names, std::move(values)};
}

} // namespace orvane
