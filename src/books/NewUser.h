#pragma once

#include "books/Books.h"

#include <QStringList>

namespace orvane {

/// A user as the administrator's tool makes one, with his roles at once.
struct NewUser {
    QString name;
    QString fullName;
    QString employeeID;
    QString password; ///< as typed; empty: the login screen admits nobody under this name
    QString branch;
    QStringList roles;     ///< made when the hospital has none of that name
    bool accounts = false; ///< may open the Accounts menu
};

/// Adds an enabled user with his roles. Raises DataError when the name is taken or empty, a role's name is longer than
/// the screens take, or the password holds a character that cannot be stored.
void admitUser(Books& books, const NewUser& user);

/// The same in a transaction of its own, for the tools, which work before anybody has signed in.
void admitUser(Connection& billing, const NewUser& user);

} // namespace orvane
