#include "session/Role.h"

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
    try {
        Connection connection = m_program.openBilling();
        const Recordset existing(connection, Sql("SELECT * FROM Roles WHERE RoleID = '") << m_roleID << "'");
        if (!existing.eof()) {
            log(QStringLiteral("Attempted creating a RoleID %1 that already exists.").arg(m_roleID));
            return;
        }
        connection.execute(Sql("INSERT INTO Roles (RoleID, LoginRole) VALUES (")
                           << m_roleID << ", '" << m_roleName << "')");
        log(QStringLiteral("Successfully created a new Role  %1").arg(m_roleID));
    } catch (const DataError& fault) {
        logServerError(m_program, "Submit", fault);
    }
}

void Role::Delete(qlonglong id) {
    try {
        Connection connection = m_program.openBilling();
        const Recordset role(connection, Sql("SELECT * FROM Roles WHERE RoleID = ") << id);
        if (role.eof()) {
            log("Attempted to delete a non existing Role ");
            return;
        }
        const Recordset holders(connection, Sql("SELECT * FROM UserRoles WHERE RoleID = ") << id);
        if (!holders.eof()) {
            log(QStringLiteral("Attempted deleting the Role for %1 that would lead to orphan User Accounts.").arg(id));
            return;
        }
        connection.execute(Sql("DELETE FROM Roles WHERE RoleID = '") << id << "'");
        log(QStringLiteral("Successfully deleted the Role for %1").arg(id));
    } catch (const DataError& fault) {
        logServerError(m_program, "Delete", fault);
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

void Role::log(const QString& message) {
    logUserActivity(m_program, message, m_program.session.gFullName);
}

} // namespace orvane
