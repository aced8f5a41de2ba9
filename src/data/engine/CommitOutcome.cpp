// The commit of a transaction, and what became of it when its answer was lost.
#include "data/engine/Faults.h"
#include "data/engine/Physical.h"

#include <QElapsedTimer>
#include <QThread>

namespace orvane {

namespace {

constexpr int kTries = 4;
constexpr qint64 kLongestTry = 3000; ///< milliseconds: a server that does not answer at all is tried once

QString unknownText(const QString& words) {
    return QStringLiteral("The connection to the database broke while this was being saved. It is not known whether it "
                          "was saved: please look it up before you enter it again.\n(%1)")
        .arg(words);
}

} // namespace

CommitTicket PhysicalConnection::ticket() const {
    return {connectionString, transaction};
}

void PhysicalConnection::commit() {
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
        settleCommit(query.lastError());
        return;
    }
    endTransaction();
    try {
        source->callHook("transaction committed");
    } catch (const DataError& fault) {
        throw CommitUnknown(unknownText(fault.description()), fault.statement(), ticket());
    }
}

/// A commit that the engine refuses is undone. One whose answer was lost may have come through: nobody is told that it
/// has not, and nobody enters it again, before the engine has said so.
void PhysicalConnection::settleCommit(const QSqlError& error) {
    const QString text = "commit";
    const bool lost = !database.isOpen() || endsConnection(error);
    broken = broken || lost;
    rollback();
    if (!lost)
        throw DataError(faultText(engine, error, false, true), text, error.nativeErrorCode());
    switch (source->outcomeSoon(ticket())) {
    case CommitOutcome::Saved:
        return;
    case CommitOutcome::NotSaved:
        throw DataError(faultText(engine, error, true, true), text, error.nativeErrorCode());
    case CommitOutcome::Unknown:
        throw CommitUnknown(unknownText(engineWords(error)), text, ticket());
    }
}

CommitOutcome DataSource::Private::outcomeSoon(const CommitTicket& ticket) {
    QElapsedTimer time;
    time.start();
    for (int attempt = 1;; ++attempt) {
        const CommitOutcome outcome = outcomeOf(ticket);
        if (outcome != CommitOutcome::Unknown || attempt == kTries || time.elapsed() > kLongestTry)
            return outcome;
        QThread::msleep(static_cast<unsigned long>(outcomePause.load()));
    }
}

CommitOutcome DataSource::Private::outcomeOf(const CommitTicket& ticket) {
    try {
        callHook("outcome of commit");
        const std::shared_ptr<PhysicalConnection> physical = take(ticket.connectionString);
        QString said;
        if (physical->engine == Engine::Postgresql) {
            QSqlQuery status = physical->sendNative(QStringLiteral("select txid_status(%1)").arg(ticket.transaction));
            said = status.next() ? status.value(0).toString() : QString();
        } else if (physical->engine == Engine::Sqlite) {
            // The engine is in this process and answers every commit: the answer was lost behind it.
            said = "committed";
        }
        giveBack(physical);
        return said == "committed" ? CommitOutcome::Saved
               : said == "aborted" ? CommitOutcome::NotSaved
                                   : CommitOutcome::Unknown;
    } catch (const DataError&) {
        return CommitOutcome::Unknown;
    }
}

CommitOutcome DataSource::outcomeOf(const CommitTicket& ticket) {
    return d->outcomeOf(ticket);
}

} // namespace orvane
