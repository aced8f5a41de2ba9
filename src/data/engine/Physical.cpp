#include "data/engine/Physical.h"

#include "data/Assert.h"
#include "data/engine/Faults.h"
#include "data/engine/Source.h"

#include <QSqlError>

namespace orvane {

namespace {

std::atomic<bool> takesGate = true;

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

/// What every statement goes through before it is sent: the rules of the transaction, the hook, the clock, and the
/// engine's own words.
Statement PhysicalConnection::admit(const SqlParts& tsql) {
    if (inTransaction && poisoned)
        throw DataError("An earlier statement of this transaction failed. Nothing of it is saved.", tsql.text());
    Statement statement;
    try {
        source->callHook(tsql);
        tellClock();
        statement = statementOf(tsql, engine);
    } catch (...) {
        poisoned = inTransaction;
        throw;
    }
    refuseSelfLock(statement.text);
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

Answer PhysicalConnection::ask(const SqlParts& tsql) {
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

int PhysicalConnection::change(const SqlParts& tsql) {
    const Statement statement = admit(tsql);
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

void PhysicalConnection::changeAll(const QVector<SqlParts>& changes) {
    ORVANE_ASSERT(inTransaction);
    if (engine != Engine::Postgresql) {
        for (const SqlParts& tsql : changes)
            change(tsql);
        return;
    }
    // One block is one statement to the driver, so that the fault of any of them is its own.
    QString body;
    for (const SqlParts& tsql : changes)
        body += admit(tsql).text + ";\n";
    if (body.isEmpty())
        return;
    QString quote = "$all$";
    while (body.contains(quote))
        quote.insert(1, u'x');
    const QString text = "do " + quote + "begin\n" + body + "end" + quote;
    QSqlQuery query(database);
    execute(
        query, [&] { return query.exec(text); }, text);
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

void PhysicalConnection::sendAllNative(const QStringList& statements) {
    sendNative(engine == Engine::SqlServer ? "begin transaction" : "begin");
    try {
        for (const QString& statement : statements)
            sendNative(statement);
        sendNative("commit");
    } catch (...) {
        QSqlQuery(database).exec("rollback");
        throw;
    }
}

OpenQuery PhysicalConnection::open(const SqlParts& tsql) {
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

} // namespace orvane
