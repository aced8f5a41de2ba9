#include "data/rows/Schema.h"

#include "data/dialect/Catalog.h"
#include "data/dialect/Lexer.h"
#include "data/dialect/Prelude.h"
#include "data/dialect/Translator.h"
#include "data/engine/Physical.h"
#include "data/engine/Rights.h"
#include "data/engine/ServerList.h"
#include "data/engine/Source.h"
#include "data/rows/Recordset.h"
#include "data/rows/SchemaSteps.h"
#include "data/rows/Transaction.h"

namespace orvane {

namespace {

QString numberStatement(Engine engine) {
    return QStringLiteral("%1 = %2")
        .arg(engine == Engine::Sqlite ? "pragma user_version" : "update orvaneSchema set version")
        .arg(kSchemaVersion);
}

QStringList stamp(Engine engine) {
    if (engine == Engine::Sqlite)
        return {numberStatement(engine)};
    return {"create table orvaneSchema (version integer not null)",
            QStringLiteral("insert into orvaneSchema (version) values (%1)").arg(kSchemaVersion)};
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

/// On a server the audit trail's table is part of the billing database.
QStringList partsOf(Engine engine, const QString& database) {
    QStringList parts(database);
    if (database == "billing" && engine != Engine::Sqlite)
        parts << "audit";
    return parts;
}

bool isView(const QString& statement) {
    const Tokens tokens = tokenize(statement);
    return tokens.value(0).is("create") && tokens.value(1).is("view");
}

/// All views of a database, whichever of them are there. A server drops them at once, whatever reads what.
QStringList dropViews(Engine engine, const QString& database) {
    const QStringList views = Catalog::instance().views(database);
    if (views.isEmpty())
        return {};
    if (engine != Engine::Sqlite)
        return {"drop view if exists " + views.join(", ")};
    QStringList statements;
    for (const QString& view : views)
        statements += "drop view if exists " + view;
    return statements;
}

/// The logins beside the owner that the program may use: a view that is made anew has lost their rights.
QStringList loginsThatRead(Connection& connection) {
    QStringList logins;
    if (connection.engine() == Engine::Sqlite)
        return logins;
    for (Recordset row = connection.run("select distinct grantee from information_schema.table_privileges where "
                                        "lower(table_name) = 'orvaneschema' and privilege_type = 'SELECT' "
                                        "and grantee <> 'PUBLIC' and grantee <> current_user");
         !row.eof(); row.moveNext())
        logins += row.text(0);
    return logins;
}

QString dropOf(const QString& index, Engine engine) {
    const Tokens clause = indexClause(index);
    const QString drop = "drop index " + clause.at(1).text;
    return engine == Engine::SqlServer ? drop + " on " + clause.at(3).text : drop;
}

} // namespace

QStringList schemaStatements(Engine engine, const QString& database) {
    QStringList statements = preludeStatements(engine);
    for (const QString& part : partsOf(engine, database)) {
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

int schemaVersion(Connection& connection) {
    return connection.engine() == Engine::Sqlite
               ? int(connection.run("pragma user_version").integer("user_version"))
               : int(connection.run("select version from orvaneSchema").integer("version"));
}

void upgradeSchema(Connection& connection, const QString& database) {
    const Engine engine = connection.engine();
    const QStringList logins = loginsThatRead(connection);
    Transaction transaction(connection);
    // Another one may have come first while this one waited for the gate.
    const int from = schemaVersion(connection);
    QStringList statements = dropViews(engine, database) + preludeFunctions(engine);
    for (const QString& part : partsOf(engine, database))
        for (const SchemaStep& step : schemaSteps(part, from))
            for (const QString& statement : splitScript(QString::fromUtf8(step.tsql)))
                statements += translate(statement, engine);
    for (const QString& view : Catalog::instance().statements(database))
        if (isView(view))
            statements += translate(view, engine);
    statements += numberStatement(engine);
    for (const QString& login : logins)
        statements += rightsStatements(engine, database, login);
    for (const QString& statement : statements) {
        connection.physical()->source->callHook(statement);
        connection.physical()->sendNative(statement);
    }
    transaction.commit();
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
