#pragma once

#include "data/rows/Connection.h"

#include <QStringList>

namespace orvane {

struct NewUser {
    QString name;
    QString fullName;
    QString employeeID;
    QString password; ///< as typed; empty: the login screen admits nobody under this name
    QString branch;
    QStringList roles;     ///< made when the hospital has none of that name
    bool accounts = false; ///< may open the Accounts menu
};

/// Adds an enabled user with roles to the hospital, in one transaction. Raises DataError, and adds nothing, when the
/// name is taken or empty, a role's name is longer than the screens take, or the password holds a character that cannot
/// be stored.
void addUser(Connection& billing, const NewUser& user);

} // namespace orvane
