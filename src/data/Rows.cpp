#include "data/Rows.h"

#include "data/Value.h"

#include <QSqlDriver>
#include <QSqlField>
#include <QSqlRecord>
#include <QSqlResult>
#include <QTime>
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

} // namespace

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

Rows readRows(QSqlQuery& query, const Columns& columns) {
    Rows rows;
    rows.columns = columns.names;
    const int count = static_cast<int>(columns.names.size());
    while (count > 0 && query.next()) {
        for (int i = 0; i < count; ++i) {
            rows.values.push_back(normalized(query.value(i), columns.declared[static_cast<std::size_t>(i)]));
        }
    }
    return rows;
}

} // namespace orvane
