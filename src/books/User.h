#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// An account of the application.
struct User {
    QString name, fullName;
    QString password; ///< as it was typed: the log-on compares the scrambled form, which is given by other means
    QString status;   ///< "Enabled" or "Disabled"
    QString branch;
    QString empID = {}; ///< his number among the employees
};

/// Refuses a name that somebody bears: no account is ever changed by this.
Given<Saved> addUser(Books& books, const User& user);
/// `status`: "Enabled" or "Disabled". Refuses a name that nobody bears.
Given<Saved> changeAccountStatus(Books& books, const QString& name, const QString& status);
/// Stores the new password as it was typed. Refuses a name that does not go with the old one.
Given<Saved> changePassword(Books& books, const QString& name, const QString& oldPassword, const QString& newPassword);

/// Whether the user of the books has an account in use with this role, as the database says now: asked inside the
/// transaction that needs the right, since it may have been taken away while a screen was open.
bool holdsRole(Books& books, const QString& role);

/// Refuses an id that is in use.
Given<Saved> addRole(Books& books, qlonglong id, const QString& name);
/// Refuses a role that does not exist, and one that users hold.
Given<Saved> deleteRole(Books& books, qlonglong id);
/// Refuses a user who holds the role already.
Given<Saved> allotRole(Books& books, qlonglong id, const QString& userName);

} // namespace orvane
