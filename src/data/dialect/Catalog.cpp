#include "data/dialect/Catalog.h"

#include "data/dialect/Lexer.h"
#include "data/dialect/Translator.h"

#include <QFile>
#include <QMap>

namespace orvane {

namespace {

/// Type words of the schema files and what they hold. Flags are the smallest whole numbers.
const QHash<QString, ColumnKind>& typeKinds() {
    static const QHash<QString, ColumnKind> kinds = {
        {"varchar", ColumnKind::Text},      {"nvarchar", ColumnKind::Text}, {"char", ColumnKind::Text},
        {"nchar", ColumnKind::Text},        {"text", ColumnKind::Text},     {"float", ColumnKind::Number},
        {"real", ColumnKind::Number},       {"money", ColumnKind::Number},  {"decimal", ColumnKind::Number},
        {"numeric", ColumnKind::Number},    {"int", ColumnKind::Integer},   {"bigint", ColumnKind::Integer},
        {"smallint", ColumnKind::Flag},     {"bit", ColumnKind::Flag},      {"date", ColumnKind::Date},
        {"datetime", ColumnKind::DateTime}, {"time", ColumnKind::Time},
    };
    return kinds;
}

QString readResource(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The index behind the last token of the definition that begins at `start`: its comma or the closing parenthesis.
qsizetype definitionEnd(const Tokens& tokens, qsizetype start, qsizetype end) {
    qsizetype i = start;
    while (i < end && !tokens[i].isSymbol(","))
        i = tokens[i].isSymbol("(") ? closingParenthesis(tokens, i) + 1 : i + 1;
    return i;
}

QStringList namesInParentheses(const Tokens& tokens, qsizetype open) {
    QStringList names;
    for (qsizetype i = open + 1; i < closingParenthesis(tokens, open); ++i)
        if (tokens[i].isName() && !tokens[i].is("asc") && !tokens[i].is("desc"))
            names += tokens[i].text;
    return names;
}

void readPrimaryKey(const Tokens& tokens, qsizetype start, qsizetype end, Table& table) {
    for (qsizetype i = start; i < end; ++i) {
        if (tokens[i].isSymbol("(")) {
            table.key = namesInParentheses(tokens, i);
            return;
        }
    }
}

void readColumn(const Tokens& tokens, qsizetype start, qsizetype end, Table& table) {
    Column column;
    column.name = tokens[start].text;
    column.kind = typeKinds().value(tokens[start + 1].text.toLower(), ColumnKind::Text);
    if (column.kind == ColumnKind::Text && start + 3 < end && tokens[start + 2].isSymbol("("))
        column.length = tokens[start + 3].text.toInt(); // 0 for "max"
    for (qsizetype i = start + 2; i < end; ++i)
        if (tokens[i].is("identity"))
            column.identity = true;
        else if (tokens[i].is("primary"))
            table.key = {column.name};
        else if (tokens[i].is("null") && tokens[i - 1].is("not"))
            column.required = true;
    table.columns += column;
    table.columnNames += column.name;
}

Table readTable(const Tokens& tokens) {
    Table table;
    table.name = tokens.value(2).text;
    const qsizetype close = closingParenthesis(tokens, 3);
    for (qsizetype i = 4; i < close;) {
        const qsizetype end = definitionEnd(tokens, i, close);
        const Token& first = tokens[i];
        const bool isPrimary = first.is("primary") || (first.is("constraint") && tokens[i + 2].is("primary"));
        if (isPrimary)
            readPrimaryKey(tokens, i, end, table);
        else if (!first.is("constraint") && !first.is("unique") && !first.is("foreign") && !first.is("check"))
            readColumn(tokens, i, end, table);
        i = end + 1;
    }
    for (Column& column : table.columns)
        column.required = column.required || table.key.contains(column.name, Qt::CaseInsensitive);
    return table;
}

} // namespace

struct Catalog::Private {
    struct Database {
        QStringList statements;
        QStringList tables, views;
    };
    QHash<QString, Database> databases;
    QHash<QString, QMap<QString, Table>>
        tables; ///< by lower-cased name, then by database: two have a table of one name
    QHash<QString, QHash<QString, QString>> viewWords; ///< by lower-cased view: spelling by lower-cased word
    QHash<QString, QString> spelling;                  ///< of all columns and view words
    QHash<QString, const Column*> unanimous;           ///< by lower-cased name; null where tables disagree

    void read(const QString& database);
    void readView(const Tokens& tokens);
    void indexColumns();
    const Column* columnOf(const QString& table, const QString& column) const;
};

void Catalog::Private::read(const QString& database) {
    Database& entry = databases[database];
    for (const char* part :
         {"tables", "indexes", "views", "accounts_views", "outlet_views", "stock_views", "reports_views", "rows"}) {
        const QString path = QStringLiteral(":/schema/%1/%2.sql").arg(database, QLatin1StringView(part));
        for (const QString& statement : splitScript(readResource(path))) {
            entry.statements += statement;
            const Tokens tokens = tokenize(statement);
            if (tokens.size() > 4 && tokens[0].is("create") && tokens[1].is("table")) {
                const Table table = readTable(tokens);
                entry.tables += table.name;
                tables[table.name.toLower()].insert(database, table);
            } else if (tokens.size() > 4 && tokens[0].is("create") && tokens[1].is("view")) {
                entry.views += tokens[2].text;
                readView(tokens);
            }
        }
    }
}

/// A view's heads are words of its own text; the last one wins, so an alias wins over the column that it renames.
void Catalog::Private::readView(const Tokens& tokens) {
    QHash<QString, QString>& words = viewWords[tokens[2].text.toLower()];
    for (qsizetype i = 3; i < tokens.size(); ++i) {
        if (!tokens[i].isName())
            continue;
        const QString lower = tokens[i].text.toLower();
        const bool alias = tokens[i - 1].is("as");
        if (alias || !words.contains(lower))
            words.insert(lower, tokens[i].text);
    }
}

void Catalog::Private::indexColumns() {
    for (const auto& namesakes : std::as_const(tables)) {
        for (const Table& table : namesakes) {
            for (const Column& column : table.columns) {
                const QString lower = column.name.toLower();
                const auto known = unanimous.constFind(lower);
                const bool disagree = known != unanimous.constEnd() && (!*known || (*known)->kind != column.kind);
                unanimous.insert(lower, disagree ? nullptr : &column);
            }
        }
    }
    const auto learn = [this](const QString& word) {
        if (!spelling.contains(word.toLower()))
            spelling.insert(word.toLower(), word);
    };
    for (const char* name : {"billing", "accounting", "audit"}) {
        const Database& database = databases[QLatin1StringView(name)];
        for (const QString& table : database.tables)
            for (const Column& column : std::as_const(tables[table.toLower()])[QLatin1StringView(name)].columns)
                learn(column.name);
        for (const QString& view : database.views)
            for (const QString& word : viewWords.value(view.toLower()))
                learn(word);
    }
}

/// The column in whichever table of that name has it; null when none has.
const Column* Catalog::Private::columnOf(const QString& table, const QString& column) const {
    const auto namesakes = tables.constFind(table.toLower());
    if (namesakes == tables.constEnd())
        return nullptr;
    for (const Table& namesake : *namesakes)
        if (const Column* found = namesake.column(column))
            return found;
    return nullptr;
}

Catalog::Catalog() : d(std::make_shared<Private>()) {
    for (const char* database : {"billing", "accounting", "audit"})
        d->read(QLatin1StringView(database));
    d->indexColumns();
}

const Catalog& Catalog::instance() {
    static const Catalog catalog;
    return catalog;
}

const Column* Table::column(const QString& columnName) const {
    for (const Column& candidate : columns)
        if (candidate.name.size() == columnName.size() && candidate.name.compare(columnName, Qt::CaseInsensitive) == 0)
            return &candidate;
    return nullptr;
}

const Table* Catalog::table(const QString& name, const QString& database) const {
    const auto namesakes = d->tables.constFind(name.toLower());
    if (namesakes == d->tables.constEnd())
        return nullptr;
    const auto found = namesakes->constFind(database);
    return found == namesakes->constEnd() ? &*namesakes->constBegin() : &*found;
}

QList<const Table*> Catalog::tables(const QString& database) const {
    QList<const Table*> list;
    for (const QString& name : d->databases.value(database).tables)
        list += table(name, database);
    return list;
}

QStringList Catalog::views(const QString& database) const {
    return d->databases.value(database).views;
}

QString Catalog::properCase(const QString& name) const {
    return d->spelling.value(name.toLower(), name);
}

QString Catalog::properCase(const QString& name, const QStringList& sources) const {
    for (const QString& source : sources) {
        const auto view = d->viewWords.constFind(source.toLower());
        if (view != d->viewWords.constEnd() && view->contains(name.toLower()))
            return view->value(name.toLower());
        if (const Column* column = d->columnOf(source, name))
            return column->name;
    }
    return properCase(name);
}

const Column* Catalog::findColumn(const QString& name, const QStringList& sources) const {
    for (const QString& source : sources)
        if (const Column* column = d->columnOf(source, name))
            return column;
    return d->unanimous.value(name.toLower(), nullptr);
}

QStringList Catalog::statements(const QString& database) const {
    return d->databases.value(database).statements;
}

} // namespace orvane
