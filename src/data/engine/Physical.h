#pragma once

#include "data/dialect/Statement.h"
#include "data/engine/Rows.h"
#include "data/engine/ServerList.h"
#include "data/rows/Connection.h"

#include <QCache>
#include <QHash>
#include <QMutex>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariantList>
#include <atomic>

namespace orvane {

/// What the engine gives for a statement.
struct Answer {
    Rows rows;
    std::shared_ptr<const RowFacts> facts;
};

/// A query whose rows are still to be read.
struct OpenQuery {
    QSqlQuery query;
    std::shared_ptr<const RowFacts> facts;
};

/// A statement of SQLite that was compiled once, for values that are bound.
struct CompiledStatement {
    QSqlQuery query;
    std::optional<Columns> columns; ///< known once it has run
};

/// One open connection of the engine. Lives in its source's pool while no Connection uses it.
struct PhysicalConnection {
    ~PhysicalConnection();

    std::shared_ptr<DataSource::Private> source; ///< set while it is in use
    Engine engine = Engine::Sqlite;
    QString connectionString;
    QString schema;  ///< "billing", "accounting" or "audit": which tables it holds
    QString poolKey; ///< connection string and thread
    QString gate;    ///< the database that a transaction on it locks
    QString name;    ///< Qt's name of it
    QSqlDatabase database;
    qint64 lease = 0; ///< counts the uses; a recordset of an earlier use cannot write any more
    bool broken = false;
    bool inTransaction = false;
    bool poisoned = false; ///< a statement of the open transaction failed
    int clockVersion = 0;  ///< of the server clock that PostgreSQL was told
    QString transaction;   ///< the engine's own number of the open transaction, where it has one

    /// Sends one T-SQL statement. Raises DataError; a failure poisons an open transaction.
    Answer ask(const QString& tsql);
    /// The same for a statement whose rows, if any, nobody reads; ? stands for each bound value. Gives the number of
    /// rows changed.
    int change(const QString& tsql, const QVariantList& bound = {});
    /// Sends text in the engine's own words, outside the rules for statements: begin, commit, settings.
    QSqlQuery sendNative(const QString& text);
    /// Sends a query whose rows are read page by page. On PostgreSQL they lie behind a cursor, in a reading transaction
    /// of its own, and are fetched.
    OpenQuery open(const QString& tsql);
    QSqlQuery fetch(qsizetype rows);
    void closeCursor() noexcept;
    /// Raises DataError when the rows of a query ended in a fault, not in their last row.
    void requireAllRead(const QSqlError& fault, const QString& text);

    void begin();
    void commit();
    void rollback() noexcept;

private:
    Statement admit(const QString& tsql, const QVariantList& bound = {});
    void execute(QSqlQuery& query, const std::function<bool()>& run, const QString& text);
    CompiledStatement& compiled(const QString& text);
    /// Runs a compiled statement and what `use` makes of it; on a fault it is not kept.
    void runCompiled(const Statement& statement, const std::function<void(CompiledStatement&)>& use);
    void refuseSelfLock(const QString& text) const;
    void tellClock();
    [[noreturn]] void fail(const QSqlError& error, const QString& text, bool saving);
    QSqlQuery sendBegin(const QString& text);
    void enterGate();
    bool hasEngineTransaction() const;
    void settleCommit(const QSqlError& error);
    CommitTicket ticket() const;
    void endTransaction();

    QCache<QString, CompiledStatement> m_compiled{100}; ///< by text
};

struct DataSource::Private : std::enable_shared_from_this<DataSource::Private> {
    explicit Private(const QString& home) : homeFolder(home), servers(home) {}

    QString homeFolder;
    ServerList servers;
    std::atomic<int> openTransactions = 0;
    std::atomic<qint64> statementsSent = 0;
    std::atomic<int> clockVersion = 0;
    std::atomic<bool> disposable = false; ///< commits do not wait for the disk
    std::atomic<bool> anySchema = false;  ///< databases are opened whatever the number of their schema
    std::atomic<int> lockWait = 60000;    ///< milliseconds, of new connections
    std::atomic<int> outcomePause = 700;  ///< milliseconds between two tries to learn what became of a commit

    std::shared_ptr<PhysicalConnection> take(const QString& connectionString);
    void giveBack(std::shared_ptr<PhysicalConnection> physical) noexcept;

    void dropIdle(); ///< those of this thread

    CommitOutcome outcomeOf(const CommitTicket& ticket);
    CommitOutcome outcomeSoon(const CommitTicket& ticket); ///< tries for some seconds

    void callHook(const QString& tsql, const QVariantList& bound = {});
    void setHook(std::function<void(const QString&)> hook);
    std::optional<QDateTime> clock() const;
    void setClock(std::optional<QDateTime> at);

    void enterGate(const QString& gate); ///< raises DataError when this thread is in it already
    void leaveGate(const QString& gate);
    bool insideGate(const QString& gate) const;

private:
    mutable QMutex m_mutex;
    QHash<QString, QList<std::shared_ptr<PhysicalConnection>>> m_idle;
    std::function<void(const QString&)> m_hook;
    std::optional<QDateTime> m_clock;
    QSet<std::pair<QString, quintptr>> m_gates; ///< database and thread of each open transaction
};

/// A statement whose marks ? are replaced by its values; it holds no other literals.
QString withLiterals(const QString& text, const QVariantList& values);

/// For tests only: whether transactions of this process take the money gate of a database (they do). Without it the
/// numbers and balances of several workstations run into each other, which shows that a proof of them can fail.
void setGateForTests(bool taken);

/// Opens a new connection; `create` makes the database where it is missing, and no schema version is asked for.
std::shared_ptr<PhysicalConnection> openPhysical(const std::shared_ptr<DataSource::Private>& source,
                                                 const QString& connectionString, bool create);

/// See DataSource::copyDatabase.
QString copyPhysical(const std::shared_ptr<DataSource::Private>& source, const QString& connectionString,
                     const QString& suffix);

} // namespace orvane
