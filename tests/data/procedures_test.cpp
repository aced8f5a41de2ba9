#include "data/DataError.h"
#include "data/rows/Recordset.h"
#include "data/rows/Transaction.h"
#include "support/Print.h"
#include "support/Rows.h"
#include "support/TestHome.h"

namespace orvane {

class ProceduresTest : public EngineTest {};

TEST_P(ProceduresTest, RefusesWrongCalls) {
    EXPECT_THROW(billing.call("noSuchProcedure"), DataError);
    EXPECT_THROW(billing.call("getIDNo"), DataError);
    EXPECT_THROW(billing.call("getIDNo", {{"DestName", "X"}, {"Other", 1}}), DataError);
}

TEST_P(ProceduresTest, AnAuditRowSurvivesARollback) {
    {
        Transaction transaction(billing);
        billing.run("insert into Payments (ReceiptNo) values ('R1')");
        billing.call("spauditrail", {{"userName", "amina.b"},
                                     {"@userAction", "Save O'NEILL"},
                                     {"ActionDate", QDate(2026, 3, 14)},
                                     {"ActionTime", QTime(9, 30)},
                                     {"TranCode", "R1"},
                                     {"Remarks", QString()},
                                     {"Src", "BILLING: from DESK"},
                                     {"saveToken", "T1"}});
    }
    Connection trail = data.open(GetParam() == Engine::Sqlite ? "Server=SERVER;Database=Audit" : TestHome::billing());
    EXPECT_EQ(rowsOf(trail, "select userName,userAction,ActionDate,ActionTime,TranCode,Src,saveToken from AuditTrail"),
              "amina.b|Save O'NEILL|2026-03-14|09:30:00|R1|BILLING: from DESK|T1");
    EXPECT_EQ(scalar("select count(*) from Payments"), "0");
}

TEST_P(ProceduresTest, ANumberIsGivenOnce) {
    const LeastRights login(home);
    Connection own = data.open(TestHome::billing());
    // Else another workstation could come between the step of the counter and its reading.
    data.setStatementHook([this](const QString& tsql) {
        if (tsql.contains("IDgen"))
            EXPECT_EQ(data.openTransactions(), 1) << tsql.toStdString();
    });
    EXPECT_EQ(own.call("getIDNo", {{"@DestName", "NEW"}}).text("getIDNo"), "1") << "makes its counter";
    EXPECT_EQ(own.call("getIDNo", {{"DestName", "new"}}).text("getIDNo"), "2");
    {
        Transaction transaction(own);
        EXPECT_EQ(own.call("getIDNo", {{"DestName", "NEW"}}).text(0), "3");
    }
    data.setStatementHook({});
    EXPECT_EQ(scalar("select ID from IDgen where DestName='NEW'"), "2") << "goes back with the caller's transaction";
}

TEST_P(ProceduresTest, RevenueTypesComeFromTheItemMasters) {
    addRows(billing, "drugMaster (drgName, revType)", {"'PARACETAMOL', 'DRUGS'", "'SWAB', ''"});
    addRows(billing, "labservices (Drgname, revType)", {"'FBC', 'LABORATORY'"});
    addRows(billing, "hservices (service, revType)", {"'SWAB', 'NURSING'"});
    for (const char* bill : {"V1", "V2"}) {
        for (const char* item : {"'paracetamol', null", "'FBC', ''", "'SWAB', 'OTHERS'", "'PARACETAMOL', 'CHOSEN'",
                                 "'UNKNOWN', 'OTHERS'"}) {
            const std::string row = '\'' + std::string(bill) + "', " + item;
            addRows(billing, "BillAccum (consultID, drgName, revType)", {row.c_str()});
            addRows(billing, "BillingDetails (billNo, drgName, revType)", {row.c_str()});
        }
    }
    billing.run("insert into Billing (billNo, isProcess) values ('V2', 1)");
    const QString untouched = "||OTHERS|CHOSEN|OTHERS", filled = "DRUGS|LABORATORY|NURSING|CHOSEN|OTHERS";
    for (const char* bill : {"V1", "V2"}) {
        const auto types = [&](const char* of) {
            return rowsOf(billing, QStringLiteral("select revType from ") + QString(of).arg(bill)).replace(u'\n', u'|');
        };
        billing.call("updateRevType", {{"@ConsultID", bill}});
        const QString& expected = bill == QLatin1StringView("V2") ? untouched : filled;
        EXPECT_EQ(types("BillAccum where consultID='%1' order by SNo"), expected) << bill;
        EXPECT_EQ(types("BillingDetails where billNo='%1' order by detID"), expected) << bill;
    }
}

ORVANE_ON_EACH_ENGINE(ProceduresTest);

} // namespace orvane
