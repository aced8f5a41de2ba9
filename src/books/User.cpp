#include "books/User.h"

namespace orvane {

Given<Saved> addUser(Books& books, const User& user) {
    Recordset account(
        books.connection,
        Sql("SELECT Username, Fullname, Password, AccountStatus, BranchCode FROM ApplicationUsers WHERE Username = '")
            << user.name << "'");
    if (!account.eof())
        return Refusal::UserNameTaken;
    account.addNew();
    account.set("Username", user.name);
    account.set("Fullname", user.fullName);
    // Null equals nothing that is typed, so that nobody signs in without a password.
    account.set("Password", nullIfEmpty(user.password));
    account.set("AccountStatus", user.status);
    account.set("BranchCode", user.branch);
    account.update();
    if (!user.empID.isEmpty())
        books.connection.execute(Sql("update ApplicationUsers set EmpID='")
                                 << user.empID << "' where Username = '" << user.name << "'");
    books.audit({"Add User: " + user.name, user.name, {}});
    books.record(user.name, 0);
    return Saved{};
}

Given<Saved> changeAccountStatus(Books& books, const QString& name, const QString& status) {
    Recordset account(books.connection, Sql("SELECT Username, AccountStatus FROM ApplicationUsers WHERE Username = '")
                                            << name << "' ");
    if (account.eof())
        return Refusal::UnknownUser;
    account.set("AccountStatus", status);
    account.update();
    books.audit({"Account " + status + ": " + name, name, {}});
    books.record(name, 0);
    return Saved{};
}

Given<Saved> changePassword(Books& books, const QString& name, const QString& oldPassword, const QString& newPassword) {
    const Recordset account(books.connection, Sql("SELECT Username, Password FROM ApplicationUsers WHERE Username = '")
                                                  << name << "' AND Password = '" << oldPassword << "' ");
    if (account.eof())
        return Refusal::UnknownUser;
    books.connection.execute(Sql("UPDATE ApplicationUsers SET Password = '")
                             << newPassword << "' where Username = '" << name << "'");
    books.audit({"Change Password: " + name, name, {}});
    books.record(name, 0);
    return Saved{};
}

Given<Saved> addRole(Books& books, qlonglong id, const QString& name) {
    if (!Recordset(books.connection, Sql("SELECT * FROM Roles WHERE RoleID = '") << id << "'").eof())
        return Refusal::RoleExists;
    books.connection.execute(Sql("INSERT INTO Roles (RoleID, LoginRole) VALUES (") << id << ", '" << name << "')");
    books.audit({"Add Role: " + name, QString::number(id), {}});
    books.record(QString::number(id), 0);
    return Saved{};
}

Given<Saved> deleteRole(Books& books, qlonglong id) {
    if (Recordset(books.connection, Sql("SELECT * FROM Roles WHERE RoleID = ") << id).eof())
        return Refusal::NoRole;
    if (!Recordset(books.connection, Sql("SELECT * FROM UserRoles WHERE RoleID = ") << id).eof())
        return Refusal::RoleIsHeld;
    books.connection.execute(Sql("DELETE FROM Roles WHERE RoleID = '") << id << "'");
    books.audit({"Delete Role: " + QString::number(id), QString::number(id), {}});
    books.record(QString::number(id), 0);
    return Saved{};
}

Given<Saved> allotRole(Books& books, qlonglong id, const QString& userName) {
    const Recordset held(books.connection, Sql("SELECT * FROM UserRoles WHERE RoleID = ")
                                               << id << " AND Username = '" << userName << "'");
    if (!held.eof())
        return Refusal::RoleAllotted;
    books.connection.execute(Sql("INSERT INTO UserRoles(RoleID, Username) VALUES (")
                             << id << ", '" << userName << "')");
    books.audit({"Allot Role " + QString::number(id) + " to: " + userName, userName, {}});
    books.record(userName, 0);
    return Saved{};
}

bool holdsRole(Books& books, const QString& role) {
    return !Recordset(books.connection, Sql("select username from vwUsers where loginRole='")
                                            << role
                                            << "' and isnull(AccountStatus, '') in ('Enabled', '') and username='"
                                            << books.actor().user << "'")
                .eof();
}

} // namespace orvane
