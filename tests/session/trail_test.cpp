#include "data/rows/Transaction.h"
#include "session/Scramble.h"
#include "support/TestHome.h"
#include "support/Workstation.h"

#include <QSysInfo>

namespace orvane {
namespace {

class Trail : public ::testing::TestWithParam<Engine> {
protected:
    Trail() {
        qputenv("computername", "CASH-01");
        station.layHospital();
        station.program.data().setServerClock(QDateTime(QDate(2026, 3, 14), QTime(9, 30, 45)));
    }
    ~Trail() override { qunsetenv("computername"); }

    /// The rows of the audit trail, which lies in a file of its own on the embedded engine.
    QStringList auditRows() {
        Connection audit = station.billing().beside(GetParam() == Engine::Sqlite ? "Audit" : QString());
        QStringList rows;
        for (Recordset row = audit.run("select * from AuditTrail order by SNo"); !row.eof(); row.moveNext()) {
            QStringList cells;
            for (int column = 1; column < row.columns().size(); ++column)
                cells << row.text(column);
            rows << cells.join(QLatin1Char('|'));
        }
        return rows;
    }

    void logIn(const QString& user, const QString& password) {
        station.set("frmLogin.txtUserName", user);
        station.set("frmLogin.txtPassword", password);
        station.click("frmLogin.cmdOK");
    }
    void storePassword(const QString& stored) {
        station.run(
            QStringLiteral("update ApplicationUsers set Password='%1'").arg(QString(stored).replace(u'\'', "''")));
    }

    TestHome home{GetParam()};
    Workstation station{home.folder()};
    Session& session = station.program.session;
    TestUi& ui = station.ui;
};
ORVANE_ON_EACH_ENGINE(Trail);

TEST_P(Trail, auditBearsTheShellsClockAndTheUserOfTheSession) {
    ASSERT_TRUE(station.start());
    // The stamp is the clock of the shell's last tick.
    station.program.data().setServerClock(QDateTime(QDate(2026, 3, 15), QTime(11, 0)));
    station.program.writeAuditTrail({"Deleted O'NEILL's bill", "B1", "why"});
    qunsetenv("computername"); // the host's name stands in
    station.timer("MdiTolmek.Timer2");
    ui.answer(true);
    station.close("MdiTolmek");
    EXPECT_EQ(auditRows(),
              (QStringList{"amina.b|Login Billing|2026-03-14|09:30|||BILLING: from CASH-01",
                           "amina.b|Deleted O'NEILL's bill|2026-03-14|09:30|B1|why|BILLING: from CASH-01",
                           "amina.b|Login Out|2026-03-15|11:00|||BILLING: from " + QSysInfo::machineHostName()}));
}

TEST_P(Trail, aFaultOfATrailWaitsForTheEndOfTheTransaction) {
    ASSERT_TRUE(station.start());
    station.run("drop view qrySysDateTime");
    {
        Connection billing = station.billing();
        Transaction transaction(billing);
        EXPECT_FALSE(station.program.getServerDateTime().isValid());
        EXPECT_BOXES(ui, {});
    }
    station.program.flushBoxes();
    EXPECT_EQ(ui.takeBoxes().size(), 1);
}

TEST_P(Trail, threeWrongPasswordsEndTheProgramAtTheFourthPress) {
    storePassword(scramblePassword(station.program, "Secret1"));
    station.open("frmLogin");
    for (const char* password : {"", "secret2", "' or '1'='1"}) {
        logIn(" amina.b ", QLatin1String(password));
        QStringList boxes = ui.takeBoxes();
        EXPECT_EQ(boxes.takeLast(), "Alert! Invalid Login details.");
        EXPECT_EQ(station.value("frmLogin.txtUserName") + station.value("frmLogin.txtPassword"), QString());
    }
    EXPECT_FALSE(ui.hasQuit);
    logIn("amina.b", "Secret1");
    EXPECT_BOXES(ui, {});
    EXPECT_TRUE(ui.hasQuit);
    EXPECT_EQ(
        station.tableCount(QStringLiteral("LoginTrail where LoginName='amina.b' and LoginAction='Failed Logon' and "
                                          "LoginDate='2026-03-14' and LoginTime='09:30:00'")),
        3);
    EXPECT_EQ(station.tableCount("LoginTrail"), 3);
}

TEST_P(Trail, onlyAnEnabledAccountOfTheModuleWithTheExactPasswordLogsIn) {
    const QString stored = scramblePassword(station.program, "abcXYZ");
    QString otherCase;
    for (const QChar letter : stored)
        otherCase += letter.isUpper() ? letter.toLower() : letter.toUpper();
    ASSERT_NE(stored, otherCase);
    station.open("frmLogin");

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
        station.run(hinder);
        logIn("amina.b", "abcXYZ");
        EXPECT_BOXES(ui, {"Alert! Invalid Login details."});
        station.run(mend);
    }
    logIn("AMINA.B", "abcXYZ");
    EXPECT_EQ(ui.takeBoxesWithTitles(), (QList<TestUi::Box>{{"You're welcome, AMINA BELLO.", {}, Icon::Information}}));
    EXPECT_EQ(ui.opened, (QStringList{"frmLogin", "MdiTolmek"}));
    EXPECT_EQ(ui.closedForms, QStringList{"frmLogin"});
    EXPECT_EQ(session.gUsername, "amina.b");
    EXPECT_EQ(station.scalar("select LoginAction from LoginTrail order by SNo desc"), "Successful Logon");
}

TEST_P(Trail, welcomeAndSplash) {
    station.open("frmStart");
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(ui.closedForms, QStringList());
        station.timer("frmStart.Timer1");
    }
    EXPECT_EQ(ui.closedForms, QStringList{"frmStart"});
    station.open("frmWelcome");
    EXPECT_EQ(station.value("frmWelcome.Label6"), "Saturday, 14 March 2026");
    ui.clock = QDateTime(QDate(2026, 3, 14), QTime(15, 5));
    station.timer("frmWelcome.Timer1");
    EXPECT_EQ(station.value("frmWelcome.Label5"), "03:05 PM");
    station.click("frmWelcome.cmdEnter");
    station.click("frmLogin.cmdCancel");
    EXPECT_TRUE(ui.hasQuit);
}

} // namespace
} // namespace orvane
