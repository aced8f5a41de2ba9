#include "session/Role.h"

#include "books/User.h"
#include "session/RoleLog.h"

namespace orvane {

void Role::setRoleID(const QString& text) {
    const QString digits = text.trimmed();
    bool isWhole = false;
    const qlonglong id = digits.toLongLong(&isWhole);
    if (!isWhole || digits.size() > 8) {
        if (onRefused)
            onRefused();
        return;
    }
    m_roleID = id;
}

void Role::setRoleName(const QString& text) {
    const QString name = text.trimmed();
    if (name.isEmpty() || name.size() > 18) {
        if (onRefused)
            onRefused();
        return;
    }
    m_roleName = name;
}

void Role::Submit() {
    const qlonglong id = m_roleID;
    run("Submit", id, "Successfully created a new Role  %1",
        [&](Books& books) { return addRole(books, id, m_roleName); });
}

void Role::Delete(qlonglong id) {
    run(
        "Delete", id, "Successfully deleted the Role for %1", [&](Books& books) { return deleteRole(books, id); });
}

void Role::run(const QString& operation, qlonglong id, const QString& done,
               const std::function<Given<Saved>(Books&)>& step) {
    try {
        const Given<Saved> given = m_program.desk().save<Saved>("ROLE " + operation, step);
        QString message = given ? done : refusalText(given.refusal());
        logUserActivity(m_program, message.replace("%1", QString::number(id)), m_program.session.gFullName);
    } catch (const DataError& fault) {
        logServerError(m_program, operation, fault);
    }
}

Recordset Role::DisplayData() {
    try {
        Connection connection = m_program.openBilling();
        return Recordset(connection, Sql("SELECT * FROM Roles"));
    } catch (const DataError& fault) {
        logServerError(m_program, "DisplayData", fault);
        return {};
    }
}

} // namespace orvane
