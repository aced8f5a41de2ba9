#include "session/UserRole.h"

#include "books/User.h"
#include "session/RoleLog.h"

namespace orvane {

bool UserRole::setRoleID(const QString& text) {
    const QString digits = text.trimmed();
    if (digits.isEmpty()) {
        EmptyRoleID();
        return false;
    }
    bool isWhole = false;
    const qlonglong id = digits.toLongLong(&isWhole);
    if (!isWhole || digits.size() > 9) {
        InvalidRoleID();
        return false;
    }
    m_roleID = id;
    return true;
}

bool UserRole::setUsername(const QString& text) {
    const QString name = text.trimmed();
    if (name.isEmpty()) {
        EmptyUsername();
        return false;
    }
    if (name.size() > 18) {
        InvalidUsername();
        return false;
    }
    m_username = name;
    return true;
}

void UserRole::Submit() {
    try {
        const Given<Saved> given = m_program.desk().save<Saved>(
            "ROLE ALLOTMENT", [this](Books& books) { return allotRole(books, m_roleID, m_username); });
        given ? AllocationComplete() : RecordExists();
    } catch (const DataError& fault) {
        logServerError(m_program, "Submit", fault);
    }
}

Recordset UserRole::LoadData() {
    return load("LoadData", Sql("SELECT * FROM UserRoles"));
}

Recordset UserRole::LoadRoleID() {
    return load("LoadRoleID", Sql("SELECT RoleID, LoginRole FROM Roles"));
}

Recordset UserRole::LoadUsername() {
    return load("LoadUsername", Sql("SELECT Username FROM ApplicationUsers"));
}

Recordset UserRole::UserRoleMatch(const QString& id) {
    QString digits;
    for (const QChar character : id.trimmed()) {
        if (!character.isDigit())
            break;
        digits += character;
    }
    return load("UserRoleMatch", Sql("select * from qryUserRole k WHERE k.RoleID = ") << digits.toLongLong());
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
