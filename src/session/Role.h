#pragma once

#include "session/Program.h"

namespace orvane {

/// One role and its database work. A refused value leaves the property as it was; a refused Submit or Delete is told in
/// the text log only, never on the screen; a fault of the database goes to the error log.
class Role {
public:
    explicit Role(Program& program) : m_program(program) {}

    std::function<void()> onRefused; ///< a property was given an empty value or too long a one

    qlonglong RoleID() const { return m_roleID; }
    void setRoleID(const QString& text); ///< a whole number of at most 8 digits
    const QString& RoleName() const { return m_roleName; }
    void setRoleName(const QString& text); ///< at most 18 characters

    void Submit();
    void Delete(qlonglong id);
    Recordset DisplayData(); ///< all roles

private:
    /// Saves and logs what came of it; "%1" in `done` stands for the id.
    void run(const QString& operation, qlonglong id, const QString& done,
             const std::function<Given<Saved>(Books&)>& step);

    Program& m_program;
    qlonglong m_roleID = 0;
    QString m_roleName;
};

} // namespace orvane
