#pragma once

#include "data/engine/ServerList.h"

#include <QStringList>
#include <QVector>

struct pg_conn;

namespace orvane {

/// One connection of libpq, without a data layer. Raises DataError when the server refuses: figures that miss a
/// statement are worth nothing.
class PgSession {
public:
    PgSession(const ServerEntry& server, const ConnectionTarget& login, const QString& database);
    ~PgSession();
    PgSession(const PgSession&) = delete;
    PgSession& operator=(const PgSession&) = delete;

    /// Runs one statement, reads all its rows, and gives their number.
    qsizetype run(const QByteArray& statement);
    /// Runs one statement and gives the first column of its rows.
    QStringList ask(const QByteArray& statement);

private:
    pg_conn* m_connection;
};

} // namespace orvane
