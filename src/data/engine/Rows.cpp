#include "data/engine/Rows.h"

#include "data/dialect/Value.h"
#include "data/engine/RowReader.h"

#include <QSqlRecord>
#include <QSqlResult>
#include <QTime>
#include <limits>
#include <sqlite3.h>

namespace orvane {

namespace {

Declared declaredAs(sqlite3_stmt* statement, int column) {
    const char* type = sqlite3_column_decltype(statement, column);
    if (!type)
        return Declared::Nothing;
    return qstricmp(type, "date") == 0       ? Declared::Date
           : qstricmp(type, "datetime") == 0 ? Declared::DateTime
                                             : Declared::Other;
}

/// SQLite keeps dates as text: the declaration tells them, and in an expression their shape.
QVariant fromSqliteText(const QString& text, Declared declared) {
    if (declared == Declared::Date || (declared == Declared::Nothing && text.size() == 10))
        return dateFromText(text);
    if (declared == Declared::DateTime || (declared == Declared::Nothing && text.size() == 19))
        return dateTimeFromText(text);
    return text;
}

/// Qt takes byte order marks (U+FEFF) off the start of a UTF-8 text; here they are part of what was stored.
QString textFromUtf8(const char* text, int size) {
    constexpr QByteArrayView mark("\xEF\xBB\xBF");
    QByteArrayView rest(text, size);
    QString marks;
    for (; rest.startsWith(mark); rest = rest.sliced(mark.size()))
        marks += QChar(QChar::ByteOrderMark);
    return marks.isEmpty() ? QString::fromUtf8(rest) : marks + QString::fromUtf8(rest);
}

QVariant fromSqlite(sqlite3_stmt* statement, int column, Declared declared) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return static_cast<qlonglong>(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    default: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        return fromSqliteText(textFromUtf8(text, sqlite3_column_bytes(statement, column)), declared);
    }
    }
}

QVariant fromServer(const QVariant& value) {
    if (value.isNull())
        return {};
    switch (value.typeId()) {
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

/// A text that stands in the row above too, as names do in a long list, is kept once.
void append(Values& values, int columns, QVariant value) {
    const auto textOf = [](const QVariant& of) {
        return of.typeId() == QMetaType::QString ? static_cast<const QString*>(of.constData()) : nullptr;
    };
    const auto width = static_cast<std::size_t>(columns);
    if (values.size() >= width && textOf(value)) {
        const QString* above = textOf(values[values.size() - width]);
        if (above && *above == *textOf(value))
            value = values[values.size() - width];
    }
    values.push_back(std::move(value));
}

sqlite3_stmt* handleOf(const QSqlQuery& query) {
    const QVariant handle = query.result()->handle();
    return *static_cast<sqlite3_stmt* const*>(handle.constData());
}

/// Qt's driver has stepped to the first row when it ran the query. From there on the engine is stepped and read without
/// the driver, which copies each value several times: a long list takes half the time.
bool stepSqlite(QSqlQuery& query, sqlite3_stmt* statement, QSqlError& fault) {
    if (query.at() == QSql::BeforeFirstRow) {
        const bool first = query.next();
        fault = query.lastError();
        return first;
    }
    const int result = sqlite3_step(statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE) {
        const int code = sqlite3_reset(statement);
        fault = QSqlError(QString(), QString::fromUtf8(sqlite3_errmsg(sqlite3_db_handle(statement))),
                          QSqlError::StatementError, QString::number(code));
    }
    return result == SQLITE_ROW;
}

qsizetype readSqlite(QSqlQuery& query, const Columns& columns, Values& values, qsizetype rows, QSqlError& fault) {
    sqlite3_stmt* statement = handleOf(query);
    const int count = static_cast<int>(columns.names.size());
    qsizetype taken = 0;
    for (; taken < rows && stepSqlite(query, statement, fault); ++taken)
        for (int i = 0; i < count; ++i)
            append(values, count, fromSqlite(statement, i, columns.declared[static_cast<std::size_t>(i)]));
    return taken;
}

qsizetype readServer(QSqlQuery& query, const Columns& columns, Values& values, qsizetype rows, QSqlError& fault) {
    const int count = static_cast<int>(columns.names.size());
    qsizetype taken = 0;
    for (; taken < rows && query.next(); ++taken)
        for (int i = 0; i < count; ++i)
            append(values, count, fromServer(query.value(i)));
    fault = query.lastError();
    return taken;
}

constexpr qsizetype mostRows = std::numeric_limits<qsizetype>::max();
constexpr qsizetype rowsAtOnce = 200; ///< to get at one that is not here yet

} // namespace

Rows::Rows(const QStringList& names, Values values)
    : columns(names), m_values(std::make_shared<Values>(std::move(values))) {}

Rows::Rows(const QStringList& names, std::shared_ptr<RowReader> reader) : columns(names), m_rest(std::move(reader)) {}

bool Rows::isWhole() const {
    return !m_rest || m_rest->atEnd();
}

void Rows::readOn(qsizetype rows) const {
    if (!isWhole())
        m_rest->read(*m_values, rows);
}

bool Rows::has(qsizetype row) const {
    while (row >= read() && !isWhole())
        readOn(rowsAtOnce);
    if (row >= read())
        count();
    return row < read();
}

qsizetype Rows::count() const {
    if (m_rest)
        m_rest->read(*m_values, mostRows);
    m_rest.reset();
    return read();
}

/// Before a change: what others have read stays theirs as it was.
void Rows::own() {
    if (m_values.use_count() > 1) {
        count();
        m_values = std::make_shared<Values>(*m_values);
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
    for (int i = 0; i < columns.size(); ++i)
        if (columns[i].size() == column.size() && columns[i].compare(column, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

Columns columnsOf(const QSqlQuery& query, Engine engine) {
    Columns columns;
    if (!query.isSelect())
        return columns;
    const QSqlRecord record = query.record();
    const int count = record.count();
    columns.names.reserve(count);
    for (int i = 0; i < count; ++i)
        columns.names += record.fieldName(i);
    if (engine == Engine::Sqlite) {
        sqlite3_stmt* statement = handleOf(query);
        for (int i = 0; i < count; ++i)
            columns.declared.push_back(declaredAs(statement, i));
    }
    return columns;
}

qsizetype readValues(QSqlQuery& query, const Columns& columns, Values& values, qsizetype rows, QSqlError& fault) {
    if (columns.names.isEmpty()) {
        fault = query.lastError();
        return 0;
    }
    return columns.declared.empty() ? readServer(query, columns, values, rows, fault)
                                    : readSqlite(query, columns, values, rows, fault);
}

Rows readRows(QSqlQuery& query, const Columns& columns, QSqlError& fault) {
    Values values;
    readValues(query, columns, values, mostRows, fault);
    return {columns.names, std::move(values)};
}

} // namespace orvane
