#pragma once

#include "bench/HomeCopy.h"

#include <QByteArray>
#include <QDateTime>
#include <QStringList>
#include <memory>

namespace orvane {

/// A statement in the engine's own words and the database that it goes to.
struct BareStatement {
    QByteArray text;
    bool audit = false;
    bool accounting = false;
};

/// What the engine did for one statement.
struct Examination {
    QStringList plan;
    qint64 rows = 0; ///< that came back
    qint64 work = 0; ///< SQLite: steps of its virtual machine; PostgreSQL: pages looked at
    /// SQLite: rows stepped over in tables or indexes that no condition narrows; PostgreSQL: those, and the rows that
    /// a filter threw away behind an index.
    qint64 stepsOver = 0;
};

/// The engine itself, without a data layer between: sqlite3 or libpq on the databases of a home folder. Every call
/// raises DataError when the engine refuses.
class BareEngine {
public:
    virtual ~BareEngine() = default;
    /// Works on the databases themselves. `clock` is what getdate() shows. The embedded engine waits for the disk at a
    /// commit only if it is `durable`, else it is as a data source after setDisposable().
    static std::unique_ptr<BareEngine> open(const QString& homeFolder, const QDateTime& clock, bool durable = false);

    /// What a Recorder kept of a workstation, as the engine gets it.
    QList<BareStatement> translated(const QStringList& statements) const;
    /// Runs one statement and reads all its rows.
    virtual void run(const BareStatement& statement) = 0;
    /// Runs it and says how the engine did it.
    virtual Examination examine(const BareStatement& statement) = 0;

protected:
    explicit BareEngine(Engine engine) : m_engine(engine) {}

private:
    Engine m_engine;
};

} // namespace orvane
