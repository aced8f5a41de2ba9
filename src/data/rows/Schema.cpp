#include "data/rows/Schema.h"

#include "data/dialect/Catalog.h"
#include "data/dialect/Lexer.h"
#include "data/dialect/Prelude.h"
#include "data/dialect/Translator.h"
#include "data/engine/Physical.h"
#include "data/engine/ServerList.h"

namespace orvane {

namespace {

QStringList stamp(Engine engine) {
    const QString version = QString::number(kSchemaVersion);
    if (engine == Engine::Sqlite)
        return {QStringLiteral("pragma user_version = %1").arg(version)};
    return {"create table orvaneSchema (version integer not null)",
            QStringLiteral("insert into orvaneSchema (version) values (%1)").arg(version)};
}

/// The statement from the word "index" on, when it makes one: index NAME on TABLE (...).
Tokens indexClause(const QString& statement) {
    const Tokens tokens = tokenize(statement);
    if (tokens.isEmpty() || !tokens.first().is("create"))
        return {};
    const qsizetype word = tokens.value(1).is("unique") ? 2 : 1;
    return tokens.value(word).is("index") ? tokens.mid(word) : Tokens();
}

bool isIndex(const QString& statement) {
    return !indexClause(statement).isEmpty();
}

/// SQL Server has no index on an expression: there the statements that ask for the highest number read the table.
bool engineHas(Engine engine, const QString& statement) {
    return engine != Engine::SqlServer || !isIndex(statement) || statement.count(u'(') == 1;
}

/// The schema's indexes that the engine has, in T-SQL.
QStringList indexesOf(Engine engine, const QString& database) {
    QStringList indexes;
    for (const QString& statement : Catalog::instance().statements(database))
        if (isIndex(statement) && engineHas(engine, statement))
            indexes += statement;
    return indexes;
}

QString dropOf(const QString& index, Engine engine) {
    const Tokens clause = indexClause(index);
    const QString drop = "drop index " + clause.at(1).text;
    return engine == Engine::SqlServer ? drop + " on " + clause.at(3).text : drop;
}

} // namespace

QStringList schemaStatements(Engine engine, const QString& database) {
    QStringList statements = preludeStatements(engine);
    QStringList parts = {database};
    if (database == "billing" && engine != Engine::Sqlite)
        parts += "audit";
    for (const QString& part : parts) {
        for (const QString& statement : Catalog::instance().statements(part))
            if (engineHas(engine, statement))
                statements += translate(statement, engine);
    }
    return statements + stamp(engine);
}

QString schemaScript(Engine engine, const QString& database) {
    // SQL Server's tools want a view to begin its batch.
    const QString end = engine == Engine::SqlServer ? "\ngo\n" : ";\n";
    return schemaStatements(engine, database).join(end + u'\n') + end;
}

void createSchema(Connection& connection, const QString& database) {
    connection.physical()->sendAllNative(schemaStatements(connection.engine(), database));
}

void dropIndexes(Connection& connection, const QString& database) {
    QStringList statements;
    for (const QString& index : indexesOf(connection.engine(), database))
        statements += dropOf(index, connection.engine());
    connection.physical()->sendAllNative(statements);
}

void createIndexes(Connection& connection, const QString& database) {
    QStringList statements;
    for (const QString& index : indexesOf(connection.engine(), database))
        statements += translate(index, connection.engine());
    connection.physical()->sendAllNative(statements);
}

void createDatabases(DataSource& source, const QString& billingConnectionString,
                     const QString& accountingConnectionString) {
    Connection billing = source.create(billingConnectionString);
    createSchema(billing, "billing");
    Connection accounting = source.create(accountingConnectionString);
    createSchema(accounting, "accounting");
    if (billing.engine() == Engine::Sqlite) {
        Connection audit = source.create(withDatabase(billingConnectionString, "Audit"));
        createSchema(audit, "audit");
    }
}

} // namespace orvane
