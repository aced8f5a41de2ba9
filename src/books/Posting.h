#pragma once

#include "books/Desk.h"
#include "books/Ledger.h"
#include "books/PostingNote.h"
#include "data/rows/Transaction.h"

namespace orvane {

/// Legs that follow one another, and the trail of them, where they have their own.
struct LedgerEntry {
    QVector<LedgerLeg> legs;
    std::optional<LedgerTrail> trail = {};
};

/// One transaction of the ledger, as its screen wants it.
struct Posting {
    QString action; ///< its name in SavedActions
    PostingNote note;
    /// What is posted, read behind the gate; refuses where there is nothing. Completes the note, which bears the
    /// transaction's id by then.
    std::function<Given<QVector<LedgerEntry>>(Books&, PostingNote&)> read;
    std::optional<LedgerTrail> trail = {}; ///< of the whole, once it balances
    /// Flags what the ledger has of it already, so that `read` does not find it, and says so in a sentence; empty:
    /// there is nothing of it. Runs behind the gate of the accounting database.
    std::function<QString(const Desk& billing, Connection& accounting)> flagKnown = {};
};

/// Where both databases are opened for a posting. No transaction holds both: what is about to be flagged is noted in
/// billing, then the ledger commits, then billing flags it and strikes the note. A note that is left over says what was
/// cut off, and whoever posts next finishes it where the ledger has it, and drops it where it has not. The gate of the
/// accounting database is taken first and held until the ledger has committed, so that there is one posting at a time.
class LedgerDesk {
public:
    LedgerDesk(const Desk& billing, DataSource& data, const QString& accountingConnectionString);

    /// Gives the number of legs. Refuses what the posting has nothing for, and legs that do not make exactly 0
    /// (NoLegPosted, NotBalanced); then nothing is posted or flagged. Raises DataError; a fault behind the ledger's
    /// commit leaves the note for the next posting.
    Given<int> post(const Posting& posting);

    /// Finishes or drops what earlier postings left over. Gives the transactions that are in the ledger.
    QStringList settle();
    /// The same for who holds the gate of the accounting database, in a transaction of this connection.
    QStringList settleNotes(Connection& accounting);
    /// What was settled, a sentence each; once.
    QStringList takeSettled() { return std::exchange(m_settled, {}); }

    const Desk& billing() const { return m_desk; }
    Connection openAccounting() const { return m_data.open(m_connectionString); }
    /// Commits the transaction that bears the id. Where the answer is lost the ledger is asked, once it is free: raises
    /// DataError when it has nothing of it, or cannot be asked. Gives whether it settled the note meanwhile.
    bool commit(Transaction& transaction, const QString& tranID);

private:
    struct Noted {
        PostingNote note;
        QVector<LedgerEntry> entries;
        double amount = 0; ///< of the debits, naira
    };
    Given<Noted> note(Ledger& ledger, const Posting& posting);
    Given<Noted> savedNote(Ledger& ledger, const Posting& posting);
    void drop(const PostingNote& note);
    void finish(const QString& action, const Noted& noted);

    const Desk m_desk;
    DataSource& m_data;
    QString m_connectionString;
    QStringList m_settled;
};

} // namespace orvane
