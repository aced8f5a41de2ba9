#include "session/Users.h"

#include "data/rows/Recordset.h"
#include "data/rows/Transaction.h"
#include "session/Scramble.h"

namespace orvane {

namespace {

constexpr int longestRoleName = 18; // as the role screen takes it

void checkUser(const NewUser& user) {
    if (user.name.trimmed().isEmpty())
        throw DataError("A user needs a name.");
    if (user.name != user.name.trimmed())
        throw DataError(QStringLiteral("The user name \"%1\" begins or ends with a blank.").arg(user.name));
    for (const QString& role : user.roles)
        if (role.trimmed().isEmpty() || role.size() > longestRoleName)
            throw DataError(QStringLiteral("A role's name has 1 to %1 characters.").arg(longestRoleName));
}

/// The password as the login screen compares it.
QString storedPassword(const QString& password) {
    QString stored;
    for (const QChar character : password) {
        const std::optional<QChar> scrambled = scrambledCharacter(character);
        if (!scrambled)
            throw DataError("A password holds letters, digits and signs of the plain alphabet, no blanks.");
        stored += *scrambled;
    }
    return stored;
}

qlonglong roleID(Connection& billing, const QString& role) {
    Recordset found(billing, Sql("select RoleID from Roles where LoginRole='") << role << "'");
    if (!found.eof())
        return found.integer("RoleID");
    const Recordset last(billing, Sql("select max(RoleID) as ID from Roles"));
    const qlonglong id = last.integer("ID") + 1;
    Recordset roles(billing, Sql("select * from Roles where 1=2"));
    roles.addNew();
    roles.set("RoleID", id);
    roles.set("LoginRole", role);
    roles.update();
    return id;
}

} // namespace

void addUser(Connection& billing, const NewUser& user) {
    checkUser(user);
    Transaction transaction(billing);
    const Recordset taken(billing, Sql("select Username from ApplicationUsers where Username='") << user.name << "'");
    if (!taken.eof())
        throw DataError(QStringLiteral("The user name \"%1\" is taken.").arg(user.name));
    Recordset users(billing, Sql("select * from ApplicationUsers where 1=2"));
    users.addNew();
    users.set("Username", user.name);
    users.set("Fullname", user.fullName);
    users.set("Password", storedPassword(user.password));
    users.set("AccountStatus", "Enabled");
    users.set("BranchCode", user.branch);
    users.set("EmpID", user.employeeID);
    users.update();
    Recordset held(billing, Sql("select * from UserRoles where 1=2"));
    for (const QString& role : user.roles) {
        const qlonglong id = roleID(billing, role);
        held.addNew();
        held.set("RoleID", id);
        held.set("Username", user.name);
        held.update();
    }
    if (user.accounts) {
        Recordset allowed(billing, Sql("select * from UsersForAccts where 1=2"));
        allowed.addNew();
        allowed.set("username", user.name);
        allowed.update();
    }
    transaction.commit();
}

} // namespace orvane
