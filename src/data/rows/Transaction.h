#pragma once

#include "data/rows/Connection.h"

namespace orvane {

/// What a save leaves of itself in SavedActions, by which it is found when its commit was not answered.
struct SavedAction {
    QString user, workstation, action, document;
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
    /// fails. When the connection breaks during the commit, a new one asks whether it came through: then this returns
    /// as ever, else it raises DataError, and CommitUnknown when the database cannot be asked for some seconds.
    void commit();
    void commit(const SavedAction&) { commit(); }
    void rollback(); ///< does nothing after commit or rollback

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace orvane
