#include "data/engine/Source.h"

#include "data/engine/Physical.h"

#include <QSqlDriver>
#include <QThread>
#include <libpq-fe.h>
#include <poll.h>

namespace orvane {

namespace {

quintptr thisThread() {
    return reinterpret_cast<quintptr>(QThread::currentThreadId());
}

/// Whether PostgreSQL has said nothing on an idle connection. It announces that it closes one, so the socket of a dead
/// connection has something to read; asking the socket costs no message.
bool isQuiet(const PhysicalConnection& physical) {
    if (physical.engine != Engine::Postgresql || !physical.database.isOpen())
        return false;
    const QVariant handle = physical.database.driver()->handle();
    if (qstrcmp(handle.typeName(), "pg_conn*") != 0) // libpq's own name of a PGconn
        return false;
    PGconn* const connection = *static_cast<PGconn* const*>(handle.constData());
    pollfd socket = {PQsocket(connection), POLLIN, 0};
    return PQstatus(connection) == CONNECTION_OK && poll(&socket, 1, 0) == 0;
}

} // namespace

std::shared_ptr<PhysicalConnection> Source::take(const QString& connectionString) {
    const QString key = QStringLiteral("%1\n%2").arg(thisThread()).arg(connectionString);
    for (;;) {
        std::shared_ptr<PhysicalConnection> physical;
        {
            const QMutexLocker lock(&m_mutex);
            auto& idle = m_idle[key];
            if (idle.isEmpty())
                break;
            physical = idle.takeLast();
        }
        // A server that was restarted has closed its idle connections.
        const bool alive = physical->engine == Engine::Sqlite || isQuiet(*physical) ||
                           (physical->database.isOpen() && QSqlQuery(physical->database).exec("select 1"));
        if (alive) {
            physical->source = shared_from_this();
            ++physical->lease;
            return physical;
        }
    }
    std::shared_ptr<PhysicalConnection> physical = openPhysical(shared_from_this(), connectionString, false);
    physical->poolKey = key;
    return physical;
}

void Source::giveBack(std::shared_ptr<PhysicalConnection> physical) noexcept {
    if (physical->inTransaction)
        physical->rollback();
    ++physical->lease;
    const std::shared_ptr<Source> self = std::move(physical->source);
    if (!physical->broken && !physical->poolKey.isEmpty()) {
        const QMutexLocker lock(&m_mutex);
        m_idle[physical->poolKey].append(std::move(physical));
    }
}

void giveBack(std::shared_ptr<PhysicalConnection> physical) noexcept {
    if (!physical)
        return;
    const std::shared_ptr<Source> source = physical->source;
    source->giveBack(std::move(physical));
}

void Source::dropIdle() {
    const QMutexLocker lock(&m_mutex);
    const QString thread = QStringLiteral("%1\n").arg(thisThread());
    m_idle.removeIf([&](auto idle) { return idle.key().startsWith(thread); });
}

std::function<void(const QString&)> Source::hook() const {
    const QMutexLocker lock(&m_mutex);
    return m_hook;
}

void Source::callHook(const QString& tsql) {
    if (const auto called = hook())
        called(tsql);
}

void Source::callHook(const SqlParts& tsql) {
    if (const auto called = hook())
        called(tsql.text());
}

void Source::setHook(std::function<void(const QString&)> hook) {
    const QMutexLocker lock(&m_mutex);
    m_hook = std::move(hook);
}

std::optional<QDateTime> Source::clock() const {
    const QMutexLocker lock(&m_mutex);
    return m_clock;
}

void Source::setClock(std::optional<QDateTime> at) {
    const QMutexLocker lock(&m_mutex);
    m_clock = std::move(at);
    ++clockVersion;
}

void Source::enterGate(const QString& gate) {
    const QMutexLocker lock(&m_mutex);
    if (m_gates.contains({gate, thisThread()}))
        throw DataError("This workstation has a transaction open on another connection.");
    m_gates.insert({gate, thisThread()});
}

void Source::leaveGate(const QString& gate) {
    const QMutexLocker lock(&m_mutex);
    m_gates.remove({gate, thisThread()});
}

bool Source::insideGate(const QString& gate) const {
    const QMutexLocker lock(&m_mutex);
    return m_gates.contains({gate, thisThread()});
}

} // namespace orvane
