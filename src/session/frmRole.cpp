#include "session/frmRole.h"

namespace orvane {

frmRole::frmRole(Program& owner) : Screen(owner, "frmRole", "Role Creation"), m_role(owner) {
    m_role.onRefused = [this] { narrate("The value is empty or too long and was not taken."); };
    txtRID.onKeyPress = [this](QChar key) { return txtRID_KeyPress(key); };
    txtRID.onLeave = [this] { txtRID_LostFocus(); };
    txtRName.onLeave = [this] { txtRName_LostFocus(); };
    cmdCancel.onFocus = [this] { narrate("Click here to unload the form."); };
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
    narrate("Waiting for " + session.gFullName + " to key in RoleID");
}

bool frmRole::txtRID_KeyPress(QChar key) {
    if (key.isDigit() || key.category() == QChar::Other_Control)
        return true;
    narrate("Numeric entries expected here.");
    return false;
}

void frmRole::txtRID_LostFocus() {
    narrate("Waiting to Accept new Role Name from " + session.gFullName + "...");
    m_role.setRoleID(txtRID.text());
}

void frmRole::txtRName_LostFocus() {
    narrate("Ready to Submit New Role Profile.");
    m_role.setRoleName(txtRName.text());
}

void frmRole::cmdSubmit_Click() {
    // Pressed by Enter or its letter the button does not take the focus, so the last box was never left.
    m_role.setRoleID(txtRID.text());
    m_role.setRoleName(txtRName.text());
    m_role.Submit();
    DataGrid1.load(m_role.DisplayData());
    txtRID.clear();
    txtRName.clear();
    waitForRoleID();
    txtRID.setFocus();
}

} // namespace orvane
