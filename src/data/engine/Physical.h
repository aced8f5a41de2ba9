#pragma once

#include "data/DataError.h"
#include "data/dialect/Statement.h"
#include "data/engine/Rows.h"

#include <QCache>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <functional>
#include <memory>
#include <optional>

namespace orvane {

struct Source;

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

    std::shared_ptr<Source> source; ///< set while it is in use
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

    /// Sends one T-SQL statement. Raises DataError; a failure poisons an open transaction.
    Answer ask(const SqlParts& tsql);
    /// The same for a statement whose rows, if any, nobody reads. Gives the number of rows changed.
    int change(const SqlParts& tsql);
    /// Several changes of the open transaction, in order.
    void changeAll(const QVector<SqlParts>& changes);
    /// Sends text in the engine's own words, outside the rules for statements: begin, commit, settings.
    QSqlQuery sendNative(const QString& text);
    /// The same for several: all or none. Outside a transaction.
    void sendAllNative(const QStringList& statements);
    /// Sends a query whose rows are read page by page. On PostgreSQL they lie behind a cursor, in a reading transaction
    /// of its own, and are fetched.
    OpenQuery open(const SqlParts& tsql);
    QSqlQuery fetch(qsizetype rows);
    void closeCursor() noexcept;
    /// Raises DataError when the rows of a query ended in a fault, not in their last row.
    void requireAllRead(const QSqlError& fault, const QString& text);

    void begin();
    /// `token`: of the row of SavedActions that the transaction wrote; empty where it wrote none.
    void commit(const QString& token);
    /// Whether the transaction that was to write this token has come through. Raises DataError when that cannot be
    /// told, because it may still be under way.
    bool hasSaved(const QString& token);
    void rollback() noexcept;

private:
    Statement admit(const SqlParts& tsql);
    void execute(QSqlQuery& query, const std::function<bool()>& run, const QString& text);
    CompiledStatement& compiled(const QString& text);
    /// Runs a compiled statement and what `use` makes of it; on a fault it is not kept.
    void runCompiled(const Statement& statement, const std::function<void(CompiledStatement&)>& use);
    void refuseSelfLock(const QString& text) const;
    void tellClock();
    [[noreturn]] void fail(const QSqlError& error, const QString& text, bool saving);
    QSqlQuery sendBegin(const QString& text);
    void enterGate(std::optional<int> longestWait = {});
    bool hasEngineTransaction() const;
    void settleCommit(const QSqlError& error, const CommitTicket& ticket);
    void endTransaction();

    QCache<QString, CompiledStatement> m_compiled{200}; ///< by text
};

/// For tests only: whether transactions of this process take the money gate of a database (they do). Without it the
/// numbers and balances of several workstations run into each other, which shows that a proof of them can fail.
void setGateForTests(bool taken);

/// Back to its source's pool; a broken one is dropped. Null does nothing.
void giveBack(std::shared_ptr<PhysicalConnection> physical) noexcept;

/// Opens a new connection; `create` makes the database where it is missing, and no schema version is asked for.
std::shared_ptr<PhysicalConnection> openPhysical(const std::shared_ptr<Source>& source, const QString& connectionString,
                                                 bool create);

/// See DataSource::copyDatabase.
QString copyPhysical(const std::shared_ptr<Source>& source, const QString& connectionString, const QString& suffix);

} // namespace orvane
