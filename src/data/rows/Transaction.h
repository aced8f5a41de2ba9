#pragma once

#include "data/rows/Connection.h"

namespace orvane {

/// What a transaction saves, for the row of SavedActions by which its commit can be looked up.
struct SavedAction {
    QString user = {}, workstation = {}, action = {}, document = {};
    double amount = 0; ///< naira
};

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
    /// Writes the row of SavedActions under a fresh token, its texts cut to their columns, and commits. When the
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
