#pragma once

#include "data/rows/Connection.h"

namespace orvane {

/// What a transaction added to the rows of one kind of money, or took from them, for SavedParts.
struct SavedPart {
    QString kind;      ///< "RECEIPT", "BILL", "LINE", "DISCOUNT" or "POSTING"
    QString document;  ///< the number of the receipt, the bill, or the ledger's transaction
    int counted = 0;   ///< rows, minus those that it took away
    double amount = 0; ///< naira
};

/// What a transaction saves, for the row of SavedActions by which its commit can be looked up.
struct SavedAction {
    QString user = {}, workstation = {}, action = {}, document = {};
    double amount = 0;  ///< naira
    QString token = {}; ///< empty: a fresh one
    int trailRows = 0;  ///< how many rows of the audit trail name the token
    QVector<SavedPart> parts = {};
};

/// A token that nobody else has drawn.
QString freshToken();
/// One row of SavedParts.
Sql partStatement(const QString& token, const SavedPart& part);

/// One transaction on a connection, rolled back unless committed; the destructor never throws; nesting is asserted
/// against. It begins by taking the one money gate of the database, so that "read the last number or balance, then add
/// a row" of two workstations cannot interleave. Never show a box while one is open.
class Transaction {
public:
    explicit Transaction(Connection& connection); ///< raises DataError when the gate is not had within 60 seconds
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Raises DataError when a statement of this transaction failed before (it is then rolled back), or when the commit
    /// fails. When the connection breaks during the commit it raises CommitUnknown, whose ticket nobody can look up:
    /// for work that nobody has to look up.
    void commit();
    /// Writes the row of SavedActions with its parts, its texts cut to their columns, and commits. When the
    /// connection breaks during the commit, a new one asks for the token: where it is found this returns as ever, where
    /// it will never be there it raises DataError, and CommitUnknown when that cannot be learnt within some seconds.
    void commit(const SavedAction& action);
    void rollback(); ///< does nothing after commit or rollback

private:
    void end(const QString& token);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace orvane
