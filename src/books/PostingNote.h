#pragma once

#include "books/Books.h"

namespace orvane {

/// What a posting takes from the billing database and flags there as posted: a row of PostingNotes.
struct PostingNote {
    QString kind;            ///< as in the ledger's trail; what is flagged follows from it
    QString source = {};     ///< the voucher; empty where days stand
    QDate firstDay, lastDay; ///< of its sources
    QString tranID = {};
    qlonglong lastDetail = 0, lastType = 0, lastReceipt = 0; ///< the newest rows that it has read
};

void addNote(Books& books, const PostingNote& note);
void strikeNote(Books& books, const QString& tranID);
/// Of postings under way, and those that were cut off.
QVector<PostingNote> openNotes(Connection& billing);
/// Whether a posting that is not settled yet has read receipts of these days: what it has read may not change.
bool isBeingPosted(Connection& billing, const QString& kind, QDate first, QDate last);
/// "the receipts of 01/03/2026 to 05/03/2026 (transaction 17)".
QString noteWords(const PostingNote& note);

/// Gives back what the note's posting had marked as its own before the ledger committed, which it never did.
void releaseSources(Books& books, const PostingNote& note);
/// Flags as posted in billing what the note names and its posting had read.
void flagPosted(Books& books, const PostingNote& note);

} // namespace orvane
