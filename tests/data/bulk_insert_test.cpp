#include "data/rows/BulkInsert.h"
#include "data/rows/Schema.h"
#include "data/rows/Transaction.h"
#include "support/Print.h"
#include "support/Rows.h"
#include "support/TestHome.h"

#include <limits>

using namespace orvane;

namespace {

class BulkInsertTest : public EngineTest {};

TEST_P(BulkInsertTest, leavesTheRowsThatRecordsetsWouldHaveLeft) {
    const RowValues rows[] = {
        {{"PNo", "1/001"}, {"psurname", "O'NEILL"}, {"DebtBF", -0.1}, {"DOB", QDate(1999, 12, 31)}},
        {{"PNo", "2/001"}, {"psurname", "a\\b\n\"c\" -- ; ? %1"}, {"DebtBF", 0.1 + 0.2}, {"DOB", QDate()}},
        {{"PNo", "3/001"}, {"psurname", QString()}, {"DebtBF", QVariant()}, {"DOB", "2024-02-29"}},
        {{"PNo", "4/001"}, {"psurname", QString::fromUtf8("ỌLÁ ÀDÙKẸ́ 😀 ")}, {"DebtBF", 9999999999999.0}, {"DOB", ""}},
    };
    const QString ofAll = "select PNo,psurname,fullname,DebtBF,DOB from hPatients order by PNo";
    Recordset single(billing, Sql("select * from hPatients where 1=2"));
    for (const RowValues& row : rows) {
        single.addNew();
        for (const auto& [column, value] : row)
            single.set(column, value);
        single.update();
    }
    const QString expected = rowsOf(billing, ofAll, "null");
    ASSERT_TRUE(expected.contains("4/001"));
    billing.run("delete from hPatients");
    Transaction transaction(billing);
    BulkInsert patients(billing, "hPatients");
    for (const RowValues& row : rows)
        patients.add(row);
    patients.flush();
    transaction.commit();
    EXPECT_EQ(rowsOf(billing, ofAll, "null"), expected);
}

TEST_P(BulkInsertTest, numbersManyRowsInTheirOrderAndRefusesWhatNoColumnMayHold) {
    constexpr int count = 1201; // two full statements and a rest
    Transaction transaction(billing);
    BulkInsert items(billing, "BillAccum");
    for (int i = 1; i <= count; ++i)
        items.add({{"consultID", QString::number(i)}, {"SubTotal", i}});
    items.flush();
    EXPECT_EQ(scalar("select count(*) from BillAccum where cast(consultID as bigint)=SNo and SubTotal=SNo"), "1201");
    const QVariant refused[] = {std::numeric_limits<double>::quiet_NaN(), 1e13, "12,5"};
    for (const QVariant& value : refused)
        EXPECT_THROW(items.add({{"consultID", "x"}, {"SubTotal", value}}), DataError) << value.toString().toStdString();
    items.add({{"consultID", "next"}, {"SubTotal", 0}});
    items.flush();
    EXPECT_EQ(scalar("select count(*) from BillAccum"), "1202");
}

TEST_P(BulkInsertTest, theIndexesComeBackAsTheyWere) {
    const bool sqlite = GetParam() == Engine::Sqlite;
    const auto indexes = [&] {
        return rowsOf(billing, sqlite
                                   ? "select name,sql from sqlite_master where type='index' and sql is not null order "
                                     "by 1"
                                   : "select indexname,indexdef from pg_indexes where schemaname='public' and not "
                                     "indexname like '%_pkey' order by 1");
    };
    const QString before = indexes();
    ASSERT_GT(before.count(u'\n'), 60);
    dropIndexes(billing, "billing");
    EXPECT_EQ(indexes(), "");
    createIndexes(billing, "billing");
    EXPECT_EQ(indexes(), before);
}

ORVANE_ON_EACH_ENGINE(BulkInsertTest);

} // namespace
