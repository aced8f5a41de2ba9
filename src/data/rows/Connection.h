#pragma once

#include "data/DataError.h"
#include "data/Engine.h"
#include "data/dialect/Sql.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QVector>
#include <functional>
#include <memory>
#include <optional>

namespace orvane {

class Recordset;
struct PhysicalConnection;
struct Source;

/// One connection in use. Returned to its source's pool when it goes out of scope (a broken one is dropped).
/// Movable, not copyable, used by one thread.
class Connection {
public:
    Connection(Connection&&) noexcept;
    Connection& operator=(Connection&&) noexcept;
    ~Connection();

    Engine engine() const;
    /// Runs a statement that returns no rows. Raises DataError; a failed statement poisons an open transaction.
    void execute(const Sql& sql);
    /// Runs several changes in their order, in the open transaction; on PostgreSQL in one message, since a message
    /// costs as much as a small change. Raises DataError for any of them.
    void executeAll(const QVector<Sql>& changes);
    /// Runs a stored procedure by its name with named parameters; gives its rows (empty when it returns none).
    /// An unknown name or parameter is a DataError.
    Recordset call(const QString& procedure, const QVariantMap& parameters = {});
    bool inTransaction() const;
    /// Another connection to the same server: to `database`, or to this one's own when it is empty. It has no part in
    /// this one's transaction.
    Connection beside(const QString& database = {}) const;

    /// Runs T-SQL text that stands in a schema or script file, not in the source: for orvane-db, the script player and
    /// tests only. Gives the rows, if any.
    Recordset run(const QString& tsql);

    /// The engine's side of a connection, for the rows of the data layer.
    explicit Connection(std::shared_ptr<PhysicalConnection> physical);
    const std::shared_ptr<PhysicalConnection>& physical() const { return d; }
    std::shared_ptr<PhysicalConnection> release() { return std::move(d); } ///< to somebody who gives it back

private:
    std::shared_ptr<PhysicalConnection> d;
};

/// The servers that this workstation knows (orvane.ini of the home folder) and its idle connections.
/// A connection string names a server; without an ini section the embedded engine serves it.
class DataSource {
public:
    /// `homeFolder`: where orvane.ini lies and embedded database files are found. Raises DataError for a broken
    /// orvane.ini.
    explicit DataSource(QString homeFolder);
    ~DataSource();
    DataSource(const DataSource&) = delete;
    DataSource& operator=(const DataSource&) = delete;

    /// A connection for "Driver={SQL Server};Server=...;Database=...;UID=...;PWD=...". On the embedded engine a
    /// missing, foreign or read-only file is a DataError and nothing is created. Raises DataError when the server
    /// cannot be reached.
    Connection open(const QString& connectionString);
    Engine engineOf(const QString& connectionString) const;
    /// Creates what `open` refuses to create: the embedded database file, or the server's database. For orvane-db and
    /// tests.
    Connection create(const QString& connectionString);
    /// Makes a copy of a database beside it, its name lengthened by `suffix`, and gives the copy's name. Raises
    /// DataError where the login may not, somebody is connected (PostgreSQL), or the engine makes copies in another
    /// way.
    QString copyDatabase(const QString& connectionString, const QString& suffix);
    /// From now on new connections of the embedded engine do not wait for the disk at a commit: a power cut may take
    /// the database with it. Only for databases that can be made again, such as the demonstration hospital.
    void setDisposable();
    /// From now on databases of every schema's number are opened. For the upgrade, which alone knows what to do with
    /// them.
    void acceptAnySchema();
    /// Fixes what the server's clock shows to this workstation's connections; nothing frees it again. For scripts and
    /// tests. SQL Server's own clock cannot be fixed.
    void setServerClock(std::optional<QDateTime> at);
    std::optional<QDateTime> serverClock() const;
    /// Open transactions of this source: while there is one, no box may show.
    int openTransactions() const;
    /// Statements sent to the engine so far, for benchmarks and tests.
    qint64 statementsSent() const;
    /// What became of the transaction of a CommitUnknown, as the database says now. Raises nothing.
    CommitOutcome outcomeOf(const CommitTicket& ticket);
    /// How long a connection that is opened from now on waits for a lock (60 s unless told), and a commit whose answer
    /// was lost for the database to come back, pause by pause. For tests.
    void setWaits(int lockMilliseconds, int outcomePauseMilliseconds);
    /// Called before every statement with its T-SQL, and with "begin transaction", "commit transaction" (before it),
    /// "transaction committed" (after it) and "outcome of commit" (before it is asked for); for tests that break
    /// things. A DataError that it raises stands for the engine's: before a statement the statement failed, before a
    /// commit all was rolled back, after it CommitUnknown, before the outcome the database cannot be asked.
    void setStatementHook(std::function<void(const QString&)> hook);
    QString homeFolder() const;

private:
    std::shared_ptr<Source> d;
};

} // namespace orvane
