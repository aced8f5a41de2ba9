#pragma once

#include "support/TestHome.h"

#include <QByteArray>
#include <QStringList>
#include <memory>

namespace orvane {

/// A statement in the engine's own words and the database that it goes to.
struct BareStatement {
    QByteArray text;
    bool audit = false;
};

/// The engine itself, without a data layer between: sqlite3 or libpq on a copy of a home folder's databases.
class BareEngine {
public:
    virtual ~BareEngine() = default;
    /// Copies the databases as they stand; no connection to them may be open. Aborts when the engine refuses.
    static std::unique_ptr<BareEngine> onCopyOf(const TestHome& home);

    /// What a workstation sent, as the engine gets it.
    QList<BareStatement> translated(const QStringList& statements) const;
    /// Runs one statement and reads all its rows. Aborts on an error: the replay would be worth nothing.
    virtual void run(const BareStatement& statement) = 0;

protected:
    explicit BareEngine(Engine engine) : m_engine(engine) {}

private:
    virtual QByteArray beginTransaction() const = 0;
    Engine m_engine;
};

} // namespace orvane
