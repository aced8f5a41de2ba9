#include "data/Schema.h"

#include "data/Catalog.h"
#include "data/Physical.h"
#include "data/Prelude.h"
#include "data/Translator.h"

namespace orvane {

namespace {

QStringList stamp(Engine engine) {
    const QString version = QString::number(kSchemaVersion);
    if (engine == Engine::Sqlite) {
        return {QStringLiteral("pragma user_version = %1").arg(version)};
    }
    return {QStringLiteral("create table orvaneSchema (version integer not null)"),
            QStringLiteral("insert into orvaneSchema (version) values (%1)").arg(version)};
}

/// SQL Server has no index on an expression: there the statements that ask for the highest number read the table.
bool engineHas(Engine engine, const QString& statement) {
    const bool index = statement.contains(QStringLiteral("index "), Qt::CaseInsensitive) &&
                       !statement.contains(QStringLiteral("create table"), Qt::CaseInsensitive);
    return engine != Engine::SqlServer || !index || statement.count(u'(') == 1;
}

} // namespace

QStringList schemaStatements(Engine engine, const QString& database) {
    QStringList statements = preludeStatements(engine);
    QStringList parts = {database};
    if (database == QStringLiteral("billing") && engine != Engine::Sqlite) {
        parts += QStringLiteral("audit");
    }
    for (const QString& part : parts) {
        for (const QString& statement : Catalog::instance().statements(part)) {
            if (engineHas(engine, statement)) {
                statements += translate(statement, engine);
            }
        }
    }
    return statements + stamp(engine);
}

QString schemaScript(Engine engine, const QString& database) {
    // SQL Server's tools want a view to begin its batch.
    const QString end = engine == Engine::SqlServer ? QStringLiteral("\ngo\n") : QStringLiteral(";\n");
    return schemaStatements(engine, database).join(end + u'\n') + end;
}

void createSchema(Connection& connection, const QString& database) {
    connection.runNative(schemaStatements(connection.engine(), database));
}

void createDatabases(DataSource& source, const QString& billingConnectionString,
                     const QString& accountingConnectionString) {
    Connection billing = source.create(billingConnectionString);
    createSchema(billing, QStringLiteral("billing"));
    Connection accounting = source.create(accountingConnectionString);
    createSchema(accounting, QStringLiteral("accounting"));
    if (billing.engine() == Engine::Sqlite) {
        Connection audit = source.create(withDatabase(billingConnectionString, QStringLiteral("Audit")));
        createSchema(audit, QStringLiteral("audit"));
    }
}

} // namespace orvane
