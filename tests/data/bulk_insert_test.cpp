#include "data/rows/BulkInsert.h"
#include "data/rows/Recordset.h"
#include "data/rows/Schema.h"
#include "data/rows/Transaction.h"
#include "support/TestHome.h"

#include <limits>

using namespace orvane;

namespace {

class BulkInsertTest : public EngineTest {
protected:
    QStringList lines(const QString& tsql) {
        QStringList all;
        for (Recordset row = billing.run(tsql); !row.eof(); row.moveNext()) {
            QStringList cells;
            for (int column = 0; column < int(row.columns().size()); ++column)
                cells.append(row.value(column).isNull() ? "null" : '"' + row.text(column) + '"');
            all.append(cells.join(','));
        }
        return all;
    }
};

TEST_P(BulkInsertTest, leavesTheRowsThatRecordsetsWouldHaveLeft) {
    const RowValues rows[] = {
        {{"PNo", "1/001"}, {"psurname", "O'NEILL"}, {"DebtBF", -0.1}, {"DOB", QDate(1999, 12, 31)}},
        {{"PNo", "2/001"}, {"psurname", "a\\b\n\"c\" -- ; ? %1"}, {"DebtBF", 0.1 + 0.2}, {"DOB", QDate()}},
        {{"PNo", "3/001"}, {"psurname", QString()}, {"DebtBF", QVariant()}, {"DOB", "2024-02-29"}},
        {{"PNo", "4/001"}, {"psurname", QString::fromUtf8("ỌLÁ ÀDÙKẸ́ 😀 ")}, {"DebtBF", 9999999999999.0}, {"DOB", ""}},
    };
    const auto ofAll = QStringLiteral("select PNo,psurname,fullname,DebtBF,DOB from hPatients order by PNo");
    {
        Transaction transaction(billing);
        Recordset patients(billing, Sql("select * from hPatients where 1=2"));
        for (const RowValues& row : rows) {
            patients.addNew();
            for (const auto& [column, value] : row)
                patients.set(column, value);
            patients.update();
        }
        transaction.commit();
    }
    const QStringList expected = lines(ofAll);
    ASSERT_EQ(expected.size(), 4);
    billing.run("delete from hPatients");
    Transaction transaction(billing);
    BulkInsert patients(billing, "hPatients");
    for (const RowValues& row : rows)
        patients.add(row);
    patients.flush();
    transaction.commit();
    EXPECT_EQ(lines(ofAll), expected);
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
    const QString indexes = GetParam() == Engine::Sqlite
                                ? "select name,sql from sqlite_master where type='index' and sql is not null order by 1"
                                : "select indexname,indexdef from pg_indexes where schemaname='public' order by 1";
    const QStringList before = lines(indexes);
    ASSERT_GT(before.size(), 60);
    dropIndexes(billing, "billing");
    const auto keys = lines(indexes).filter("_pkey"); // PostgreSQL names those of the primary keys
    EXPECT_EQ(lines(indexes), keys);
    createIndexes(billing, "billing");
    EXPECT_EQ(lines(indexes), before);
}

ORVANE_ON_EACH_ENGINE(BulkInsertTest);

} // namespace
