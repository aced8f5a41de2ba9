#include "session/UserRole.h"

#include "session/RoleLog.h"

namespace orvane {

void UserRole::setRoleID(const QString& text) {
    const QString digits = text.trimmed();
    if (digits.isEmpty())
        return EmptyRoleID();
    bool isWhole = false;
    const qlonglong id = digits.toLongLong(&isWhole);
    if (!isWhole || digits.size() > 9)
        return InvalidRoleID();
    m_roleID = id;
}

void UserRole::setUsername(const QString& text) {
    const QString name = text.trimmed();
    if (name.isEmpty())
        return EmptyUsername();
    if (name.size() > 18)
        return InvalidUsername();
    m_username = name;
}

void UserRole::Submit() {
    try {
        Connection connection = m_program.openBilling();
        const Recordset existing(connection, Sql("SELECT * FROM UserRoles WHERE RoleID = ")
                                                 << m_roleID << " AND Username = '" << m_username << "'");
        if (!existing.eof())
            return RecordExists();
        connection.execute(Sql("INSERT INTO UserRoles(RoleID, Username) VALUES (")
                           << m_roleID << ", '" << m_username << "')");
        AllocationComplete();
    } catch (const DataError& fault) {
        logServerError(m_program, QStringLiteral("Submit"), fault);
    }
}

Recordset UserRole::LoadData() {
    return load(QStringLiteral("LoadData"), Sql("SELECT * FROM UserRoles"));
}

Recordset UserRole::LoadRoleID() {
    return load(QStringLiteral("LoadRoleID"), Sql("SELECT RoleID, LoginRole FROM Roles"));
}

Recordset UserRole::LoadUsername() {
    return load(QStringLiteral("LoadUsername"), Sql("SELECT Username FROM ApplicationUsers"));
}

Recordset UserRole::UserRoleMatch(const QString& id) {
    return load(QStringLiteral("UserRoleMatch"), Sql("select * from qryUserRole k WHERE k.RoleID = ")
                                                     << id.trimmed().toLongLong());
}

Recordset UserRole::load(const QString& operation, const Sql& sql) {
    try {
        Connection connection = m_program.openBilling();
        return Recordset(connection, sql);
    } catch (const DataError& fault) {
        logServerError(m_program, operation, fault);
        return {};
    }
}

} // namespace orvane
