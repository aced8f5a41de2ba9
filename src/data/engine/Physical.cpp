#include "data/engine/Physical.h"

#include "data/Assert.h"
#include "data/dialect/Skeleton.h"
#include "data/dialect/Value.h"
#include "data/engine/Faults.h"

#include <QSqlDriver>
#include <QSqlError>
#include <QThread>
#include <libpq-fe.h>
#include <poll.h>

namespace orvane {

namespace {

std::atomic<bool> takesGate = true;

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

bool areBoundAsTheyStand(const QVariantList& values) {
    return std::all_of(
        values.begin(), values.end(),
        [](const QVariant& value) {
            return value.typeId() != QMetaType::QString || isBoundAsItStands(value.toString());
        });
}

bool changesRows(const QString& text) {
    const QString start = text.trimmed().left(6).toLower();
    return start.startsWith("insert") || start.startsWith("update") || start.startsWith("delete") ||
           start.startsWith("create");
}

} // namespace

PhysicalConnection::~PhysicalConnection() {
    m_compiled.clear();
    database.close();
    database = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

void setGateForTests(bool taken) {
    takesGate = taken;
}

QString withLiterals(const QString& text, const QVariantList& values) {
    QString result;
    qsizetype from = 0;
    for (const QVariant& value : values) {
        const qsizetype mark = text.indexOf(u'?', from);
        result += QStringView(text).mid(from, mark - from);
        result += valueLiteral(value);
        from = mark + 1;
    }
    result += QStringView(text).mid(from);
    return result;
}

/// What every statement goes through before it is sent: the rules of the transaction, the hook, the clock, and the
/// engine's own words.
Statement PhysicalConnection::admit(const QString& tsql, const QVariantList& bound) {
    if (inTransaction && poisoned)
        throw DataError("An earlier statement of this transaction failed. Nothing of it is saved.", tsql);
    Statement statement;
    try {
        source->callHook(tsql, bound);
        tellClock();
        // SQL Server gets the values as literals: its driver would have to guess the type of a bound null.
        statement = statementOf(engine == Engine::SqlServer ? withLiterals(tsql, bound) : tsql, engine);
    } catch (...) {
        poisoned = inTransaction;
        throw;
    }
    refuseSelfLock(statement.text);
    if (bound.isEmpty() || engine == Engine::SqlServer)
        return statement;
    if (engine == Engine::Sqlite && areBoundAsTheyStand(bound)) {
        statement.marked = statement.text;
        statement.bound = bound;
    } else {
        // A prepared statement costs PostgreSQL three messages for one run; its literals are as exact as bound values.
        statement.text = withLiterals(statement.text, bound);
        statement.marked = QString();
    }
    return statement;
}

void PhysicalConnection::execute(QSqlQuery& query, const std::function<bool()>& run, const QString& text) {
    for (int attempt = 1;; ++attempt) {
        ++source->statementsSent;
        if (run())
            return;
        if (inTransaction || attempt == 3 || !mayBeSentAgain(query.lastError()))
            fail(query.lastError(), text, inTransaction);
    }
}

Answer PhysicalConnection::ask(const QString& tsql) {
    const Statement statement = admit(tsql);
    Answer answer{{}, statement.facts};
    if (!statement.marked.isNull()) {
        runCompiled(
            statement,
            [&](CompiledStatement& compiled) {
                if (!compiled.columns)
                    compiled.columns = columnsOf(compiled.query, engine);
                QSqlError fault;
                answer.rows = readRows(compiled.query, *compiled.columns, fault);
                requireAllRead(fault, statement.text);
                compiled.query.finish();
            });
    } else {
        QSqlQuery query(database);
        query.setForwardOnly(true);
        execute(
            query, [&] { return query.exec(statement.text); }, statement.text);
        QSqlError fault;
        answer.rows = readRows(query, columnsOf(query, engine), fault);
        requireAllRead(fault, statement.text);
    }
    answer.rows.columns = answer.facts->heads(answer.rows.columns);
    return answer;
}

int PhysicalConnection::change(const QString& tsql, const QVariantList& bound) {
    const Statement statement = admit(tsql, bound);
    int rows = 0;
    if (!statement.marked.isNull()) {
        runCompiled(
            statement,
            [&](CompiledStatement& compiled) {
                rows = compiled.query.numRowsAffected();
                compiled.query.finish();
            });
    } else {
        QSqlQuery query(database);
        execute(
            query, [&] { return query.exec(statement.text); }, statement.text);
        rows = query.numRowsAffected();
    }
    return rows;
}

void PhysicalConnection::runCompiled(const Statement& statement, const std::function<void(CompiledStatement&)>& use) {
    CompiledStatement& kept = compiled(statement.marked);
    for (int i = 0; i < statement.bound.size(); ++i)
        kept.query.bindValue(i, statement.bound[i]);
    try {
        execute(
            kept.query, [&] { return kept.query.exec(); }, statement.text);
        use(kept);
    } catch (...) {
        m_compiled.remove(statement.marked);
        throw;
    }
}

CompiledStatement& PhysicalConnection::compiled(const QString& text) {
    if (CompiledStatement* known = m_compiled.object(text))
        return *known;
    auto statement = std::make_unique<CompiledStatement>(CompiledStatement{QSqlQuery(database), {}});
    statement->query.setForwardOnly(true);
    if (!statement->query.prepare(text)) {
        ++source->statementsSent;
        fail(statement->query.lastError(), text, inTransaction);
    }
    CompiledStatement& kept = *statement;
    m_compiled.insert(text, statement.release());
    return kept;
}

QSqlQuery PhysicalConnection::sendNative(const QString& text) {
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.exec(text))
        fail(query.lastError(), text, inTransaction);
    return query;
}

OpenQuery PhysicalConnection::open(const QString& tsql) {
    const Statement statement = admit(tsql);
    OpenQuery opened{QSqlQuery(database), statement.facts};
    if (engine != Engine::Postgresql) {
        opened.query.setForwardOnly(true);
        execute(
            opened.query, [&] { return opened.query.exec(statement.text); }, statement.text);
        return opened;
    }
    ++source->statementsSent;
    // It stays open while its user looks at the list, and keeps nobody out.
    sendNative("begin read only; set local idle_in_transaction_session_timeout = 0");
    try {
        sendNative("declare orvane_rows no scroll cursor for " + statement.text);
        opened.query = fetch(0); // tells the columns
    } catch (...) {
        closeCursor();
        throw;
    }
    return opened;
}

QSqlQuery PhysicalConnection::fetch(qsizetype rows) {
    return sendNative(QStringLiteral("fetch forward %1 from orvane_rows").arg(rows));
}

void PhysicalConnection::closeCursor() noexcept {
    broken = broken || !database.isOpen() || !QSqlQuery(database).exec("rollback");
}

void PhysicalConnection::requireAllRead(const QSqlError& fault, const QString& text) {
    if (fault.isValid())
        fail(fault, text, inTransaction);
}

/// A write beside this workstation's own open transaction would wait for that transaction, which waits for the write.
void PhysicalConnection::refuseSelfLock(const QString& text) const {
    if (engine == Engine::Sqlite && !inTransaction && changesRows(text) && source->insideGate(gate))
        throw DataError("This workstation has a transaction open on another connection.", text);
}

/// On PostgreSQL getdate() reads the fixed clock from a setting of the connection; on SQLite it asks the source itself.
void PhysicalConnection::tellClock() {
    if (engine != Engine::Postgresql || clockVersion == source->clockVersion)
        return;
    const auto clock = source->clock();
    const QString text = clock ? clock->toString("yyyy-MM-dd HH:mm:ss") : QString();
    sendNative(QStringLiteral("select set_config('orvane.clock', '%1', false)").arg(text));
    clockVersion = source->clockVersion;
}

void PhysicalConnection::fail(const QSqlError& error, const QString& text, bool saving) {
    poisoned = inTransaction;
    const bool lost = !database.isOpen() || endsConnection(error);
    const bool readOnly = isReadOnly(engine, error);
    // A connection that may not write may have been opened so: new ones find out whether they may by now.
    broken = broken || lost || readOnly;
    if (readOnly)
        source->dropIdle();
    throw DataError(faultText(engine, error, lost, saving), text, error.nativeErrorCode());
}

/// A statement that begins a transaction: where it fails, nothing of the transaction is saved.
QSqlQuery PhysicalConnection::sendBegin(const QString& text) {
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.exec(text))
        fail(query.lastError(), text, true);
    return query;
}

/// Begins and takes the money gate; waits as long as for any lock, or so many milliseconds.
void PhysicalConnection::enterGate(std::optional<int> longestWait) {
    if (!hasEngineTransaction())
        return;
    if (engine == Engine::Sqlite) {
        sendBegin("begin immediate");
    } else if (engine == Engine::Postgresql) {
        const QString begin = "begin isolation level read committed";
        sendBegin(longestWait ? begin + QStringLiteral("; set local lock_timeout = %1").arg(*longestWait) : begin);
        if (takesGate)
            sendBegin("select pg_advisory_xact_lock(7461)");
    } else {
        sendBegin("begin transaction");
        QSqlQuery gateResult =
            sendBegin(QStringLiteral(
                          "declare @r int; exec @r = sp_getapplock 'orvane', 'Exclusive', 'Transaction', %1; select @r")
                          .arg(longestWait.value_or(60000)));
        if (!gateResult.next() || gateResult.value(0).toInt() < 0)
            throw DataError("The database is in use by another workstation. Nothing was saved. Please try again.");
    }
}

void PhysicalConnection::begin() {
    ORVANE_ASSERT(!inTransaction);
    source->enterGate(gate);
    bool begun = false;
    try {
        source->callHook("begin transaction");
        tellClock();
        begun = engine != Engine::Sqlite;
        enterGate();
    } catch (...) {
        // It may have begun before it failed, and a transaction that is left open would hold what it has locked.
        if (begun)
            broken = broken || !database.isOpen() || !QSqlQuery(database).exec("rollback");
        source->leaveGate(gate);
        throw;
    }
    inTransaction = true;
    poisoned = false;
    ++source->openTransactions;
}

/// The gate of the embedded engine is the transaction itself: without it each statement is for itself.
bool PhysicalConnection::hasEngineTransaction() const {
    return engine != Engine::Sqlite || takesGate;
}

void PhysicalConnection::rollback() noexcept {
    const QString text = engine == Engine::SqlServer ? "rollback transaction" : "rollback";
    // A connection that cannot say that its transaction is gone is not used again; the engine undoes it when it closes.
    broken = broken || !database.isOpen() || (hasEngineTransaction() && !QSqlQuery(database).exec(text));
    endTransaction();
}

void PhysicalConnection::endTransaction() {
    inTransaction = false;
    poisoned = false;
    --source->openTransactions;
    source->leaveGate(gate);
}

// The source's pool.

std::shared_ptr<PhysicalConnection> DataSource::Private::take(const QString& connectionString) {
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

void DataSource::Private::giveBack(std::shared_ptr<PhysicalConnection> physical) noexcept {
    if (physical->inTransaction)
        physical->rollback();
    ++physical->lease;
    const std::shared_ptr<Private> self = std::move(physical->source);
    if (!physical->broken && !physical->poolKey.isEmpty()) {
        const QMutexLocker lock(&m_mutex);
        m_idle[physical->poolKey].append(std::move(physical));
    }
}

void DataSource::Private::dropIdle() {
    const QMutexLocker lock(&m_mutex);
    const QString thread = QStringLiteral("%1\n").arg(thisThread());
    m_idle.removeIf([&](auto idle) { return idle.key().startsWith(thread); });
}

void DataSource::Private::callHook(const QString& tsql, const QVariantList& bound) {
    std::function<void(const QString&)> hook;
    {
        const QMutexLocker lock(&m_mutex);
        hook = m_hook;
    }
    if (hook)
        hook(withLiterals(tsql, bound));
}

void DataSource::Private::setHook(std::function<void(const QString&)> hook) {
    const QMutexLocker lock(&m_mutex);
    m_hook = std::move(hook);
}

std::optional<QDateTime> DataSource::Private::clock() const {
    const QMutexLocker lock(&m_mutex);
    return m_clock;
}

void DataSource::Private::setClock(std::optional<QDateTime> at) {
    const QMutexLocker lock(&m_mutex);
    m_clock = std::move(at);
    ++clockVersion;
}

void DataSource::Private::enterGate(const QString& gate) {
    const QMutexLocker lock(&m_mutex);
    if (m_gates.contains({gate, thisThread()}))
        throw DataError("This workstation has a transaction open on another connection.");
    m_gates.insert({gate, thisThread()});
}

void DataSource::Private::leaveGate(const QString& gate) {
    const QMutexLocker lock(&m_mutex);
    m_gates.remove({gate, thisThread()});
}

bool DataSource::Private::insideGate(const QString& gate) const {
    const QMutexLocker lock(&m_mutex);
    return m_gates.contains({gate, thisThread()});
}

} // namespace orvane
