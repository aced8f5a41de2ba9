#include "data/DataError.h"
#include "data/rows/Recordset.h"
#include "data/rows/Transaction.h"
#include "support/TestHome.h"

#include <set>
#include <thread>

namespace orvane {

class ProceduresTest : public EngineTest {
protected:
    QVariantMap auditRow(const QString& action) {
        return {{"userName", "amina.b"},      {"@userAction", action}, {"ActionDate", QDate(2026, 3, 14)},
                {"ActionTime", QTime(9, 30)}, {"TranCode", "R1"},      {"Remarks", QString()},
                {"Src", "BILLING: from DESK"}};
    }

    Connection audit() {
        return GetParam() == Engine::Sqlite ? data.open("Server=SERVER;Database=Audit")
                                            : data.open(TestHome::billing());
    }
};

TEST_P(ProceduresTest, RefusesWrongCalls) {
    EXPECT_THROW(billing.call("noSuchProcedure"), DataError);
    EXPECT_THROW(billing.call("getIDNo"), DataError);
    EXPECT_THROW(billing.call("getIDNo", {{"DestName", "X"}, {"Other", 1}}), DataError);
}

TEST_P(ProceduresTest, AnAuditRowSurvivesARollback) {
    {
        Transaction transaction(billing);
        billing.run("insert into Payments (ReceiptNo) values ('R1')");
        billing.call("spauditrail", auditRow("Save O'NEILL"));
    }
    Connection trail = audit();
    const Recordset row(trail, Sql("select * from AuditTrail"));
    ASSERT_EQ(row.count(), 1);
    EXPECT_EQ(row.text("userAction"), "Save O'NEILL");
    EXPECT_EQ(row.text("ActionDate"), "2026-03-14");
    EXPECT_EQ(row.text("ActionTime"), "09:30:00");
    EXPECT_EQ(scalar("select count(*) from Payments"), "0");
}

TEST_P(ProceduresTest, ANumberIsGivenOnce) {
    EXPECT_TRUE(billing.call("getIDNo", {{"DestName", "INVOICE"}}).eof()) << "no such counter: no row";
    billing.run("update IDgen set ID=41 where DestName='RECEIPT2'");
    EXPECT_EQ(billing.call("getIDNo", {{"@DestName", "receipt2"}}).text("getIDNo"), "42");
    {
        Transaction transaction(billing);
        EXPECT_EQ(billing.call("getIDNo", {{"DestName", "RECEIPT2"}}).text(0), "43");
    }
    EXPECT_EQ(scalar("select ID from IDgen where DestName='RECEIPT2'"), "42")
        << "goes back with the caller's transaction";

    std::array<std::vector<qlonglong>, 3> numbers;
    std::vector<std::thread> threads;
    for (auto& own : numbers) {
        threads.emplace_back([&own, this] {
            DataSource workstation(home.folder());
            for (int i = 0; i < 20; ++i) {
                Connection connection = workstation.open(TestHome::billing());
                own.push_back(
                    connection.call(QStringLiteral("getIDNo"), {{"DestName", "RECEIPT2"}}).integer("getIDNo"));
            }
        });
    }
    std::set<qlonglong> all;
    for (std::size_t i = 0; i < threads.size(); ++i) {
        threads[i].join();
        all.insert(numbers[i].begin(), numbers[i].end());
    }
    EXPECT_EQ(all.size(), 60u);
    EXPECT_EQ(*all.rbegin(), 102);
}

TEST_P(ProceduresTest, RevenueTypesComeFromTheItemMasters) {
    for (const char* tsql : {"insert into drugMaster (drgName, revType) values ('PARACETAMOL', 'DRUGS')",
                             "insert into drugMaster (drgName, revType) values ('SWAB', '')",
                             "insert into labservices (Drgname, revType) values ('FBC', 'LABORATORY')",
                             "insert into hservices (service, revType) values ('SWAB', 'NURSING')"})
        billing.run(QString::fromUtf8(tsql));
    const struct {
        const char* item;
        const char* before;
        const char* after;
    } cases[] = {{"paracetamol", "null", "DRUGS"},
                 {"FBC", "''", "LABORATORY"},
                 {"SWAB", "'OTHERS'", "NURSING"},
                 {"PARACETAMOL", "'CHOSEN'", "CHOSEN"},
                 {"UNKNOWN", "'OTHERS'", "OTHERS"}};
    for (const char* bill : {"V1", "V2"}) {
        for (const auto& one : cases) {
            billing.run(QStringLiteral("insert into BillAccum (consultID, drgName, revType) values ('%1', '%2', %3)")
                            .arg(bill, one.item, one.before));
            billing.run(QStringLiteral("insert into BillingDetails (billNo, drgName, revType) values ('%1', '%2', %3)")
                            .arg(bill, one.item, one.before));
        }
    }
    billing.run("insert into Billing (billNo, isProcess) values ('V2', 1)");
    billing.call("updateRevType", {{"@ConsultID", "V1"}});
    billing.call("updateRevType", {{"@ConsultID", "V2"}});
    const auto check = [this, &cases](const char* table, bool filled) {
        Recordset rows = billing.run(QString::fromUtf8(table));
        for (const auto& one : cases) {
            const QString before = QString::fromUtf8(one.before).remove(u'\'').replace("null", QString());
            EXPECT_EQ(rows.text(0), filled ? QString::fromUtf8(one.after) : before) << table << " " << one.item;
            rows.moveNext();
        }
    };
    check("select revType from BillAccum where consultID='V1' order by SNo", true);
    check("select revType from BillingDetails where billNo='V1' order by detID", true);
    check("select revType from BillAccum where consultID='V2' order by SNo", true);
    check("select revType from BillingDetails where billNo='V2' order by detID", false); // processed
}

ORVANE_ON_EACH_ENGINE(ProceduresTest);

} // namespace orvane
