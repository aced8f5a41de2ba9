// The rights that are told to a server's owner are enough for the program's work and its checks, and for nothing else.
#include "support/Check.h"
#include "support/LeastRights.h"
#include "support/MoneyActions.h"

namespace orvane {
namespace {

class Rights : public ::testing::TestWithParam<Engine> {
protected:
    void SetUp() override {
        if (GetParam() == Engine::Sqlite)
            GTEST_SKIP() << "a database is its owner's file";
    }
};
ORVANE_ON_EACH_ENGINE(Rights);

TEST_P(Rights, AreEnoughForEveryActionThatMovesMoney) {
    for (const MoneyAction& action : moneyActions()) {
        SCOPED_TRACE(action.name);
        const TestHome home(GetParam());
        layAction(home.folder(), action);
        const LeastRights login(home);
        Workstation ws(home.folder());
        ASSERT_TRUE(ws.start());
        action.enter(ws);
        takeShown(ws.ui);
        const QString before = moneyFigures(ws);
        action.press(ws);
        const QStringList shown = takeShown(ws.ui);
        EXPECT_TRUE(action.isReportedBy(shown)) << shown.join(" / ").toStdString();
        EXPECT_NE(moneyFigures(ws), before);
        EXPECT_EQ(checkDatabases(ws.program).findings, QStringList());
    }
}

TEST_P(Rights, AreNoMoreThanTheProgramNeeds) {
    const TestHome home(GetParam());
    const LeastRights login(home);
    DataSource source(home.folder());
    const struct {
        QString database;
        QStringList statements;
    } refused[] = {{TestHome::billing(),
                    {"drop table Payments", "delete from Payments", "update Payments set AmountPaid=0",
                     "delete from AuditTrail", "update Tranxaction set Amount=0", "delete from hPatients",
                     "insert into AppDefaults (ID) values ('X')", "select * from banks", "create table mine (a int)"}},
                   {TestHome::accounting(),
                    {"delete from Tranxaction", "insert into Tranxaction (TranID, AccountNo) values ('X', 'X')"}}};
    for (const auto& [database, statements] : refused)
        for (const QString& statement : statements)
            try {
                source.open(database).run(statement);
                ADD_FAILURE() << statement.toStdString();
            } catch (const DataError& fault) {
                EXPECT_TRUE(fault.code() == "42501") << statement.toStdString() << ": " << fault.what();
            }
}

} // namespace
} // namespace orvane
