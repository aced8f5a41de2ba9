#include "session/frmUsers.h"

namespace orvane {

frmUsers::frmUsers(Program& owner) : Screen(owner, "frmUsers", "Application Users") {
    txtPassword.masked();
    txtConfirmPWD.masked();
    cmdApply.setEnabled(false);
    TreeView1.onClick = [this] { TreeView1_NodeClick(); };
    txtUserName.onChange = [this] { cmdApply.setEnabled(!txtUserName.text().trimmed().isEmpty()); };
    txtConfirmPWD.onLeave = [this] { txtConfirmPWD_LostFocus(); };
    // Enter presses the button without leaving the box, so the passwords are compared first.
    txtConfirmPWD.onEnter = [this] {
        if (txtConfirmPWD_LostFocus() && cmdApply.isUsable())
            cmdApply.click();
    };
    cmdApply.onClick = [this] { cmdApply_Click(); };
    cmdRefresh.onClick = [this] { clearFields(); };
    cmdCancel.onClick = [this] { unload(); };
}

Layout frmUsers::layout() const {
    using namespace orvane::layout;
    return column(
        {growing(row({growing(cell(TreeView1)),
                      column({field("Username", txtUserName, 24), field("Full Name", txtFullName, 32),
                              field("Password", txtPassword, 24), field("Confirm Password", txtConfirmPWD, 24),
                              field("Account Status", cboAcctStatus, 16), field("Branch Code", cboBranchCode, 16),
                              stretch()})})),
         buttons({&cmdRefresh}, {&cmdCancel, &cmdApply})});
}

void frmUsers::Form_Load() {
    cboAcctStatus.addItems({"Enabled", "Disabled"});
    Connection connection = program.openBilling();
    for (Recordset branches(connection, Sql("SELECT BranchCode FROM LagosBranches ORDER BY BranchCode ASC"));
         !branches.eof(); branches.moveNext())
        cboBranchCode.addItem(branches.text("BranchCode"));
    buildTree();
}

void frmUsers::buildTree() {
    TreeView1.clear();
    TreeView1.addNode({"zpt", "Zelmont Trust Bank Plc", {}, true});
    Connection connection = program.openBilling();
    Recordset users(
        connection,
        Sql("SELECT Distinct Username, Fullname, Password, AccountStatus, BranchCode FROM ApplicationUsers"));
    for (; !users.eof(); users.moveNext())
        TreeView1.addNode({users.text("Username") + "ijkl", users.text("Fullname"), "zpt", false});
}

void frmUsers::clearFields() {
    for (TextBox* box : {&txtUserName, &txtFullName, &txtPassword, &txtConfirmPWD})
        box->clear();
    cboAcctStatus.setListIndex(-1);
    cboBranchCode.setListIndex(-1);
}

void frmUsers::TreeView1_NodeClick() {
    const Tree::Node* node = TreeView1.selectedNode();
    if (!node || node->parentKey.isEmpty())
        return;
    Connection connection = program.openBilling();
    const Recordset user(connection, Sql("SELECT Username, Fullname, Password, AccountStatus, BranchCode FROM "
                                         "ApplicationUsers WHERE FullName ='")
                                         << node->text << "'");
    if (user.eof())
        return;
    txtUserName.setText(user.text("Username"));
    txtFullName.setText(user.text("Fullname"));
    txtPassword.setText(user.text("Password"));
    cboAcctStatus.setListIndex(-1); // a status that is not in its list leaves the box empty
    cboAcctStatus.setText(user.text("AccountStatus"));
    cboBranchCode.setText(user.text("BranchCode"));
}

bool frmUsers::txtConfirmPWD_LostFocus() {
    if (txtConfirmPWD.text() == txtPassword.text())
        return true;
    program.box("Alert! Unmatched password. Kindly re-type to go on.", Icon::Critical);
    txtConfirmPWD.setFocus();
    return false;
}

void frmUsers::cmdApply_Click() {
    if (cboAcctStatus.text().isEmpty()) {
        program.box("Alert! Account Status is required.");
        cboAcctStatus.setFocus();
        return;
    }
    if (cboBranchCode.text().isEmpty()) {
        program.box("Alert! Branch Code is required.");
        cboBranchCode.setFocus();
        return;
    }
    if (!addAccount()) {
        program.box("Alert! Username already assigned to someone else.", Icon::Critical);
        return;
    }
    program.box("Account creation succeeded.");
    buildTree();
    clearFields();
    cmdApply.setEnabled(false);
    txtUserName.setFocus();
}

bool frmUsers::addAccount() {
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    Recordset account(
        connection,
        Sql("SELECT Username, Fullname, Password, AccountStatus, BranchCode FROM ApplicationUsers WHERE Username = '")
            << txtUserName.text().trimmed() << "'");
    if (!account.eof())
        return false;
    account.addNew();
    account.set("Username", txtUserName.text().trimmed());
    account.set("Fullname", txtFullName.text());
    // Stored as typed: the way in by password compares the scrambled form, which is given by other means.
    account.set("Password", txtPassword.text().trimmed());
    account.set("AccountStatus", cboAcctStatus.text());
    account.set("BranchCode", cboBranchCode.text());
    account.update();
    transaction.commit();
    return true;
}

} // namespace orvane
