#include "data/DataError.h"
#include "support/Print.h"
#include "support/Rows.h"
#include "support/TestHome.h"

#include <cmath>
#include <limits>

namespace orvane {

namespace {

const QString kChanged =
    "Row cannot be located for updating. Some values may have been changed since it was last read.";

/// The description of the fault that the call raises; "" when it raises none.
template <typename Call>
QString fault(Call call) {
    try {
        call();
    } catch (const DataError& error) {
        return error.description();
    }
    return {};
}

} // namespace

class RecordsetTest : public EngineTest {
protected:
    void add(const QString& receipt, double amount) {
        billing.execute(Sql("insert into Payments (ReceiptNo, receiptdate, AmountPaid) values ('")
                        << receipt << "', '2026-03-14', " << amount << ")");
    }
};

TEST_P(RecordsetTest, ReadsALongListAsItIsAskedFor) {
    billing.run("insert into BillAccum (drgName, dtDate) values ('SYRINGE', '2026-03-14')");
    for (int i = 0; i < 11; ++i)
        billing.run("insert into BillAccum (drgName, dtDate) select drgName, dtDate from BillAccum");
    const auto list = [this] {
        return Recordset::paged(billing.beside(), Sql("select SNo, DRGNAME, dtDate from BillAccum order by SNo"));
    };
    Recordset rows = list();
    EXPECT_EQ(rows.rowsRead(), 0);
    const Recordset shown = rows.detached();
    EXPECT_FALSE(rows.eof());
    EXPECT_EQ(rows.date("dtdate"), QDate(2026, 3, 14));
    EXPECT_TRUE(rows.has(3));
    EXPECT_FALSE(shown.isWhole());
    EXPECT_EQ(shown.rowsRead(), rows.rowsRead()) << "what one has read is there for both";
    billing.run("insert into BillAccum (drgName) values ('LATER')");
    rows.moveTo(rows.rowsRead() + 700);
    EXPECT_EQ(rows.integer("SNo"), rows.row() + 1);
    EXPECT_FALSE(rows.has(2048));
    EXPECT_EQ(shown.count(), 2048) << "the list as it was when it was asked for";
    EXPECT_TRUE(shown.isWhole());
    const Recordset whole(billing, Sql("select SNo, DRGNAME, dtDate from BillAccum order by SNo"));
    EXPECT_EQ(shown.columns(), whole.columns());
    // Given up half-way it leaves a connection that serves again.
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(list().has(i));
    billing.beside().run("update BillAccum set drgName='GAUZE' where SNo=1");
    EXPECT_EQ(scalar("select drgName from BillAccum where SNo=1"), "GAUZE");
    EXPECT_NE(fault([&] { Recordset::paged(billing.beside(), Sql("select nothing from BillAccum")); }), "");
    EXPECT_NE(fault([&] { list().set("drgName", "x"); }), "") << "is read only";
    if (GetParam() == Engine::Sqlite)
        return;
    Recordset broken =
        Recordset::paged(billing.beside(), Sql("select 1000000 / (SNo - 1500) as Share from BillAccum order by SNo"));
    EXPECT_TRUE(broken.has(900));
    EXPECT_NE(fault([&] { broken.readMore(2000); }), "");
    EXPECT_EQ(fault([&] { broken.readMore(2000); }), "") << "who shows the list is told once";
    EXPECT_TRUE(fault([&] { broken.count(); }).startsWith("division by zero")) << "never a part for the whole";
    const auto walk = [&] {
        for (broken.moveFirst(); !broken.eof();)
            broken.moveNext();
    };
    EXPECT_TRUE(fault(walk).startsWith("division by zero")) << "never a part for the whole";
}

TEST_P(RecordsetTest, WalksRowsAndReadsThemTyped) {
    add("R1", 12);
    add("R2", 0.1);
    billing.run("insert into Payments (ReceiptNo) values (null)");
    Recordset rows(billing, Sql("select SNo, ReceiptNo, AmountPaid, ReceiptDate, isPost from Payments order by SNo"));
    ASSERT_EQ(rows.count(), 3);
    EXPECT_EQ(rows.text("amountpaid"), "12");
    EXPECT_EQ(rows.text("RECEIPTDATE"), "2026-03-14");
    EXPECT_EQ(rows.value("ReceiptDate").typeId(), int(QMetaType::QDate));
    EXPECT_EQ(rows.value("isPost"), QVariant(0LL));
    EXPECT_TRUE(rows.find("receiptno", "r2"));
    EXPECT_EQ(rows.row(), 1);
    EXPECT_EQ(rows.number("AmountPaid"), 0.1);
    rows.moveNext();
    EXPECT_TRUE(rows.isNull("ReceiptNo"));
    EXPECT_EQ(rows.text("ReceiptDate"), QString());
    EXPECT_EQ(rows.number("AmountPaid"), 0);
    EXPECT_FALSE(rows.date("ReceiptDate").isValid());
    EXPECT_FALSE(rows.find("ReceiptNo", "R1")) << "searches from here on";
    EXPECT_TRUE(rows.eof());
    EXPECT_THROW(rows.text("ReceiptNo"), DataError);
    rows.moveFirst();
    EXPECT_THROW(rows.text("NoSuchColumn"), DataError);
    EXPECT_THROW(rows.number("ReceiptNo"), DataError);
}

TEST_P(RecordsetTest, ChangesTheRowThatWasReadAndOnlyThat) {
    add("R1", 10);
    add("R2", 10);
    Recordset row(billing, Sql("select * from Payments where ReceiptNo='R2'"));
    row.set("AmountPaid", 0.1 + 0.2);
    row.set("Remarks", "kept blanks  ");
    row.update();
    // Once more over the same recordset: the old values are those of the last update.
    row.set("Remarks", QVariant());
    row.set("AmountPaid", 5);
    row.update();
    EXPECT_EQ(scalar("select AmountPaid from Payments where ReceiptNo='R2' and Remarks is null"), "5");
    EXPECT_EQ(scalar("select AmountPaid from Payments where ReceiptNo='R1'"), "10");
}

TEST_P(RecordsetTest, ALostUpdateIsAFault) {
    add("R1", 10);
    Recordset mine(billing, Sql("select * from Payments where ReceiptNo='R1'"));
    for (const char* change : {"update Payments set AmountPaid=11 where ReceiptNo='R1'",
                               "update Payments set AmountPaid=null where ReceiptNo='R1'", "delete from Payments"}) {
        Recordset fresh(billing, Sql("select * from Payments where ReceiptNo='R1'"));
        billing.run(change);
        fresh.set("AmountPaid", 99);
        EXPECT_EQ(fault([&] { fresh.update(); }), kChanged) << change;
    }
    EXPECT_EQ(scalar("select count(*) from Payments where AmountPaid=99"), "0");
    mine.set("Remarks", "x");
    EXPECT_EQ(fault([&] { mine.update(); }), kChanged);
}

TEST_P(RecordsetTest, FitsValuesToTheColumn) {
    Recordset row(billing, Sql("select * from Payments where 1=2"));
    const struct {
        const char* column;
        QVariant value;
        const char* stored;
    } cases[] = {{"AmountPaid", " 12.50 ", "12.5"},
                 {"Amountbilled", QString(), "null"},
                 {"ReceiptDate", QDateTime(QDate(2026, 3, 14), QTime(23, 59)), "2026-03-14"},
                 {"isPost", true, "1"},
                 {"ReceiptNo", 42, "42"},
                 {"ChequeNo", QString(), ""}, // an empty text stays a text
                 {"rTime", QTime(9, 5), "09:05:00"},
                 {"billNo", QDate(), "null"}};
    row.addNew();
    for (const auto& one : cases)
        row.set(one.column, one.value);
    row.update();
    for (const auto& one : cases)
        EXPECT_EQ(rowsOf(billing, QStringLiteral("select %1 from Payments").arg(one.column), "null"), one.stored)
            << one.column;
}

TEST_P(RecordsetTest, RefusesWhatTheColumnMayNotHold) {
    Recordset row(billing, Sql("select * from Payments where 1=2"));
    row.addNew();
    const std::pair<QString, QVariantList> cases[] = {
        {"AmountPaid",
         {"1,000", "inf", std::nan(""), std::numeric_limits<double>::infinity(), 1e13, "-10000000000000"}},
        {"isPost", {1.5}},
        {"ReceiptDate", {"14/03/2026", "2026-02-30"}},
        {"Remarks", {QString(QChar(0)), QString(QChar(0xD83D)), std::nan("")}}};
    for (const auto& [column, values] : cases)
        for (const QVariant& value : values)
            EXPECT_TRUE(fault([&] { row.set(column, value); }).contains(column)) << value.toString().toStdString();
    EXPECT_THROW(row.set("NoSuchColumn", 1), DataError);
    Recordset view(billing, Sql("select * from qrySysDateTime"));
    EXPECT_THROW(view.set("sysDT", QDate(2026, 1, 1)), DataError);
}

TEST_P(RecordsetTest, WritesNoMoreWhenItsConnectionIsClosed) {
    Connection brief = data.open(TestHome::billing());
    Recordset row(brief, Sql("select * from Payments where 1=2"));
    { const Connection closed = std::move(brief); }
    row.addNew();
    row.set("ReceiptNo", "R1");
    EXPECT_THROW(row.update(), DataError);
    EXPECT_EQ(scalar("select count(*) from Payments"), "0");
}

ORVANE_ON_EACH_ENGINE(RecordsetTest);

} // namespace orvane
