// Roles and who holds them.
#include "session/Role.h"
#include "session/UserRole.h"
#include "support/ScreenTest.h"

#include <QFile>
#include <QRegularExpression>

namespace orvane {
namespace {

class Roles : public ScreenTest {
protected:
    Roles() : ScreenTest("frmRole") {}

    /// The messages of the users' log since the last look; each line stamped and signed.
    QStringList takeLog() {
        QFile file(home.folder() + "/ServerUserActivities.txt");
        QStringList messages;
        if (!file.open(QIODevice::ReadOnly))
            return messages;
        for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
            const QStringList parts = line.split("  |  ");
            EXPECT_EQ(parts.size(), 3) << line.toStdString();
            EXPECT_EQ(parts.first(), "14/03/2026 09:30:00");
            EXPECT_EQ(parts.last(), "AMINA BELLO");
            messages << parts.value(1);
        }
        file.remove();
        return messages;
    }
};
ORVANE_ON_EACH_ENGINE(Roles);

TEST_P(Roles, PropertiesKeepWhatTheyHadWhenAValueIsRefused) {
    Role role(ws.program);
    UserRole allotment(ws.program);
    int refused = 0;
    role.onRefused = [&] { ++refused; };
    for (auto* event :
         {&allotment.EmptyRoleID, &allotment.InvalidRoleID, &allotment.EmptyUsername, &allotment.InvalidUsername})
        *event = [&] { refused += 10; };
    const struct {
        QString value;
        qlonglong ofRole, ofUserRole;
        int refused;
    } ids[] = {{"7", 7, 7, 0},
               {" 12345678 ", 12345678, 12345678, 0},
               {"123456789", 12345678, 123456789, 1},
               {"1234567890", 12345678, 123456789, 11},
               {"  ", 12345678, 123456789, 11}};
    for (const auto& test : ids) {
        refused = 0;
        role.setRoleID(test.value);
        allotment.setRoleID(test.value);
        EXPECT_EQ(role.RoleID(), test.ofRole) << test.value.toStdString();
        EXPECT_EQ(allotment.RoleID(), test.ofUserRole) << test.value.toStdString();
        EXPECT_EQ(refused, test.refused);
    }
    const QString longest(18, 'x');
    for (const QString& name : {longest, longest + 'y', QStringLiteral(" ")}) {
        refused = 0;
        role.setRoleName(name);
        allotment.setUsername(name);
        EXPECT_EQ(role.RoleName() + allotment.username(), longest + longest);
        EXPECT_EQ(refused, name == longest ? 0 : 11);
    }
}

TEST_P(Roles, SubmitAndDeleteTellTheLogOnly) {
    Role role(ws.program);
    role.setRoleID("205");
    role.setRoleName("WARD'S CLERK");
    role.Submit();
    role.Submit();
    role.Delete(101); // a user holds it
    role.Delete(999);
    EXPECT_EQ(ws.tableCount("Roles where RoleID=205 and LoginRole='WARD''S CLERK' or RoleID=101"), 2);
    role.Delete(205);
    EXPECT_EQ(ws.tableCount("Roles"), 2);
    EXPECT_EQ(
        takeLog(),
        QStringList({"Successfully created a new Role  205", "Attempted creating a RoleID 205 that already exists.",
                     "Attempted deleting the Role for 101 that would lead to orphan User Accounts.",
                     "Attempted to delete a non existing Role ", "Successfully deleted the Role for 205"}));
    EXPECT_BOXES(ui, {});
}

TEST_P(Roles, AFaultGoesToTheErrorLogWithoutItsStatement) {
    breakAt("Roles");
    Role role(ws.program);
    role.setRoleID("205");
    role.Submit();
    EXPECT_TRUE(UserRole(ws.program).LoadRoleID().eof());
    EXPECT_BOXES(ui, {});
    QFile file(home.folder() + "/ServerErrorLog.txt");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith("14/03/2026 09:30:00  |  Submit  |  ")) << lines[0].toStdString();
    EXPECT_TRUE(lines[0].contains("  |  disk full  |  "));
    EXPECT_TRUE(lines[1].contains("  |  LoadRoleID  |  "));
}

TEST_P(Roles, RoleCreationNarratesAndAddsARole) {
    open();
    EXPECT_EQ(value("StatusBar1"), "Waiting for AMINA BELLO to key in RoleID");
    // Where nothing was ever accepted, what the class holds is submitted.
    click("cmdSubmit");
    click("cmdSubmit");
    EXPECT_EQ(takeLog(), QStringList({"Successfully created a new Role  0",
                                      "Attempted creating a RoleID 0 that already exists."}));
    EXPECT_EQ(ws.rows("frmRole.DataGrid1").filter(QRegularExpression("^0\t$")).size(), 1);
    const struct {
        std::function<void()> act;
        const char* status;
    } steps[] = {{[&] { ws.key("frmRole.txtRID", "2x0"); }, "Accepting RoleID from AMINA BELLO..."},
                 {[&] { ws.key("frmRole.txtRID", "-"); }, "Numeric entries expected here."},
                 {[&] { leave("txtRID"); }, "Waiting to Accept new Role Name from AMINA BELLO..."},
                 {[&] { set("txtRName", "CASHIER"); }, "Accepting Role Name from AMINA BELLO..."},
                 {[&] { leave("txtRName"); }, "Ready to Submit New Role Profile."},
                 {[&] { ws.control("frmRole.cmdCancel").gotFocus(); }, "Click here to unload the form."}};
    for (const auto& step : steps) {
        step.act();
        EXPECT_EQ(value("StatusBar1"), step.status);
    }
    EXPECT_EQ(value("txtRID"), "20");
    // A refused id leaves the one that was accepted before.
    set("txtRID", "123456789");
    leave("txtRID");
    click("cmdSubmit");
    EXPECT_EQ(ws.rows("frmRole.DataGrid1").filter("CASHIER"), QStringList("20\tCASHIER"));
    EXPECT_EQ(value("txtRID") + value("txtRName"), "");
    // Enter presses the button without leaving the box.
    set("txtRID", "21");
    set("txtRName", "MATRON");
    ws.key("frmRole.txtRName", "\n");
    EXPECT_EQ(ws.tableCount("Roles where RoleID=21 and LoginRole='MATRON'"), 1);
    EXPECT_EQ(ws.tableCount("Roles"), 5);
}

TEST_P(Roles, AllocationAnswersEachEventWithABox) {
    ws.run("insert into ApplicationUsers (Username, AccountStatus) values ('ngozi.o', 'Enabled')");
    ws.run("insert into ApplicationUsers (Username) values ('a.name.of.nineteen.c')");
    ws.run("insert into Roles (RoleID, LoginRole) values (7, 'WARD')");
    ws.run("insert into Roles (RoleID, LoginRole) values (1012, 'LONG')");
    open("frmUserRole");
    QStringList nodes = items("TreeView1");
    EXPECT_EQ(nodes.takeFirst(), "Available Roles");
    nodes.sort();
    EXPECT_EQ(nodes, QStringList({"101 : BILLING", "1012 : LONG", "102 : MANAGEMENT", "7 : WARD"}));
    const struct {
        const char* role;
        const char* user;
        QStringList boxes;
        int rows;
    } cases[] = {{"", "", {"Please enter values into both fields above"}, 2},
                 {"101", "", {"Please enter values into both fields above"}, 2},
                 {"101", "ngozi.o", {"Submission Successful."}, 3},
                 {"101", "ngozi.o", {"Submission Failed! Matching Record Exists."}, 3},
                 {"1234567890", "ngozi.o", {"Invalid RoleID."}, 3},
                 {"102", "a.name.of.nineteen.c", {"Invalid Username.", "Invalid Username."}, 3},
                 {"7", "ngozi.o", {"Submission Successful."}, 4}};
    for (const auto& test : cases) {
        set("cboRoleID", test.role);
        set("cboUsername", test.user);
        click("cmdSubmit");
        EXPECT_EQ(ui.takeBoxes(), test.boxes) << test.role << ' ' << test.user;
        EXPECT_EQ(ws.tableCount("UserRoles"), test.rows);
    }
    set("cboUsername", "");
    leave("cboUsername");
    EXPECT_BOXES(ui, {"Username cannot be empty."});

    const QString amina = "amina.b\tAMINA BELLO\tEnabled", ngozi = "ngozi.o\t\tEnabled";
    for (const auto& [role, users] : {
             std::pair("102 : MANAGEMENT", QStringList{amina}),
             {"7 : WARD", {ngozi}},
             {"1012 : LONG", {amina, ngozi}}, // matched by its first three digits
         }) {
        pick("TreeView1", role);
        EXPECT_EQ(ws.rows("frmUserRole.ListView1"), QStringList("Username\tFullname\tAccount Status") + users);
    }
    pick("TreeView1", "Available Roles");
    EXPECT_EQ(value("ListView1"), "0 rows");
}

} // namespace
} // namespace orvane
