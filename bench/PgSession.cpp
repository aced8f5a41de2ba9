#include "bench/PgSession.h"

#include "data/DataError.h"

#include <libpq-fe.h>
#include <memory>

namespace orvane {

namespace {

using Result = std::unique_ptr<PGresult, decltype(&PQclear)>;

Result send(PGconn* connection, const QByteArray& statement) {
    Result result(PQexec(connection, statement.constData()), PQclear);
    const ExecStatusType status = PQresultStatus(result.get());
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
        throw DataError(QString::fromUtf8(PQerrorMessage(connection)), QString::fromUtf8(statement));
    return result;
}

} // namespace

PgSession::PgSession(const ServerEntry& server, const ConnectionTarget& login, const QString& database) {
    const QString port = QString::number(server.port > 0 ? server.port : 5432);
    const QByteArray texts[] = {server.host.toUtf8(), port.toUtf8(), login.user.toUtf8(), login.password.toUtf8(),
                                database.toUtf8()};
    const char* const names[] = {"host", "port", "user", "password", "dbname", nullptr};
    const char* const values[] = {texts[0].constData(), texts[1].constData(), texts[2].constData(),
                                  texts[3].constData(), texts[4].constData(), nullptr};
    m_connection = PQconnectdbParams(names, values, 0);
    if (PQstatus(m_connection) != CONNECTION_OK)
        throw DataError(QString::fromUtf8(PQerrorMessage(m_connection)));
    run("set client_min_messages = warning");
}

PgSession::~PgSession() {
    PQfinish(m_connection);
}

qsizetype PgSession::run(const QByteArray& statement) {
    return PQntuples(send(m_connection, statement).get());
}

QStringList PgSession::ask(const QByteArray& statement) {
    const Result result = send(m_connection, statement);
    QStringList column;
    for (int row = 0; row < PQntuples(result.get()); ++row)
        column << QString::fromUtf8(PQgetvalue(result.get(), row, 0));
    return column;
}

} // namespace orvane
