#include "tool/CsvLoad.h"

#include "books/ToolContext.h"
#include "data/rows/ActionParts.h"
#include "data/rows/Recordset.h"
#include "data/rows/Transaction.h"
#include "data/words/Csv.h"
#include "data/words/ShownText.h"

#include <cmath>

namespace orvane {

namespace {

/// A place in the file, in front of every message.
struct Place {
    QString file;
    int line;
    QString column; ///< empty: the whole record
};

[[noreturn]] void refuse(const Place& place, const QString& message) {
    const QString column =
        place.column.isEmpty() ? QString() : QStringLiteral(" column %1:").arg(shownText(place.column));
    throw DataError(QStringLiteral("%1:%2:%3 %4").arg(place.file).arg(place.line).arg(column, message));
}

[[noreturn]] void refuse(const QString& file, const CsvFault& fault, const QVector<const Column*>& columns) {
    QString column;
    if (fault.column > 0)
        column = fault.column <= columns.size() ? columns.at(fault.column - 1)->name : QString::number(fault.column);
    refuse(Place{file, fault.line, column}, fault.message);
}

QVariant numberOf(const QString& text, const Place& place) {
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok || !std::isfinite(value))
        refuse(place, QStringLiteral("\"%1\" is no number").arg(shownText(text)));
    return value;
}

QVariant integerOf(const QString& text, const Place& place) {
    bool ok = false;
    const qlonglong value = text.toLongLong(&ok);
    if (!ok)
        refuse(place, QStringLiteral("\"%1\" is no whole number").arg(shownText(text)));
    return value;
}

QVariant flagOf(const QString& text, const Place& place) {
    if (text != QLatin1String("0") && text != QLatin1String("1"))
        refuse(place, QStringLiteral("\"%1\" is neither 0 nor 1").arg(shownText(text)));
    return text.toInt();
}

QVariant dateOf(const QString& text, const Place& place) {
    const QDate date = QDate::fromString(text, "yyyy-MM-dd");
    if (!date.isValid())
        refuse(place, QStringLiteral("\"%1\" is no date of the form yyyy-mm-dd").arg(shownText(text)));
    return date;
}

QVariant dateTimeOf(const QString& text, const Place& place) {
    QDateTime at = QDateTime::fromString(text, "yyyy-MM-dd HH:mm:ss");
    if (!at.isValid())
        at = QDate::fromString(text, "yyyy-MM-dd").startOfDay();
    if (!at.isValid())
        refuse(place,
               QStringLiteral("\"%1\" is no date and time of the form yyyy-mm-dd hh:mm:ss").arg(shownText(text)));
    return at;
}

QVariant valueOf(const Column& column, const QString& text, const Place& place) {
    switch (column.kind) {
    case ColumnKind::Number:
        return numberOf(text, place);
    case ColumnKind::Integer:
        return integerOf(text, place);
    case ColumnKind::Flag:
        return flagOf(text, place);
    case ColumnKind::Date:
        return dateOf(text, place);
    case ColumnKind::DateTime:
        return dateTimeOf(text, place);
    case ColumnKind::Text:
    case ColumnKind::Time:
        break;
    }
    return text;
}

QVector<const Column*> readHeads(CsvReader& reader, const Table& table, const QString& file) {
    const auto heads = reader.next();
    if (reader.fault())
        refuse(file, *reader.fault(), {});
    if (!heads)
        refuse(Place{file, 1, {}}, "the file has no heads");
    QVector<const Column*> columns;
    for (const CsvField& head : heads->fields) {
        const QString name = head.text.trimmed();
        const Place place{file, heads->line, name};
        const Column* column = table.column(name);
        if (!column)
            refuse(place, QStringLiteral("the table %1 has no such column").arg(table.name));
        if (columns.contains(column))
            refuse(place, "the column is named twice");
        columns.append(column);
    }
    return columns;
}

void setField(Recordset& rows, const Column& column, const QString& text, const Place& place) {
    const QVariant value = valueOf(column, text, place);
    try {
        rows.set(column.name, value);
    } catch (const DataError& error) {
        refuse(Place{place.file, place.line, {}}, error.description());
    }
}

/// The engines' numbers for rules of a table that a row may break, and what that means for the file.
struct RuleFault {
    Engine engine;
    const char* code;
    const char* text;
};

constexpr auto keyTaken = "a row with this key is there already";
constexpr auto valueMissing = "a column that must have a value has none";
constexpr auto numberTooLarge = "a number is too large for its column";

constexpr RuleFault ruleFaults[] = {
    {Engine::Sqlite, "1555", keyTaken},
    {Engine::Sqlite, "2067", keyTaken},
    {Engine::Sqlite, "2579", keyTaken},
    {Engine::Sqlite, "1299", valueMissing},
    {Engine::Postgresql, "23505", keyTaken},
    {Engine::Postgresql, "23502", valueMissing},
    {Engine::Postgresql, "22003", numberTooLarge},
    {Engine::SqlServer, "2627", keyTaken},
    {Engine::SqlServer, "2601", keyTaken},
    {Engine::SqlServer, "515", valueMissing},
    {Engine::SqlServer, "8115", numberTooLarge},
};

QString brokenRule(Engine engine, const DataError& error) {
    for (const RuleFault& fault : ruleFaults)
        if (fault.engine == engine && error.code() == QLatin1String(fault.code))
            return QLatin1String(fault.text);
    return onOneLine(error.description());
}

void addRow(const Connection& connection, Recordset& rows, const QVector<const Column*>& columns,
            const CsvRecord& record, const QString& file) {
    if (record.fields.size() != columns.size())
        refuse(Place{file, record.line, {}},
               QStringLiteral("%1 fields, but %2 heads").arg(record.fields.size()).arg(columns.size()));
    rows.addNew();
    for (int i = 0; i < int(columns.size()); ++i) {
        const CsvField& field = record.fields.at(i);
        if (!field.isNoValue())
            setField(rows, *columns.at(i), field.text, Place{file, record.line, columns.at(i)->name});
    }
    try {
        rows.update();
    } catch (const DataError& error) {
        refuse(Place{file, record.line, {}}, brokenRule(connection.engine(), error));
    }
}

/// A key that the file gives is not counted by the server's own numbering, which must go on behind the highest one.
void continueNumbering(Connection& connection, const Table& table, const QVector<const Column*>& columns) {
    if (connection.engine() != Engine::Postgresql)
        return;
    for (const Column* column : columns) {
        if (column->identity)
            connection.run(QStringLiteral("select setval(pg_get_serial_sequence('%1','%2'), (select max(%2) from %1))")
                               .arg(table.name.toLower(), column->name.toLower()));
    }
}

/// The load as a save: settings and users come by one too. Money that had come by no save before it stays so.
SavedAction loadAction(Connection& connection, const Table& table, int count, const QVector<SavedPart>& before) {
    const BookContext tool = toolContext(connection);
    Books books(connection, tool);
    for (const SavedPart& part : moneyBesideSaves(connection))
        books.note(part);
    for (const SavedPart& part : before)
        books.note({part.kind, part.document, 0 - part.counted, 0 - part.amount});
    books.audit({"Load: " + table.name, {}, QStringLiteral("%1 row(s)").arg(count)});
    books.record(table.name, 0);
    return *books.savedAction("LOAD");
}

} // namespace

int loadCsv(Connection& connection, const Table& table, const QString& fileName, const QByteArray& content) {
    CsvReader reader(content);
    const QVector<const Column*> columns = readHeads(reader, table, fileName);
    const bool ofBilling = Catalog::instance().tables("billing").contains(&table);
    Transaction transaction(connection);
    const QVector<SavedPart> before = ofBilling ? moneyBesideSaves(connection) : QVector<SavedPart>();
    Recordset rows = connection.run(QStringLiteral("select * from [%1] where 1=2").arg(table.name));
    int count = 0;
    while (const auto record = reader.next()) {
        addRow(connection, rows, columns, *record, fileName);
        ++count;
    }
    if (reader.fault())
        refuse(fileName, *reader.fault(), columns);
    if (count > 0)
        continueNumbering(connection, table, columns);
    if (ofBilling)
        transaction.commit(loadAction(connection, table, count, before));
    else
        transaction.commit();
    return count;
}

} // namespace orvane
