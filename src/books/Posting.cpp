#include "books/Posting.h"

#include "data/words/Money.h"

namespace orvane {

namespace {

const QString connectionLost = "The connection to the database is lost. Nothing was posted. Please try again.";

int legCount(const QVector<LedgerEntry>& entries) {
    int count = 0;
    for (const LedgerEntry& entry : entries)
        count += int(entry.legs.size());
    return count;
}

double debits(const QVector<LedgerEntry>& entries) {
    double sum = 0;
    for (const LedgerEntry& entry : entries)
        for (const LedgerLeg& leg : entry.legs)
            sum = leg.amount > 0 ? round2(sum + leg.amount) : sum;
    return sum;
}

/// Gives why the legs may not stay.
std::optional<Refusal> write(Ledger& ledger, const QVector<LedgerEntry>& entries) {
    for (const LedgerEntry& entry : entries) {
        for (const LedgerLeg& leg : entry.legs)
            ledger.postToLedger(leg);
        if (entry.trail)
            ledger.addTrail(*entry.trail);
    }
    return imbalance(ledger);
}

} // namespace

LedgerDesk::LedgerDesk(const Desk& billing, DataSource& data, const QString& accountingConnectionString)
    : m_desk(billing), m_data(data), m_connectionString(accountingConnectionString) {}

QStringList LedgerDesk::settle() {
    Connection accounting = openAccounting();
    const Transaction gate(accounting); // no posting is under way while it is held
    return settleNotes(accounting);
}

QStringList LedgerDesk::settleNotes(Connection& accounting) {
    QStringList inLedger;
    Connection connection = m_desk.open();
    for (const PostingNote& note : openNotes(connection)) {
        if (!isPosted(accounting, note.tranID)) {
            drop(note);
            m_settled << QStringLiteral(
                             "A posting of %1 was cut off before the ledger: nothing of it is there, and its "
                             "records can be posted again.")
                             .arg(noteWords(note));
            continue;
        }
        finish("FINISH POSTING", {note, {}, 0});
        inLedger << note.tranID;
        m_settled << QStringLiteral(
                         "A posting of %1 was cut off behind the ledger, or is ending just now: it is in the "
                         "ledger, and its records are flagged as posted.")
                         .arg(noteWords(note));
    }
    return inLedger;
}

Given<int> LedgerDesk::post(const Posting& posting) {
    Connection accounting = openAccounting();
    Transaction transaction(accounting);
    settleNotes(accounting);
    if (posting.flagKnown)
        if (const QString flagged = posting.flagKnown(m_desk, accounting); !flagged.isEmpty())
            m_settled << flagged;
    Ledger ledger(accounting, m_desk.context());
    const Given<Noted> noted = note(ledger, posting);
    if (!noted)
        return noted.refusal();
    if (const std::optional<Refusal> refusal = write(ledger, noted->entries)) {
        transaction.rollback();
        drop(noted->note);
        return *refusal;
    }
    if (posting.trail)
        ledger.addTrail(*posting.trail);
    if (!commit(transaction, noted->note.tranID))
        finish(posting.action, *noted);
    return legCount(noted->entries);
}

Given<LedgerDesk::Noted> LedgerDesk::note(Ledger& ledger, const Posting& posting) {
    try {
        return savedNote(ledger, posting);
    } catch (const CommitUnknown& fault) {
        throw DataError(connectionLost, fault.statement()); // a note without its transaction is dropped
    }
}

Given<LedgerDesk::Noted> LedgerDesk::savedNote(Ledger& ledger, const Posting& posting) {
    return m_desk.save<Noted>(
        "NOTE POSTING",
        [&](Books& books) -> Given<Noted> {
            // A voucher is posted behind its payment, by whoever pays it.
            if (posting.note.kind != QLatin1String("EXPENSE"))
                if (const std::optional<Refusal> refusal = missingRight(books, "POST INVOICE"))
                    return *refusal;
            Noted noted{posting.note, {}, 0};
            ledger.fetchTranID();
            noted.note.tranID = ledger.tranID();
            const Given<QVector<LedgerEntry>> entries = posting.read(books, noted.note);
            if (!entries)
                return entries.refusal();
            noted.entries = *entries;
            noted.amount = debits(*entries);
            addNote(books, noted.note);
            books.note({"POSTING", noted.note.tranID, 1, noted.amount});
            books.record(noted.note.tranID, noted.amount);
            return noted;
        });
}

void LedgerDesk::drop(const PostingNote& note) {
    m_desk.save<Saved>(
        "DROP POSTING",
        [&](Books& books) -> Given<Saved> {
            releaseSources(books, note);
            strikeNote(books, note.tranID);
            books.note({"POSTING", note.tranID, -1, 0});
            books.record(note.tranID, 0);
            return Saved{};
        });
}

void LedgerDesk::finish(const QString& action, const Noted& noted) {
    m_desk.save<Saved>(
        action,
        [&](Books& books) -> Given<Saved> {
            flagPosted(books, noted.note);
            strikeNote(books, noted.note.tranID);
            books.record(noted.note.tranID, noted.amount);
            return Saved{};
        });
}

bool LedgerDesk::commit(Transaction& transaction, const QString& tranID) {
    try {
        transaction.commit();
        return false;
    } catch (const CommitUnknown& fault) {
        Connection accounting = openAccounting();
        const Transaction gate(accounting); // had when the lost transaction has ended
        const QStringList settled = settleNotes(accounting);
        if (!isPosted(accounting, tranID))
            throw DataError(connectionLost, fault.statement());
        return settled.contains(tranID);
    }
}

} // namespace orvane
