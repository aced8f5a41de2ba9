#include "session/frmRole.h"

namespace orvane {

frmRole::frmRole(Program& owner)
    : Screen(owner, QStringLiteral("frmRole"), QStringLiteral("Role Creation")), m_role(owner) {
    m_role.onRefused = [this] { narrate(QStringLiteral("The value is empty or too long and was not taken.")); };
    txtRID.onKeyPress = [this](QChar key) { return txtRID_KeyPress(key); };
    txtRID.onChange = [this] {
        narrate(QStringLiteral("Accepting RoleID from ") + session.gFullName + QStringLiteral("..."));
    };
    txtRID.onLeave = [this] {
        narrate(QStringLiteral("Waiting to Accept new Role Name from ") + session.gFullName + QStringLiteral("..."));
        m_role.setRoleID(txtRID.text());
    };
    txtRName.onChange = [this] {
        narrate(QStringLiteral("Accepting Role Name from ") + session.gFullName + QStringLiteral("..."));
    };
    txtRName.onLeave = [this] {
        narrate(QStringLiteral("Ready to Submit New Role Profile."));
        m_role.setRoleName(txtRName.text());
    };
    cmdSubmit.onClick = [this] { cmdSubmit_Click(); };
    cmdCancel.onClick = [this] { unload(); };
    cmdCancel.onFocus = [this] { narrate(QStringLiteral("Click here to unload the form.")); };
}

Layout frmRole::layout() const {
    using namespace orvane::layout;
    return column({field("RoleID", txtRID, 10), field("Role Name", txtRName, 24), cell(DataGrid1), cell(StatusBar1),
                   buttons({}, {&cmdCancel, &cmdSubmit})});
}

void frmRole::Form_Load() {
    DataGrid1.load(m_role.DisplayData());
    waitForRoleID();
}

void frmRole::waitForRoleID() {
    narrate(QStringLiteral("Waiting for ") + session.gFullName + QStringLiteral(" to key in RoleID"));
}

bool frmRole::txtRID_KeyPress(QChar key) {
    if (key.isDigit() || key.category() == QChar::Other_Control)
        return true;
    narrate(QStringLiteral("Numeric entries expected here."));
    return false;
}

void frmRole::cmdSubmit_Click() {
    // Pressed by Enter or its letter the button does not take the focus, so the last box was never left.
    m_role.setRoleID(txtRID.text());
    m_role.setRoleName(txtRName.text());
    // Nothing was ever taken: there is no role to submit.
    if (m_role.RoleID() == 0 || m_role.RoleName().isEmpty())
        return;
    m_role.Submit();
    DataGrid1.load(m_role.DisplayData());
    txtRID.clear();
    txtRName.clear();
    waitForRoleID();
}

} // namespace orvane
