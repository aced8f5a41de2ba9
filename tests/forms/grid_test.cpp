// The grids: rows of a query, and cells to type into.
#include "data/rows/Connection.h"
#include "data/rows/Recordset.h"
#include "support/SampleForm.h"
#include "support/TestHome.h"
#include "support/TestUi.h"

namespace orvane {
namespace {

class GridTest : public EngineTest {
protected:
    void SetUp() override {
        billing.run("insert into hPatients (PNo, psurname, expirydate, DebtBF) values ('P/0001', 'ADE', '2026-03-14', "
                    "-1234.5), ('P/0002', 'O''NEILL', null, null), ('P/0003', 'BOLA', '2025-12-31', 0)");
    }
    Recordset patients(const char* filter = "") {
        return billing.run(
            QStringLiteral("select PNo, psurname as Surname, expirydate, DebtBF from hPatients %1 order by PNo")
                .arg(QLatin1String(filter)));
    }

    TestUi ui;
    SampleForm form{ui};
    Grid& grid = form.grdRows;
};
ORVANE_ON_EACH_ENGINE(GridTest);

TEST_P(GridTest, ShowsCellsAsTheyAreReadByPeople) {
    grid.load(patients());
    grid.setFormat("debtbf", "#,###.00");
    EXPECT_EQ(grid.cellText(0, 2), "14/03/2026");
    EXPECT_EQ(grid.cellText(0, 3), "-1,234.50");
    EXPECT_EQ(grid.cellText(1, 1), "O'NEILL");
    EXPECT_EQ(grid.cellText(1, 2), "");
    EXPECT_EQ(grid.cellText(1, 3), "") << "a null is no amount";
    EXPECT_TRUE(grid.isNumber(3));
    EXPECT_FALSE(grid.isNumber(0));
    EXPECT_EQ(grid.columnName(1), "Surname");
    EXPECT_EQ(grid.valueText(), "3 rows");
    data.setServerClock(QDateTime(QDate(2026, 3, 14), QTime(9, 30, 5)));
    grid.load(billing.run("select getdate() as At, '2026-02-30' as NoDate, '0123456789' as Digits"));
    EXPECT_EQ(grid.cellText(0, 0), "14/03/2026 09:30");
    EXPECT_EQ(grid.cellText(0, 1), "2026-02-30");
    EXPECT_EQ(grid.cellText(0, 2), "0123456789");
}

TEST_P(GridTest, ReadsTheCurrentRowByColumnNameInAnyLetters) {
    grid.load(patients());
    EXPECT_EQ(grid.currentRow(), 0);
    EXPECT_EQ(grid.text("PNO"), "P/0001");
    EXPECT_EQ(grid.date("ExpiryDate"), QDate(2026, 3, 14));
    EXPECT_DOUBLE_EQ(grid.number("debtbf"), -1234.5);
    form.takeEvents();
    grid.selectRow(1);
    EXPECT_EQ(form.takeEvents(), QStringList{"grdRows Click"});
    EXPECT_DOUBLE_EQ(grid.number("debtbf"), 0) << "null";
    EXPECT_FALSE(grid.date("expirydate").isValid());
    for (const int outside : {3, -1, 1000}) {
        grid.selectRow(outside);
        EXPECT_EQ(grid.currentRow(), -1);
        EXPECT_EQ(grid.text("PNo"), "");
        EXPECT_DOUBLE_EQ(grid.number("DebtBF"), 0);
    }
    EXPECT_EQ(form.takeEvents(), QStringList{}) << "no row, no event";
    EXPECT_EQ(grid.findRow("surname", "bola"), 2);
    EXPECT_EQ(grid.findRow("surname", "NOBODY"), -1);
    EXPECT_EQ(grid.columnIndex("nothing"), -1);
}

TEST_P(GridTest, KeepsHiddenColumnsAndFormatsOverANewLoad) {
    grid.hide({"PNO", "noSuchColumn"});
    grid.setFormat("DebtBF", "#,###.00");
    grid.load(patients());
    grid.selectRow(2);
    grid.load(patients("where PNo <> 'P/0001'"));
    EXPECT_TRUE(grid.isHidden(0));
    EXPECT_FALSE(grid.isHidden(1));
    EXPECT_EQ(grid.format(3), "#,###.00");
    EXPECT_EQ(grid.currentRow(), 0) << "rows that are new begin at the first";
    EXPECT_EQ(grid.text("PNo"), "P/0002") << "a hidden column is read like any other";
    grid.load(patients("where 1=2"));
    EXPECT_EQ(grid.currentRow(), -1);
    EXPECT_EQ(grid.columnCount(), 4);
    grid.showAllColumns();
    EXPECT_FALSE(grid.isHidden(0));
    grid.clear();
    EXPECT_EQ(grid.rowCount(), 0);
    EXPECT_EQ(grid.columnCount(), 0);
    EXPECT_EQ(grid.findRow("PNo", "P/0001"), -1);
}

/// PostgreSQL tells a fault of the rows when they are read, SQLite already when they are asked for.
TEST_P(GridTest, AListThatCannotBeReadLeavesNoCurrentRow) {
    if (GetParam() != Engine::Postgresql)
        GTEST_SKIP() << "its faults come before the load";
    grid.load(patients());
    grid.selectRow(2);
    EXPECT_THROW(grid.load(Recordset::paged(billing.beside(), Sql("select 1 / (0 * DebtBF) as PNo from hPatients"))),
                 DataError);
    EXPECT_EQ(grid.currentRow(), -1);
    EXPECT_EQ(grid.text("PNo"), "");
}

TEST(EntryGridTest, HoldsCellsByRowBelowItsHead) {
    TestUi ui;
    SampleForm form(ui);
    EntryGrid& grid = form.grdEntry;
    EXPECT_EQ(grid.columns(), 2);
    EXPECT_EQ(grid.head(0), "Item") << "dashes are padding";
    EXPECT_EQ(grid.head(1), "Price");
    EXPECT_EQ(grid.rows(), 2) << "the head and the empty row";
    grid.setCell(1, 0, "SYRINGE");
    grid.setCell(1, 1, "120.00");
    grid.addRow();
    grid.setCell(2, 0, "GAUZE");
    form.takeEvents();
    grid.selectRow(2);
    EXPECT_EQ(form.takeEvents(), QStringList{"grdEntry Click"});
    grid.selectRow(0);
    EXPECT_EQ(grid.currentRow(), -1) << "the head is no row";
    grid.selectRow(1);
    grid.removeRow(1);
    EXPECT_EQ(grid.currentRow(), -1);
    EXPECT_EQ(grid.cell(1, 0), "GAUZE");
    EXPECT_EQ(grid.cell(1, 1), "");
    grid.clear();
    EXPECT_EQ(grid.rows(), 2);
    EXPECT_EQ(grid.cell(1, 0), "");
}

} // namespace
} // namespace orvane
