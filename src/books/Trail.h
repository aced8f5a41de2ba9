#pragma once

#include "books/Books.h"

namespace orvane {

/// A log-on, or a log-off, of the user of the books.
struct Activity {
    QDateTime at; ///< the server's
    bool isLogout = false, autoLogoff = false;
    QString remarks; ///< the module
};

// The trails record nothing for SavedActions: they are no saves of their user, and one that is lost is not asked for.

/// Adds the row of a session and gives its number.
qlonglong openUserActivity(Books& books, const Activity& activity);
/// Closes the row; one that is gone stays gone.
void closeUserActivity(Books& books, qlonglong sno, const Activity& activity);

/// Add the row of one attempt to log on under this name, `at` the workstation's time.
void trailLogonSuccess(Books& books, const QString& loginName, const QDateTime& at);
void trailLogonFailure(Books& books, const QString& loginName, const QDateTime& at);

} // namespace orvane
