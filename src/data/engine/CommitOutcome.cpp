// The commit of a transaction, and what became of it when its answer was lost.
#include "data/engine/Faults.h"
#include "data/engine/Physical.h"
#include "data/engine/Source.h"

#include <QElapsedTimer>
#include <QThread>

namespace orvane {

namespace {

constexpr int kTries = 4;
constexpr int kLongestTry = 3000; ///< milliseconds: a server that does not answer at all is tried once

QString unknownText(const QString& words) {
    return QStringLiteral("The connection to the database broke while this was being saved. It is not known whether it "
                          "was saved: please look it up before you enter it again.\n(%1)")
        .arg(words);
}

} // namespace

void PhysicalConnection::commit(const QString& token) {
    const CommitTicket ticket = {connectionString, token};
    if (poisoned) {
        rollback();
        throw DataError("An earlier statement of this transaction failed. Nothing of it is saved.");
    }
    try {
        source->callHook("commit transaction");
    } catch (...) {
        rollback();
        throw;
    }
    QSqlQuery query(database);
    const QString text = engine == Engine::SqlServer ? "commit transaction" : "commit";
    if (hasEngineTransaction() && !query.exec(text)) {
        settleCommit(query.lastError(), ticket);
        return;
    }
    endTransaction();
    try {
        source->callHook("transaction committed");
    } catch (const DataError& fault) {
        throw CommitUnknown(unknownText(fault.description()), fault.statement(), ticket);
    }
}

/// A commit that the engine refuses is undone. One whose answer was lost may have come through: nobody is told that it
/// has not, and nobody enters it again, before the engine has said so.
void PhysicalConnection::settleCommit(const QSqlError& error, const CommitTicket& ticket) {
    const QString text = "commit";
    const bool lost = !database.isOpen() || endsConnection(error);
    broken = broken || lost;
    rollback();
    if (!lost)
        throw DataError(faultText(engine, error, false, true), text, error.nativeErrorCode());
    switch (source->outcomeSoon(ticket)) {
    case CommitOutcome::Saved:
        return;
    case CommitOutcome::NotSaved:
        throw DataError(faultText(engine, error, true, true), text, error.nativeErrorCode());
    case CommitOutcome::Unknown:
        throw CommitUnknown(unknownText(engineWords(error)), text, ticket);
    }
}

CommitOutcome Source::outcomeSoon(const CommitTicket& ticket) {
    QElapsedTimer time;
    time.start();
    for (int attempt = 1;; ++attempt) {
        const CommitOutcome outcome = outcomeOf(ticket);
        if (outcome != CommitOutcome::Unknown || ticket.token.isEmpty() || attempt == kTries ||
            time.elapsed() > kLongestTry)
            return outcome;
        QThread::msleep(static_cast<unsigned long>(outcomePause.load()));
    }
}

CommitOutcome Source::outcomeOf(const CommitTicket& ticket) {
    if (ticket.token.isEmpty())
        return CommitOutcome::Unknown;
    try {
        callHook("outcome of commit");
        const std::shared_ptr<PhysicalConnection> physical = take(ticket.connectionString);
        const bool saved = physical->hasSaved(ticket.token);
        giveBack(physical);
        return saved ? CommitOutcome::Saved : CommitOutcome::NotSaved;
    } catch (const DataError&) {
        return CommitOutcome::Unknown;
    }
}

/// A server may still be busy with the commit, or not have noticed that its workstation is gone. The transaction holds
/// the money gate until it has ended: only inside the gate a missing row means that it will never be there. The
/// embedded engine is in this process and has ended it.
bool PhysicalConnection::hasSaved(const QString& token) {
    const bool hasServer = engine != Engine::Sqlite;
    if (hasServer)
        enterGate(std::min(kLongestTry, source->lockWait.load()));
    QSqlQuery row = sendNative(QStringLiteral("select token from SavedActions where token='%1'").arg(token));
    const bool saved = row.next();
    requireAllRead(row.lastError(), row.lastQuery());
    row.finish();
    if (hasServer)
        sendNative("rollback");
    return saved;
}

} // namespace orvane
