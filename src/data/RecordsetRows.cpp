#include "data/RecordsetRows.h"

#include "data/Value.h"

#include <QSqlDriver>
#include <QSqlField>
#include <QSqlRecord>
#include <QSqlResult>
#include <QTime>
#include <sqlite3.h>

namespace orvane {

namespace {

/// What a column of a SQLite result was declared as; an expression has no declaration.
enum class Declared { Nothing, Date, DateTime, Other };

Declared declaredAs(sqlite3_stmt* statement, int column) {
    const QString type = QString::fromUtf8(sqlite3_column_decltype(statement, column)).toLower();
    if (type.isEmpty()) {
        return Declared::Nothing;
    }
    return type == QStringLiteral("date")       ? Declared::Date
           : type == QStringLiteral("datetime") ? Declared::DateTime
                                                : Declared::Other;
}

std::vector<Declared> sqliteDeclarations(const QSqlQuery& query, int columns) {
    const QVariant handle = query.result()->handle();
    sqlite3_stmt* statement = *static_cast<sqlite3_stmt* const*>(handle.constData());
    std::vector<Declared> list;
    for (int i = 0; i < columns; ++i) {
        list.push_back(declaredAs(statement, i));
    }
    return list;
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
        if (columns[i].compare(column, Qt::CaseInsensitive) == 0) {
            return i;
        }
    }
    return -1;
}

Rows readRows(QSqlQuery& query, Engine engine) {
    Rows rows;
    if (!query.isSelect()) {
        return rows;
    }
    const QSqlRecord record = query.record();
    const int columns = record.count();
    for (int i = 0; i < columns; ++i) {
        rows.columns += record.fieldName(i);
    }
    std::vector<Declared> declared(static_cast<std::size_t>(columns), Declared::Other);
    if (engine == Engine::Sqlite) {
        declared = sqliteDeclarations(query, columns);
    }
    while (query.next()) {
        for (int i = 0; i < columns; ++i) {
            rows.values.push_back(normalized(query.value(i), declared[static_cast<std::size_t>(i)]));
        }
    }
    return rows;
}

} // namespace orvane
