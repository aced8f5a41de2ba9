#pragma once

#include "data/DataError.h"
#include "data/dialect/SqlParts.h"
#include "data/engine/ServerList.h"

#include <QDateTime>
#include <QHash>
#include <QMutex>
#include <QSet>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>

namespace orvane {

struct PhysicalConnection;

/// The servers that a DataSource knows, its idle connections, and what they share.
struct Source : std::enable_shared_from_this<Source> {
    explicit Source(const QString& home) : homeFolder(home), servers(home) {}

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

    void callHook(const QString& tsql);
    void callHook(const SqlParts& tsql);
    void setHook(std::function<void(const QString&)> hook);
    std::optional<QDateTime> clock() const;
    void setClock(std::optional<QDateTime> at);

    void enterGate(const QString& gate); ///< raises DataError when this thread is in it already
    void leaveGate(const QString& gate);
    bool insideGate(const QString& gate) const;

private:
    std::function<void(const QString&)> hook() const;

    mutable QMutex m_mutex;
    QHash<QString, QList<std::shared_ptr<PhysicalConnection>>> m_idle;
    std::function<void(const QString&)> m_hook;
    std::optional<QDateTime> m_clock;
    QSet<std::pair<QString, quintptr>> m_gates; ///< database and thread of each open transaction
};

} // namespace orvane
