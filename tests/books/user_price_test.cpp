// Base costs, accounts, roles and the trails of those who log on.
#include "books/BooksTest.h"
#include "books/DrugPrice.h"
#include "books/Trail.h"
#include "books/User.h"

namespace orvane {
namespace {

class UserAndPriceRules : public BooksTest {
protected:
    using Step = std::function<Given<Saved>(Books&)>;
    struct Case {
        const char* name;
        Step step;
        QString outcome;
        const char* recorded;
        const char* query; ///< what is in the database then
        const char* found;
    };
    void expect(std::initializer_list<Case> cases) {
        for (const Case& test : cases) {
            SCOPED_TRACE(test.name);
            EXPECT_EQ(save<Saved>(test.step), test.outcome);
            if (test.outcome == "saved")
                EXPECT_EQ(recorded, test.recorded);
            EXPECT_EQ(row(test.query), test.found);
        }
    }
};
ORVANE_ON_EACH_ENGINE(UserAndPriceRules);

TEST(BaseCost, UndoesAMarkUp) {
    const struct {
        double stated, percent;
        std::optional<double> base;
    } cases[] = {{120, 20, 100}, {1000, 33, 751.88}, {2500, 0, 2500}, {0, 20, 0}, {100, -50, 200}, {120, -100, {}}};
    for (const auto& test : cases)
        EXPECT_EQ(baseCost(test.stated, test.percent), test.base) << test.stated << ' ' << test.percent;
}

TEST_P(UserAndPriceRules, PricesChangeByName) {
    const auto price = [](const char* drug, double cost) -> Step {
        return [=](Books& books) { return changeDrugPrice(books, {.drug = drug, .unitDosage = "60", .cost = cost}); };
    };
    const char* const drug = "select Cost, qtyPerUnit, drgCatName from drugs where drgName='AMOXICILLIN 500MG'";
    expect({{"a drug", price("AMOXICILLIN 500MG", 99.5), "saved", "AMOXICILLIN 500MG|99.5", drug, "99.5|60|TABLETS"},
            {"no drug", price("O'NO", 1), "There is no Drug or Service of this name", "",
             "select count(*) from drugs where Cost=99.5 or qtyPerUnit=60", "1"}});
    billing.run(
        "insert into drugsxxx (drgName, drgCatName, qtyPerUnit, Cost) values ('NEW TONIC', 'SYRUPS', null, 75.5)");
    const Step load = [](Books& books) -> Given<Saved> {
        takePriceLoad(books);
        return Saved{};
    };
    expect({{"load", load, "saved", "PRICE LOAD|0",
             "select drgCatName, qtyPerUnit, Cost from drugs where drgName='NEW TONIC'", "SYRUPS||75.5"}});
    billing.run("insert into drugsxxx (drgName, Cost) values ('AAA FIRST', 1)");
    EXPECT_THROW(save<Saved>(load), DataError) << "one of the drugs is there already";
    EXPECT_EQ(row("select count(*) from drugs where drgName='AAA FIRST'"), "0");
}

TEST_P(UserAndPriceRules, AccountsAndRoles) {
    const auto add = [](const char* name) -> Step {
        return [=](Books& books) {
            return addUser(books,
                           {.name = name, .fullName = "M", .password = "Pw'1", .status = "Enabled", .branch = {}});
        };
    };
    const auto status = [](const char* name, const char* wanted) -> Step {
        return [=](Books& books) { return changeAccountStatus(books, name, wanted); };
    };
    const auto password = [](const char* name, const char* old) -> Step {
        return [=](Books& books) { return changePassword(books, name, old, "N'ew 2"); };
    };
    const auto allot = [](const char* name) -> Step { return [=](Books& books) { return allotRole(books, 7, name); }; };
    const Step addWard = [](Books& books) { return addRole(books, 7, "WARD'S"); };
    const Step deleteWard = [](Books& books) { return deleteRole(books, 7); };
    const char* const musa = "select Password, AccountStatus from ApplicationUsers where Username='musa'";
    const char* const ward = "select LoginRole from Roles where RoleID=7";
    const char* const holders = "select count(*) from UserRoles where RoleID=7";
    const QString unknown = "Alert! Indicated username not found in the list of accredited users.";
    expect({
        {"add", add("musa"), "saved", "musa|0", musa, "Pw'1|Enabled"},
        {"add again", add("MUSA"), "Alert! Username already assigned to someone else.", "", musa, "Pw'1|Enabled"},
        {"status", status("Musa", "Disabled"), "saved", "Musa|0", musa, "Pw'1|Disabled"},
        {"status of nobody", status("nobody", "Disabled"), unknown, "", musa, "Pw'1|Disabled"},
        {"wrong password", password("musa", "wrong"), unknown, "", musa, "Pw'1|Disabled"},
        {"password of nobody", password("nobody", "Pw'1"), unknown, "", musa, "Pw'1|Disabled"},
        {"no way round", password("musa", "' or '1'='1"), unknown, "", musa, "Pw'1|Disabled"},
        {"password", password("musa", "Pw'1"), "saved", "musa|0", musa, "N'ew 2|Disabled"},
        {"another's", status("musa", "Enabled"), "saved", "musa|0",
         "select Password from ApplicationUsers where Username='amina.b'", ""},
        {"no role", deleteWard, "Attempted to delete a non existing Role ", "", ward, ""},
        {"role", addWard, "saved", "7|0", ward, "WARD'S"},
        {"role again", addWard, "Attempted creating a RoleID %1 that already exists.", "", ward, "WARD'S"},
        {"allot", allot("musa"), "saved", "musa|0", holders, "1"},
        {"allot again", allot("musa"), "Submission Failed! Matching Record Exists.", "", holders, "1"},
        {"held", deleteWard, "Attempted deleting the Role for %1 that would lead to orphan User Accounts.", "", ward,
         "WARD'S"},
    });
    billing.run("delete from UserRoles where RoleID=7");
    expect({{"delete", deleteWard, "saved", "7|0", ward, ""}});
}

TEST_P(UserAndPriceRules, TrailsAreNoSavesOfTheirUser) {
    const QDateTime at(QDate(2026, 3, 14), QTime(9, 30, 45));
    qlonglong first = 0, second = 0;
    const auto trail = [&](const std::function<void(Books&)>& write) {
        save<Saved>([&](Books& books) -> Given<Saved> {
            write(books);
            return Saved{};
        });
        EXPECT_EQ(recorded, "|0");
    };
    trail([&](Books& books) {
        first = openUserActivity(books, {.at = at, .remarks = "BILLING"});
        second = openUserActivity(books, {.at = at, .isLogout = true, .autoLogoff = true, .remarks = "other"});
        closeUserActivity(books, first, {.at = at.addDays(1), .isLogout = true, .remarks = "BILLING"});
        closeUserActivity(books, 999, {.at = at, .isLogout = true, .remarks = "gone"});
        trailLogonFailure(books, "musa", at);
        trailLogonSuccess(books, "musa", at);
    });
    EXPECT_EQ(second, first + 1);
    const QString activity = "select username, LoginDate, LoginTime, islogout, LogoutDate, LogoutTime, AutoLogoff, "
                             "Remarks from UserActivities where SNo=%1";
    EXPECT_EQ(row(activity.arg(first)), "amina.b|2026-03-14|09:30|1|2026-03-15|09:30|0|BILLING");
    EXPECT_EQ(row(activity.arg(second)), "amina.b|2026-03-14|09:30|1|2026-03-14|09:30|1|other");
    EXPECT_EQ(row("select count(*), count(distinct LoginAction), min(LoginName), min(LoginDate), min(LoginTime) from "
                  "LoginTrail"),
              "2|2|musa|2026-03-14|09:30:45");
}

} // namespace
} // namespace orvane
