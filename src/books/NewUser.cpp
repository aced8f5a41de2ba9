#include "books/NewUser.h"

#include "books/ToolContext.h"
#include "books/User.h"
#include "data/rows/Transaction.h"
#include "data/words/Scramble.h"

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

/// The role of this name, which is made where the hospital has none.
qlonglong roleID(Books& books, const QString& role) {
    const Recordset found(books.connection, Sql("select RoleID from Roles where LoginRole='") << role << "'");
    if (!found.eof())
        return found.integer("RoleID");
    const qlonglong id = Recordset(books.connection, Sql("select max(RoleID) as ID from Roles")).integer("ID") + 1;
    ORVANE_ASSERT(addRole(books, id, role));
    return id;
}

} // namespace

void admitUser(Books& books, const NewUser& user) {
    checkUser(user);
    const Given<Saved> added = addUser(books, {.name = user.name,
                                               .fullName = user.fullName,
                                               .password = storedPassword(user.password),
                                               .status = "Enabled",
                                               .branch = user.branch,
                                               .empID = user.employeeID});
    if (!added)
        throw DataError(QStringLiteral("The user name \"%1\" is taken.").arg(user.name));
    for (const QString& role : user.roles)
        ORVANE_ASSERT(allotRole(books, roleID(books, role), user.name));
    if (user.accounts)
        books.connection.execute(Sql("insert into UsersForAccts (username) values ('") << user.name << "')");
}

void admitUser(Connection& billing, const NewUser& user) {
    const BookContext tool = toolContext(billing);
    Transaction transaction(billing);
    Books books(billing, tool);
    admitUser(books, user);
    transaction.commit(*books.savedAction("USER ADD"));
}

} // namespace orvane
