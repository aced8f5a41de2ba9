#include "session/frmUsers.h"

#include "books/User.h"

namespace orvane {

frmUsers::frmUsers(Program& owner) : Screen(owner, "frmUsers", "Application Users") {
    txtPassword.masked();
    txtConfirmPWD.masked();
    cmdApply.setEnabled(false);
    txtConfirmPWD.onLeave = [this] { txtConfirmPWD_LostFocus(); };
    // Enter presses the button without leaving the box, so the passwords are compared first.
    txtConfirmPWD.onEnter = [this] {
        if (txtConfirmPWD_LostFocus() && cmdApply.isUsable())
            cmdApply.click();
    };
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
        TreeView1.addNode(
            {users.text("Username") + "ijkl", users.text("Fullname"), "zpt", false, users.text("Username")});
}

void frmUsers::clearFields() {
    for (TextBox* box : {&txtUserName, &txtFullName, &txtPassword, &txtConfirmPWD})
        box->clear();
    cboAcctStatus.setListIndex(-1);
    cboBranchCode.setListIndex(-1);
}

void frmUsers::TreeView1_NodeClick() {
    const auto name = TreeView1.picked<QString>();
    if (!name)
        return;
    Connection connection = program.openBilling();
    // By the name of the account: two persons may have one full name.
    const Recordset user(connection, Sql("SELECT Username, Fullname, Password, AccountStatus, BranchCode FROM "
                                         "ApplicationUsers WHERE Username ='")
                                         << *name << "'");
    if (user.eof())
        return;
    txtUserName.setText(user.text("Username"));
    txtFullName.setText(user.text("Fullname"));
    txtPassword.setText(user.text("Password"));
    cboAcctStatus.setListIndex(-1); // a status that is not in its list leaves the box empty
    cboAcctStatus.setText(user.text("AccountStatus"));
    cboBranchCode.setText(user.text("BranchCode"));
}

void frmUsers::txtUserName_Change() {
    cmdApply.setEnabled(!txtUserName.text().trimmed().isEmpty());
}

bool frmUsers::txtConfirmPWD_LostFocus() {
    if (txtConfirmPWD.text() == txtPassword.text())
        return true;
    program.box("Alert! Unmatched password. Kindly re-type to go on.", Icon::Critical);
    txtConfirmPWD.setFocus();
    return false;
}

void frmUsers::cmdApply_Click() {
    save<Saved>(
        {.button = cmdApply,
         .action = "USER",
         .allowed =
             [this] {
                 // Its letter and Ctrl+S press the button without leaving the box.
                 return txtConfirmPWD_LostFocus() &&
                        passes({{cboAcctStatus.text().isEmpty(), "Alert! Account Status is required.", &cboAcctStatus},
                                {cboBranchCode.text().isEmpty(), "Alert! Branch Code is required.", &cboBranchCode}});
             },
         .step =
             [this](Books& books) {
                 return addUser(books, {.name = txtUserName.text().trimmed(),
                                        .fullName = txtFullName.text(),
                                        .password = txtPassword.text().trimmed(),
                                        .status = cboAcctStatus.text(),
                                        .branch = cboBranchCode.text()});
             },
         .follow =
             [this](const Saved&) {
                 program.box("Account creation succeeded.");
                 buildTree();
                 clearFields();
                 cmdApply.setEnabled(false);
                 txtUserName.setFocus();
             },
         .refused = [this](Refusal refusal) { program.box(refusalText(refusal), Icon::Critical); }});
}

} // namespace orvane
