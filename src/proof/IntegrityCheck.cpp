#include "proof/IntegrityCheck.h"

namespace orvane {

namespace {

void checkFile(Connection& connection, const QString& database, CheckReport& report) {
    const auto tell = [&](const QString& what) {
        report.findings.append(QStringLiteral("integrity of the %1: %2").arg(database, what));
    };
    try {
        for (Recordset row = connection.run("pragma integrity_check"); !row.eof(); row.moveNext())
            if (row.text(0) != QLatin1String("ok"))
                tell(row.text(0));
        const Recordset orphans = connection.run("pragma foreign_key_check");
        if (orphans.count() > 0)
            tell(QStringLiteral("%1 row(s) refer to rows that are not there").arg(orphans.count()));
    } catch (const DataError& fault) {
        tell(fault.description()); // damaged so much that the engine gives up
    }
}

/// The server's own extension checks its indexes, where an administrator has installed it.
void checkIndexes(Connection& connection, const QString& database, CheckReport& report) {
    const Recordset installed = connection.run("select count(*) as N from pg_extension where extname = 'amcheck'");
    if (installed.integer("N") == 0) {
        report.remarks.append(
            QStringLiteral("integrity of the %1: skipped, the extension amcheck is not installed there").arg(database));
        return;
    }
    try {
        connection.run(
            QStringLiteral("select count(bt_index_check(i.indexrelid)) as N from pg_index i "
                           "inner join pg_class c on c.oid = i.indexrelid inner join pg_am a on a.oid = c.relam "
                           "inner join pg_namespace n on n.oid = c.relnamespace "
                           "where a.amname = 'btree' and n.nspname = 'public'"));
    } catch (const DataError& error) {
        report.findings.append(QStringLiteral("integrity of the %1: %2").arg(database, error.description()));
    }
}

} // namespace

void checkIntegrity(Connection& connection, const QString& database, CheckReport& report) {
    switch (connection.engine()) {
    case Engine::Sqlite:
        checkFile(connection, database, report);
        break;
    case Engine::Postgresql:
        checkIndexes(connection, database, report);
        break;
    case Engine::SqlServer:
        report.remarks.append(
            QStringLiteral("integrity of the %1: skipped, it is the server's own DBCC CHECKDB").arg(database));
        break;
    }
}

} // namespace orvane
