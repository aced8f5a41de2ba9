#include "bench/BareEngine.h"

#include "data/dialect/Translator.h"

#include <memory>

namespace orvane {

std::unique_ptr<BareEngine> openBareSqlite(const HomeServer& server, const QDateTime& clock, bool durable);
std::unique_ptr<BareEngine> openBarePostgresql(const HomeServer& server, const QDateTime& clock);

std::unique_ptr<BareEngine> BareEngine::open(const QString& homeFolder, const QDateTime& clock, bool durable) {
    const HomeServer server(homeFolder);
    return server.entry.engine == Engine::Sqlite ? openBareSqlite(server, clock, durable)
                                                 : openBarePostgresql(server, clock);
}

QList<BareStatement> BareEngine::translated(const QStringList& statements) const {
    QList<BareStatement> result;
    for (const QString& statement : statements) {
        if (statement == QLatin1String("begin transaction")) {
            if (m_engine == Engine::Sqlite)
                result << BareStatement{"begin immediate"};
            else
                result << BareStatement{"begin isolation level read committed"}
                       << BareStatement{"select pg_advisory_xact_lock(7461)"};
        } else if (statement == QLatin1String("commit transaction")) {
            result << BareStatement{"commit"};
        } else if (statement == QLatin1String("rollback transaction")) {
            result << BareStatement{"rollback"};
        } else {
            result << BareStatement{translate(statement, m_engine).toUtf8(), statement.contains("AuditTrail")};
        }
    }
    return result;
}

} // namespace orvane
