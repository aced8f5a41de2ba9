// Who did it and who may: attacks on the record of saves, and rights that are lost while a screen is open.
#include "books/User.h"
#include "support/Check.h"
#include "support/MoneyActions.h"

#include <QFile>

namespace orvane {
namespace {

const MoneyAction& actionOf(const QString& name) {
    const QList<MoneyAction>& all = moneyActions();
    return *std::find_if(all.begin(), all.end(), [&](const MoneyAction& action) { return name == action.name; });
}

class Who : public ::testing::TestWithParam<Engine> {
protected:
    /// Does the action; `meanwhile` comes between what its user entered and his last press.
    QStringList act(Workstation& ws, const MoneyAction& action, const std::function<void()>& meanwhile) {
        EXPECT_TRUE(ws.start());
        action.enter(ws);
        takeShown(ws.ui);
        meanwhile();
        action.press(ws);
        return takeShown(ws.ui);
    }
    Connection trailOf(Workstation& ws) {
        Connection billing = ws.billing();
        return billing.beside(GetParam() == Engine::Sqlite ? "Audit" : QString());
    }
};
INSTANTIATE_TEST_SUITE_P(On, Who, ::testing::ValuesIn(testEngines()),
                         [](const auto& instance) { return engineName(instance.param); });

TEST_P(Who, NothingThatSilencesTheTrailSilencesTheSave) {
    const struct {
        const char* name;
        void (*attack)(Workstation&, const QString& home);
        bool isTrailKept;
    } attacks[] = {
        {"a long name of the workstation",
         [](Workstation&, const QString&) { qputenv("computername", QByteArray(120, 'x')); }, true},
        {"no connection for the trail",
         [](Workstation& ws, const QString&) {
             ws.program.data().setStatementHook([](const QString& tsql) {
                 if (tsql.contains("AuditTrail"))
                     throw DataError("sorry, too many clients already");
             });
         },
         false},
        {"the trail's file renamed",
         [](Workstation&, const QString& home) {
             for (const char* part : {"Audit.db", "Audit.db-wal", "Audit.db-shm"})
                 QFile::remove(home + "/data/" + QLatin1String(part));
         },
         false},
    };
    for (const auto& attack : attacks) {
        SCOPED_TRACE(attack.name);
        if (GetParam() != Engine::Sqlite && QString(attack.name).contains("file"))
            continue; // it is a table there
        const TestHome home(GetParam());
        const MoneyAction& reversal = actionOf("Reversal");
        layAction(home.folder(), reversal);
        {
            Workstation ws(home.folder());
            act(ws, reversal, [&] { attack.attack(ws, home.folder()); });
            qunsetenv("computername");
            ws.program.data().setStatementHook({});
            EXPECT_EQ(ws.tableCount("Payments where AmountPaid < 0"), 1);
            EXPECT_EQ(ws.tableCount("SavedActions where action='REVERSAL' and amount < 0 and login <> ''"), 1);
        }
        Workstation ws(home.folder());
        const QStringList findings = checkDatabases(ws.program).findings;
        EXPECT_EQ(findings.filter("save without its trail: REVERSAL").isEmpty(), attack.isTrailKept)
            << findings.join(" / ").toStdString();
    }
}

TEST_P(Who, TextsOfTheTrailAreCutToTheirColumns) {
    const TestHome home(GetParam());
    layAction(home.folder(), actionOf("Receipt"));
    Workstation ws(home.folder());
    ASSERT_TRUE(ws.start());
    ws.program.writeAuditTrail({QString(4000, 'n'), QString(1100, '9'), QString(1100, '9')});
    EXPECT_EQ(ws.ui.takeBoxes(), QStringList());
    Connection trail = trailOf(ws);
    EXPECT_EQ(trail.run("select max(len(userAction)) + max(len(TranCode)) + max(len(Remarks)) as n from AuditTrail")
                  .integer("n"),
              2050);
}

TEST_P(Who, WhatIsTakenFromTheRecordIsFoundAndNamed) {
    const struct {
        const char *action, *named;
    } cases[] = {{"Receipt", "RECEIPT 1 "},
                 {"Reversal", "REVERSAL 2 "},
                 {"Deposit", "DEPOSIT 0"},
                 {"Discount", "DISCOUNT 001OFL"},
                 {"Removal", "BILL ITEM REMOVED 001OFL"},
                 {"Adjustment", "001OFL0000001"},
                 {"SaveWithReceipt", "BILL WITH RECEIPT 1 "}};
    for (const auto& [name, named] : cases) {
        SCOPED_TRACE(name);
        const MoneyAction& action = actionOf(name);
        if (GetParam() == Engine::Postgresql && QString(name) != "Reversal")
            continue; // every database costs seconds there
        const TestHome home(GetParam());
        layAction(home.folder(), action);
        Workstation ws(home.folder());
        act(ws, action, [] {});
        ASSERT_EQ(checkDatabases(ws.program).findings, QStringList());
        trailOf(ws).run("delete from AuditTrail where SNo = (select max(SNo) from AuditTrail where saveToken <> '')");
        const QString lost = checkDatabases(ws.program).findings.join('\n');
        EXPECT_TRUE(lost.contains("save without its trail: ") && lost.contains(QLatin1String(named)))
            << lost.toStdString();
        ws.billing().run("delete from SavedActions where action <> 'OPENING'");
        EXPECT_FALSE(checkDatabases(ws.program).findings.filter("money without its save: ").isEmpty());
    }
}

TEST_P(Who, ARightLostWhileTheScreenIsOpenIsNotUsed) {
    for (const auto& [name, refusal] : {std::pair("Reversal", "You dont have Permission to Reverse a Receipt Entry"),
                                        {"CapitateAll", "Only User with Mgt Previlege can initiate this Action"}})
        for (const char* loss :
             {"delete from UserRoles where RoleID=102", "update ApplicationUsers set AccountStatus='Disabled'"}) {
            SCOPED_TRACE(std::string(name) + ": " + loss);
            const TestHome home(GetParam());
            const MoneyAction& action = actionOf(name);
            layAction(home.folder(), action);
            Workstation ws(home.folder());
            int before = 0;
            const QStringList shown = act(ws, action, [&] {
                before = ws.tableCount("SavedActions");
                ws.program.data().setStatementHook([&](const QString& tsql) {
                    if (tsql != "begin transaction")
                        return;
                    ws.program.data().setStatementHook({});
                    Workstation(home.folder()).run(loss);
                });
            });
            EXPECT_TRUE(shown.contains("box " + QString(refusal))) << shown.join(" / ").toStdString();
            EXPECT_EQ(ws.tableCount("SavedActions"), before);
        }
}

TEST_P(Who, WhoLeftTheAccountsSavesNothingThere) {
    for (const char* name : {"CashAccount", "HandShare", "RevenueCorrection", "CashPosting", "SupplierPosting"}) {
        SCOPED_TRACE(name);
        const TestHome home(GetParam());
        layAction(home.folder(), actionOf(name));
        Workstation ws(home.folder());
        QString before;
        act(ws, actionOf(name), [&] {
            ws.run("delete from UsersForAccts");
            before = moneyFigures(ws);
        });
        EXPECT_EQ(moneyFigures(ws), before);
    }
}

TEST_P(Who, ADisabledUserDoesNotStartNorOneWithoutARole) {
    for (const char* loss : {"update ApplicationUsers set AccountStatus='Disabled'", "delete from UserRoles"}) {
        const TestHome home(GetParam());
        Workstation ws(home.folder());
        ws.layHospital();
        ws.run(loss);
        EXPECT_FALSE(ws.start());
        EXPECT_EQ(ws.ui.takeBoxes(), QStringList("Invalid Login OR session has expired!!! Please Re-login")) << loss;
    }
}

TEST_P(Who, UsersRolesAndPasswordsLeaveTheirRows) {
    const TestHome home(GetParam());
    Workstation ws(home.folder());
    ws.layHospital();
    ASSERT_TRUE(ws.start());
    const std::function<Given<Saved>(Books&)> steps[] = {
        [](Books& books) {
            return addUser(books,
                           {.name = "kemi", .fullName = "K", .password = "p", .status = "Enabled", .branch = ""});
        },
        [](Books& books) { return changeAccountStatus(books, "kemi", "Disabled"); },
        [](Books& books) { return changePassword(books, "kemi", "p", "q"); },
        [](Books& books) { return addRole(books, 900, "AUDIT"); },
        [](Books& books) { return allotRole(books, 101, "kemi"); },
        [](Books& books) { return deleteRole(books, 900); },
    };
    for (const auto& step : steps)
        ASSERT_TRUE(ws.program.desk().save<Saved>("WHO", step));
    EXPECT_EQ(ws.tableCount("SavedActions where action='WHO' and trailRows=1 and username='amina.b'"), 6);
    EXPECT_EQ(
        trailOf(ws).run("select count(distinct saveToken) as n from AuditTrail where saveToken <> ''").integer("n"), 6);
    // The server's own word, whatever clock and name the client has.
    EXPECT_EQ(ws.tableCount("SavedActions where login is null or login = '' or savedAt < '2026-04-01'"), 0);
}

} // namespace
} // namespace orvane
