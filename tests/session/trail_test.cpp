#include "data/rows/Transaction.h"
#include "session/Scramble.h"
#include "support/ScreenTest.h"

#include <QSysInfo>

namespace orvane {
namespace {

/// A program that has not started.
class Trail : public ScreenTest {
protected:
    Trail() : ScreenTest("frmLogin") { qputenv("computername", "CASH-01"); }
    ~Trail() override { qunsetenv("computername"); }
    void SetUp() override {
        ws.layHospital();
        ws.program.data().setServerClock(QDateTime(QDate(2026, 3, 14), QTime(9, 30, 45)));
    }

    void logIn(const QString& user, const QString& password) {
        set("txtUserName", user);
        set("txtPassword", password);
        click("cmdOK");
    }
    void storePassword(const QString& stored) {
        ws.run(QStringLiteral("update ApplicationUsers set Password='%1'").arg(QString(stored).replace(u'\'', "''")));
    }
};
ORVANE_ON_EACH_ENGINE(Trail);

TEST_P(Trail, auditBearsTheShellsClockAndTheUserOfTheSession) {
    ASSERT_TRUE(ws.start());
    // The stamp is the clock of the shell's last tick.
    ws.program.data().setServerClock(QDateTime(QDate(2026, 3, 15), QTime(11, 0)));
    ws.program.writeAuditTrail({"Deleted O'NEILL's bill", "B1", "why"});
    qunsetenv("computername"); // the host's name stands in
    ws.timer("MdiTolmek.Timer2");
    ui.answer(true);
    ws.close("MdiTolmek");
    EXPECT_EQ(audit("%", "userName, userAction, ActionDate, ActionTime, TranCode, Remarks, Src"),
              "amina.b|Login Billing|2026-03-14|09:30|||BILLING: from CASH-01\n"
              "amina.b|Deleted O'NEILL's bill|2026-03-14|09:30|B1|why|BILLING: from CASH-01\n"
              "amina.b|Login Out|2026-03-15|11:00|||BILLING: from " +
                  QSysInfo::machineHostName());
}

TEST_P(Trail, aFaultOfATrailWaitsForTheEndOfTheTransaction) {
    ASSERT_TRUE(ws.start());
    ws.run("drop view qrySysDateTime");
    {
        Connection billing = ws.billing();
        Transaction transaction(billing);
        EXPECT_FALSE(ws.program.getServerDateTime().isValid());
        EXPECT_BOXES(ui, {});
    }
    ws.program.flushBoxes();
    EXPECT_EQ(ui.takeBoxes().size(), 1);
}

TEST_P(Trail, threeWrongPasswordsEndTheProgramAtTheFourthPress) {
    storePassword(scramblePassword(ws.program, "Secret1"));
    open();
    for (const char* password : {"", "secret2", "' or '1'='1"}) {
        logIn(" amina.b ", QLatin1String(password));
        QStringList boxes = ui.takeBoxes();
        EXPECT_EQ(boxes.takeLast(), "Alert! Invalid Login details.");
        EXPECT_EQ(value("txtUserName") + value("txtPassword"), QString());
    }
    EXPECT_FALSE(ui.hasQuit);
    logIn("amina.b", "Secret1");
    EXPECT_BOXES(ui, {});
    EXPECT_TRUE(ui.hasQuit);
    EXPECT_EQ(ws.tableCount(QStringLiteral("LoginTrail where LoginName='amina.b' and LoginAction='Failed Logon' and "
                                           "LoginDate='2026-03-14' and LoginTime='09:30:00'")),
              3);
    EXPECT_EQ(ws.tableCount("LoginTrail"), 3);
}

TEST_P(Trail, onlyAnEnabledAccountOfTheModuleWithTheExactPasswordLogsIn) {
    const QString stored = scramblePassword(ws.program, "abcXYZ");
    QString otherCase;
    for (const QChar letter : stored)
        otherCase += letter.isUpper() ? letter.toLower() : letter.toUpper();
    ASSERT_NE(stored, otherCase);
    open();

    // The server's comparison lets it through; it costs no attempt.
    storePassword(otherCase);
    for (int i = 0; i < 4; ++i) {
        logIn("amina.b", "abcXYZ");
        EXPECT_BOXES(ui, {"Invalid Login details"});
    }
    storePassword(stored);
    const std::pair<const char*, const char*> hindrances[] = {
        {"update ApplicationUsers set AccountStatus='Disabled'", "update ApplicationUsers set AccountStatus='Enabled'"},
        {"update Roles set LoginRole='RECORDS' where LoginRole='BILLING'",
         "update Roles set LoginRole='BILLING' where LoginRole='RECORDS'"}};
    for (const auto& [hinder, mend] : hindrances) {
        ws.run(hinder);
        logIn("amina.b", "abcXYZ");
        EXPECT_BOXES(ui, {"Alert! Invalid Login details."});
        ws.run(mend);
    }
    logIn("AMINA.B", "abcXYZ");
    EXPECT_EQ(ui.takeBoxesWithTitles(), (QList<TestUi::Box>{{"You're welcome, AMINA BELLO.", {}, Icon::Information}}));
    EXPECT_EQ(ui.opened, (QStringList{"frmLogin", "MdiTolmek"}));
    EXPECT_EQ(ui.closedForms, QStringList{"frmLogin"});
    EXPECT_EQ(ws.program.session.gUsername, "amina.b");
    EXPECT_EQ(ws.scalar("select LoginAction from LoginTrail order by SNo desc"), "Successful Logon");
}

TEST_P(Trail, welcomeAndSplash) {
    ws.open("frmStart");
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(ui.closedForms, QStringList());
        ws.timer("frmStart.Timer1");
    }
    EXPECT_EQ(ui.closedForms, QStringList{"frmStart"});
    ws.open("frmWelcome");
    EXPECT_EQ(ws.value("frmWelcome.Label6"), "Saturday, 14 March 2026");
    ui.clock = QDateTime(QDate(2026, 3, 14), QTime(15, 5));
    ws.timer("frmWelcome.Timer1");
    EXPECT_EQ(ws.value("frmWelcome.Label5"), "03:05 PM");
    ws.click("frmWelcome.cmdEnter");
    click("cmdCancel");
    EXPECT_TRUE(ui.hasQuit);
}

} // namespace
} // namespace orvane
