#include "books/Trail.h"

namespace orvane {

namespace {

void setOutcome(Recordset& row, const Activity& activity) {
    row.set("islogout", int(activity.isLogout));
    if (activity.isLogout) {
        row.set("LogoutDate", activity.at.date());
        row.set("LogoutTime", activity.at.toString("HH:mm"));
    }
    row.set("AutoLogoff", int(activity.autoLogoff));
    row.set("Remarks", activity.remarks);
}

void addLoginTrail(Books& books, const QString& loginName, const QString& action, const QDateTime& at) {
    Recordset trail(books.connection, Sql("select * from LoginTrail where 1=2"));
    // The columns behind the key are known by their places only.
    const QStringList columns = trail.columns();
    trail.addNew();
    trail.set(columns.at(1), loginName);
    trail.set(columns.at(2), action);
    trail.set(columns.at(3), at.date());
    trail.set(columns.at(4), at.toString("HH:mm:ss"));
    trail.update();
}

} // namespace

qlonglong openUserActivity(Books& books, const Activity& activity) {
    Recordset row(books.connection, Sql("select * from UserActivities where 1=2"));
    row.addNew();
    row.set("username", books.actor().user);
    row.set("LoginDate", activity.at.date());
    row.set("LoginTime", activity.at.toString("HH:mm"));
    setOutcome(row, activity);
    row.update();
    return Recordset(books.connection, Sql("select top 1 SNO from UserActivities order by SNO desc")).integer("SNo");
}

void closeUserActivity(Books& books, qlonglong sno, const Activity& activity) {
    Recordset row(books.connection, Sql("select * from UserActivities where SNO=") << sno);
    if (row.eof())
        return;
    setOutcome(row, activity);
    row.update();
}

void trailLogonSuccess(Books& books, const QString& loginName, const QDateTime& at) {
    addLoginTrail(books, loginName, "Successful Logon", at);
}

void trailLogonFailure(Books& books, const QString& loginName, const QDateTime& at) {
    addLoginTrail(books, loginName, "Failed Logon", at);
}

} // namespace orvane
