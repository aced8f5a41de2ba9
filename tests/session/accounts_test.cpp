// Accounts: making them, their status and their passwords, as their screens show them.
#include "session/Scramble.h"
#include "support/ChecksInOrder.h"
#include "support/ScreenTest.h"

#include <QFile>

namespace orvane {
namespace {

class Accounts : public ScreenTest {
protected:
    Accounts() : ScreenTest("frmUsers") {}

    static constexpr const char* unmatched = "Alert! Unmatched password. Kindly re-type to go on.";
    static constexpr const char* unknown = "Alert! Indicated username not found in the list of accredited users.";

    void prepare() override {
        QFile ini(home.folder() + "/orvane.ini");
        ASSERT_TRUE(ini.open(QIODevice::Append));
        ini.write("\n[menu]\nmnusecurity = 1\n");
        ini.close();
        ws.run("insert into LagosBranches (BranchCode) values ('ANNEX')");
        ws.run("insert into ApplicationUsers (Username, Fullname, Password) values ('musa', 'MUSA O''BRIEN', 'Pw''1')");
    }
    QString stored(const QString& user) {
        return ws.scalar("select Password from ApplicationUsers where Username='" + user + "'");
    }
};
ORVANE_ON_EACH_ENGINE(Accounts);

TEST_P(Accounts, UsersAreAddedAndNeverChanged) {
    // Two persons of one name.
    ws.run("insert into ApplicationUsers (Username, Fullname, BranchCode) values ('musa2', 'MUSA O''BRIEN', 'ANNEX')");
    ws.menu("mnuUsers");
    EXPECT_EQ(items("cboBranchCode"), QStringList({"ANNEX", "HQ"}));
    set("txtUserName", "  ");
    EXPECT_EQ(state("cmdApply"), "visible disabled");
    const QStringList nodes = items("TreeView1");
    EXPECT_EQ(nodes.first(), "Zelmont Trust Bank Plc");
    QStringList users; // in the order of the engine
    for (int node = 1; node < nodes.size(); ++node) {
        pick("TreeView1", node);
        users << nodes[node] + '|' + shown("txtUserName txtPassword cboAcctStatus cboBranchCode");
    }
    users.sort();
    EXPECT_EQ(users, QStringList({"AMINA BELLO|amina.b||Enabled|HQ", "MUSA O'BRIEN|musa2|||ANNEX",
                                  "MUSA O'BRIEN|musa|Pw'1||"}));
    EXPECT_TRUE(ws.control<TextBox>("frmUsers.txtPassword").isMasked());

    click("cmdRefresh");
    set("txtUserName", " MUSA ");
    expectChecksInOrder(ws, "frmUsers", "cmdApply",
                        {{nullptr, "", "Alert! Account Status is required.", "cboAcctStatus"},
                         {"cboAcctStatus", "Disabled", "Alert! Branch Code is required.", "cboBranchCode"}});
    set("cboBranchCode", "HQ");
    click("cmdApply");
    EXPECT_EQ(ui.takeBoxesWithTitles(),
              (QList<TestUi::Box>{{"Alert! Username already assigned to someone else.", {}, Icon::Critical}}));

    set("txtUserName", " kemi ");
    set("txtFullName", "KEMI ADE");
    set("txtPassword", " S3cret ");
    set("txtConfirmPWD", "S3cret");
    for (const bool byEnter : {true, false}) { // or by the button's letter, which leaves no field
        byEnter ? ws.key("frmUsers.txtConfirmPWD", "\n") : click("cmdApply");
        EXPECT_EQ(ui.takeBoxesWithTitles(), (QList<TestUi::Box>{{unmatched, {}, Icon::Critical}}));
        EXPECT_EQ(focused(), "txtConfirmPWD");
    }
    set("txtConfirmPWD", " S3cret ");
    ws.key("frmUsers.txtConfirmPWD", "\n");
    EXPECT_BOXES(ui, {"Account creation succeeded."});
    EXPECT_EQ(ws.tableCount("ApplicationUsers where Username='kemi' and Fullname='KEMI ADE' and BranchCode='HQ' and "
                            "AccountStatus='Disabled' and Password='S3cret'"),
              1);
    EXPECT_TRUE(items("TreeView1").contains("KEMI ADE"));
    EXPECT_EQ(value("txtUserName") + value("txtPassword") + value("cboBranchCode"), "");
    EXPECT_EQ(state("cmdApply"), "visible disabled");
    EXPECT_EQ(focused(), "txtUserName");
}

TEST_P(Accounts, AreEnabledAndDisabledByName) {
    const TestUi::Box empty{"Alert! Username can't be empty.", {}, Icon::Exclamation};
    const struct {
        const char* menu;
        const char* answer; ///< null: cancelled
        TestUi::Box box;
        const char* status; ///< of musa, afterwards
    } cases[] = {
        {"mnuAcctEnable", "  ", empty, ""},
        {"mnuAcctEnable", "nobody", {unknown, {}, Icon::None}, ""},
        {"mnuAcctEnable", " Musa ", {"Congrats! User Account Enabled successfully.", {}, Icon::None}, "Enabled"},
        {"mnuAcctEnable", nullptr, empty, "Enabled"},
        {"mnuAcctDisable", "musa", {"Congrats! User Account diasbled successfully.", {}, Icon::None}, "Disabled"},
        {"mnuAcctDisable", nullptr, empty, "Disabled"}};
    for (const auto& test : cases) {
        test.answer ? ui.answer(QString(test.answer)) : ui.answerCancel();
        ws.menu(test.menu);
        EXPECT_QUESTIONS(ui, {"Kindly indicate the Account's Username."});
        EXPECT_EQ(ui.takeBoxesWithTitles(), QList<TestUi::Box>{test.box}) << test.menu;
        EXPECT_EQ(ws.scalar("select AccountStatus from ApplicationUsers where Username='musa'"), test.status);
    }
}

TEST_P(Accounts, APasswordIsChangedByWhoKnowsTheOldOne) {
    ws.menu("mnuChangePWD");
    open("frmDialog");
    const struct {
        const char* user;
        const char* old;
        const char* box;
        const char* stored;
    } cases[] = {{" ", "", "Alert! Username can't be empty.", "Pw'1"},
                 {"musa", " ", "Alert! Old Account password can't be empty.", "Pw'1"},
                 {"musa", "wrong", unknown, "Pw'1"},
                 {"nobody", "Pw'1", unknown, "Pw'1"},
                 {"musa", "' or '1'='1", unknown, "Pw'1"},
                 {"musa", "Pw'1", "Congrats! User Account's Password changed.", "N'ew 2"}};
    for (const auto& test : cases) {
        set("txtUser", test.user);
        set("txtPass", test.old);
        set("txtPassN", "N'ew 2");
        set("txtPassC", "N'ew 2");
        ws.key("frmDialog.txtPassC", "\n");
        EXPECT_BOXES(ui, {test.box});
        EXPECT_EQ(stored("musa"), test.stored);
        for (const char* box : {"txtUser", "txtPass", "txtPassN", "txtPassC"})
            EXPECT_EQ(value(box), "");
    }
    EXPECT_EQ(stored("amina.b"), "") << "somebody else's";
    set("txtPassN", "typed");
    set("txtPassC", "tpyed");
    leave("txtPassC");
    EXPECT_EQ(ui.takeBoxesWithTitles(), (QList<TestUi::Box>{{unmatched, {}, Icon::Critical}}));
    EXPECT_EQ(focused(), "txtPassC");
}

TEST_P(Accounts, ScrambledTextMapsOneForOneAndDropsABlank) {
    QString printable;
    for (char16_t code = 33; code < 127; ++code)
        printable += QChar(code);
    const QString image = scramblePassword(ws.program, printable);
    EXPECT_EQ(QSet<QChar>(image.begin(), image.end()), QSet<QChar>(printable.begin(), printable.end()));
    EXPECT_EQ(scramblePassword(ws.program, "cba"), QString(image[printable.indexOf(u'c')]) +
                                                       image[printable.indexOf(u'b')] + image[printable.indexOf(u'a')]);
    EXPECT_EQ(scramblePassword(ws.program, "a b\x7f\u00e9"), scramblePassword(ws.program, "ab"));
    const QString invalid = "Invalid character detected!";
    EXPECT_BOXES(ui, {invalid, invalid, invalid});
}

} // namespace
} // namespace orvane
