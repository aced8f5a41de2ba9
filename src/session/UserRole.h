#pragma once

#include "session/Program.h"

namespace orvane {

/// One allotment of a user to a role and its database work. It tells its outcomes by events; a fault goes to the error
/// log.
class UserRole {
public:
    explicit UserRole(Program& program) : m_program(program) {}

    std::function<void()> EmptyRoleID, InvalidRoleID, EmptyUsername, InvalidUsername, AllocationComplete, RecordExists;

    qlonglong RoleID() const { return m_roleID; }
    /// A whole number of at most 9 digits. A refused value raises its event, gives false and leaves the property.
    bool setRoleID(const QString& text);
    const QString& username() const { return m_username; }
    bool setUsername(const QString& text); ///< at most 18 characters; refused likewise

    void Submit();
    Recordset LoadData();
    Recordset LoadRoleID();
    Recordset LoadUsername();
    Recordset UserRoleMatch(
        const QString& id); ///< the users of one role; `id` is the head of a tree node, whose first digits count

private:
    Recordset load(const QString& operation, const Sql& sql);

    Program& m_program;
    qlonglong m_roleID = 0;
    QString m_username;
};

} // namespace orvane
