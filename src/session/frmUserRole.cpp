#include "session/frmUserRole.h"

namespace orvane {

frmUserRole::frmUserRole(Program& owner)
    : Screen(owner, "frmUserRole", "User Allocation To Roles"), oNewUserRole(owner) {
    answerEvents();
    ListView1.hide({"RoleID", "LoginRole"});
    ListView1.setHead("AccountStatus", "Account Status");
    cboUsername.onLeave = [this] { cboUsername_Click(); };
}

void frmUserRole::answerEvents() {
    const auto tell = [this](const QString& text) { return [this, text] { program.box(text, Icon::Information); }; };
    oNewUserRole.AllocationComplete = tell("Submission Successful.");
    oNewUserRole.EmptyRoleID = tell("RoleID cannot be empty. Matching Record Exists.");
    oNewUserRole.EmptyUsername = tell("Username cannot be empty.");
    oNewUserRole.InvalidRoleID = tell("Invalid RoleID.");
    oNewUserRole.InvalidUsername = tell("Invalid Username.");
    oNewUserRole.RecordExists = tell("Submission Failed! Matching Record Exists.");
}

Layout frmUserRole::layout() const {
    using namespace orvane::layout;
    return column({row({field("RoleID", cboRoleID, 12), field("Username", cboUsername, 24), stretch()}),
                   growing(row({growing(cell(TreeView1)), growing(cell(ListView1))})),
                   buttons({}, {&cmdCancel, &cmdSubmit})});
}

void frmUserRole::Form_Load() {
    TreeView1.clear();
    TreeView1.addNode({"root", "Available Roles", {}, true});
    for (Recordset roles = oNewUserRole.LoadRoleID(); !roles.eof(); roles.moveNext()) {
        const QString id = roles.text("RoleID");
        cboRoleID.addItem(id);
        TreeView1.addNode({id + "abc", id + " : " + roles.text("LoginRole"), "root", false});
    }
    for (Recordset users = oNewUserRole.LoadUsername(); !users.eof(); users.moveNext())
        cboUsername.addItem(users.text("Username"));
}

void frmUserRole::cmdSubmit_Click() {
    if (cboRoleID.text().isEmpty() || cboUsername.text().isEmpty()) {
        program.box("Please enter values into both fields above");
        return;
    }
    // A typed value reaches its property here; a role that was not meant must never be given.
    if (oNewUserRole.setRoleID(cboRoleID.text()) && oNewUserRole.setUsername(cboUsername.text()))
        oNewUserRole.Submit();
}

void frmUserRole::TreeView1_NodeClick() {
    ListView1.clear();
    const Tree::Node* node = TreeView1.selectedNode();
    // The root names no role.
    if (!node || node->parentKey.isEmpty())
        return;
    ListView1.load(oNewUserRole.UserRoleMatch(node->text.left(3)));
}

} // namespace orvane
