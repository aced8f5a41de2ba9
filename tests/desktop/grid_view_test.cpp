// Grids on the screen: sorting, choosing and keeping the place.
#include "desktop/GridBinding.h"
#include "desktop/GridModel.h"
#include "desktop/Mnemonics.h"
#include "desktop/TableView.h"
#include "desktop/TotalsLine.h"
#include "desktop/ViewTest.h"
#include "support/TestHome.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QTreeView>

namespace orvane {
namespace {

class GridViewTest : public ViewTest {
protected:
    void SetUp() override {
        billing.run(QStringLiteral(
            "create table Lines (SNo int, Service varchar(50), Amount float, Paid varchar(10), Secret varchar(9))"));
        billing.run(QStringLiteral("insert into Lines values (1, 'dressing', 900, '2026-03-14', 'x'), "
                                   "(2, 'Consultation', 7500, '2025-12-31', 'x'), (3, 'X-RAY', null, null, 'x'), "
                                   "(4, 'drip', 900, '2026-01-05', 'x'), (5, 'ADMISSION', -50.5, '2024-02-29', 'x')"));
        form.grdRows.hide({"secret"});
        form.grdRows.setFormat("Amount", "#,###.00");
        form.grdRows.load(lines());
        ViewTest::SetUp();
    }
    Recordset lines(int times = 1) {
        QString text = "select SNo, Service, Amount, Paid, Secret from Lines";
        for (int i = 1; i < times; ++i)
            text += QStringLiteral(" union all select SNo + %1, Service, Amount, Paid, Secret from Lines").arg(5 * i);
        return billing.run(text + " order by SNo");
    }
    TableView* tableOf(const Control& grid) {
        return static_cast<GridBinding*>(window->view()->bindingOf(grid))->table();
    }
    TableView* table() { return tableOf(form.grdRows); }
    QStringList column(int number) {
        QStringList texts;
        for (int row = 0; row < table()->model()->rowCount(); ++row)
            texts << table()->model()->index(row, number).data().toString();
        return texts;
    }
    void clickHead(int number) {
        QHeaderView* head = table()->horizontalHeader();
        QTest::mouseClick(head->viewport(), Qt::LeftButton, {},
                          QPoint(head->sectionViewportPosition(number) + 5, head->height() / 2));
        settleEvents();
    }
    void clickRow(int row, TableView* in) {
        QTest::mouseClick(in->viewport(), Qt::LeftButton, {}, in->visualRect(in->model()->index(row, 0)).center());
        settleEvents();
    }
    void clickRow(int row) { clickRow(row, table()); }
    /// A list that the view has shown, but for what it reads on.
    void load(const Recordset& rows) {
        form.grdRows.load(rows);
        window->view()->refreshNow();
    }
    int shownRow() { return table()->currentIndex().row(); }

    TestHome home;
    DataSource data{home.folder()};
    Connection billing = data.open(TestHome::billing());
};

TEST_F(GridViewTest, ShowsTheRowsAsTheyAreReadByPeople) {
    EXPECT_EQ(column(2), (QStringList{"900.00", "7,500.00", "", "900.00", "-50.50"}));
    EXPECT_EQ(column(3).first(), "14/03/2026");
    EXPECT_TRUE(table()->isColumnHidden(4));
    EXPECT_TRUE(table()->model()->index(0, 2).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_FALSE(table()->model()->index(0, 1).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_EQ(shownRow(), 0);
    int wide = 0;
    for (int i = 0; i < 4; ++i)
        wide += table()->columnWidth(i);
    EXPECT_EQ(wide, table()->viewport()->width()) << "the columns fill the room";
}

TEST_F(GridViewTest, TellsItsTotalsItsRowsAndCopiesThem) {
    const auto* line = table()->parentWidget()->findChild<TotalsLine*>();
    ASSERT_TRUE(line && line->isVisible());
    EXPECT_EQ(line->text(), "Total of all 5 rows:   Amount 9,249.50") << "and no hidden or plain column";
    form.grdRows.setSummed("SNo", true);
    form.grdRows.setSummed("Amount", false);
    settleEvents();
    EXPECT_EQ(line->text(), "Total of all 5 rows:   SNo 15.00") << "as the screen says";
    form.grdRows.setSummed("SNo", false);
    form.grdRows.setSummed("Amount", true);
    form.grdRows.load(lines(400));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return line->text().startsWith("Total of all 2,000 rows:   Amount 3,699,800.00");
    })) << qPrintable(line->text());
    form.grdRows.clear();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !line->isVisible(); })) << "nothing to sum";
    form.grdRows.load(lines());
    form.grdRows.selectRow(1);
    settleEvents();
    EXPECT_EQ(table()->accessibleName(), "Rows") << "what stands around it";
    EXPECT_EQ(table()->currentIndex().data(Qt::AccessibleTextRole).toString(),
              "SNo 2, Service Consultation, Amount 7,500.00, Paid 31/12/2025");
    QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "SNo\tService\tAmount\tPaid\n2\tConsultation\t7,500.00\t31/12/2025\n");
}

TEST_F(GridViewTest, RowsMarkedBesideTheCurrentOneAreSummedAndCopied) {
    const auto* line = table()->parentWidget()->findChild<TotalsLine*>();
    const QString all = "Total of all 5 rows:   Amount 9,249.50";
    table()->setFocus();
    clickRow(1);
    const struct {
        int row;
        Qt::KeyboardModifier with;
        const char* marked;
        int current;
    } cases[] = {{3, Qt::ShiftModifier, "3 marked:   Amount 8,400.00     |     ", 3},
                 {4, Qt::ControlModifier, "4 marked:   Amount 8,349.50     |     ", 4},
                 {4, Qt::ControlModifier, "3 marked:   Amount 8,400.00     |     ", 3}, // taken away again
                 {0, Qt::NoModifier, "", 0}};
    for (const auto& [row, with, marked, current] : cases) {
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, with,
                          table()->visualRect(table()->model()->index(row, 0)).center());
        settleEvents();
        EXPECT_EQ(line->text(), marked + all);
        EXPECT_EQ(form.grdRows.currentRow(), current) << "one of the marked ones";
        EXPECT_EQ(shownRow(), current);
    }
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_C})
        QTest::keyClick(table(), key, key == Qt::Key_C ? Qt::ControlModifier : Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
              "SNo\tService\tAmount\tPaid\n1\tdressing\t900.00\t14/03/2026\n2\tConsultation\t7,500.00\t31/12/2025\n");
}

TEST_F(GridViewTest, FindsWhatItsCellsShowRoundTheEnd) {
    focus(form.txtName);
    QTest::keyClick(editor(form.txtName), Qt::Key_F, Qt::ControlModifier);
    auto* text = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(text && text->isVisible());
    events();
    const struct {
        const char* typed;
        QVector<Qt::KeyboardModifiers> enters;
        int found;
    } cases[] = {{"dr", {{}}, 3},
                 {"DR", {{}}, 0}, // from the top again
                 {"2025", {{}}, 1},
                 {"900", {Qt::ShiftModifier, Qt::ShiftModifier}, 3},
                 {"x\n", {{}}, 2}};
    for (const auto& [typed, enters, found] : cases) {
        text->clear();
        QTest::keyClicks(text, QString(typed).trimmed());
        for (const Qt::KeyboardModifiers with : enters)
            QTest::keyClick(text, Qt::Key_Return, with);
        settleEvents();
        EXPECT_EQ(form.grdRows.currentRow(), found) << typed;
    }
    EXPECT_FALSE(form.takeEvents().contains("cmdSave Click")) << "Enter is the line's own";
    QTest::keyClicks(text, "y");
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(form.grdRows.currentRow(), 2);
    QTest::keyClick(text, Qt::Key_Escape);
    EXPECT_TRUE(table()->hasFocus() && !text->isVisible() && !form.isClosed());
}

TEST_F(GridViewTest, ARightClickExportsAndChoosesColumnsWhichAreRemembered) {
    Memory memory;
    memory.setFile(QDir(home.folder()).filePath("desk.ini"));
    const auto reopen = [&] {
        if (window)
            window->release();
        window = std::make_unique<FormWindow>(form, ViewSetting{{}, false, 1, &memory});
        window->resize(1100, 640);
        window->show();
        settleEvents();
    };
    const auto choose = [&](const QString& entry) {
        const QPoint place = table()->visualRect(table()->model()->index(2, 0)).center();
        QTest::mouseClick(table()->viewport(), Qt::RightButton, {}, place);
        QContextMenuEvent asked(QContextMenuEvent::Mouse, place, table()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(table()->viewport(), &asked);
        for (QAction* action : QApplication::activePopupWidget()->findChildren<QAction*>())
            if (Mnemonics::plain(action->text()) == entry)
                action->trigger();
        QApplication::activePopupWidget()->close();
        settleEvents();
    };
    reopen();
    choose("Service");
    EXPECT_EQ(form.grdRows.currentRow(), 2) << "the row under the pointer";
    EXPECT_TRUE(table()->isColumnHidden(1));
    clickHead(2);
    table()->horizontalHeader()->resizeSection(3, 177);
    choose("Export to Workbook");
    EXPECT_EQ(ui.exports.size(), 1);

    reopen();
    EXPECT_TRUE(table()->isColumnHidden(1) && table()->isColumnHidden(4));
    EXPECT_EQ(column(0), (QStringList{"3", "5", "1", "4", "2"}));
    EXPECT_EQ(table()->columnWidth(3), 177);
    // Other columns: what they do not have says nothing, and never is the last one hidden.
    load(billing.run("select Service from Lines order by SNo"));
    EXPECT_FALSE(table()->isColumnHidden(0));
    EXPECT_EQ(column(0).first(), "dressing");
    load(lines());
    EXPECT_EQ(column(0).first(), "3");
    choose("As at first");
    reopen();
    EXPECT_FALSE(table()->isColumnHidden(1));
    EXPECT_EQ(column(0).first(), "1");
    window->release();
}

TEST_F(GridViewTest, AClickOnAHeadSortsAndKeepsTheCurrentRow) {
    form.grdRows.selectRow(3);
    const struct {
        int head;
        QStringList ascending, descending;
    } cases[] = {{1, {"5", "2", "1", "4", "3"}, {"3", "4", "1", "2", "5"}},
                 {2, {"3", "5", "1", "4", "2"}, {"2", "1", "4", "5", "3"}},
                 {3, {"3", "5", "2", "4", "1"}, {"1", "4", "2", "5", "3"}}};
    for (const auto& test : cases) {
        clickHead(test.head);
        EXPECT_EQ(column(0), test.ascending) << test.head;
        clickHead(test.head);
        EXPECT_EQ(column(0), test.descending) << test.head << ": equal ones keep their order";
        EXPECT_EQ(form.grdRows.currentRow(), 3);
        EXPECT_EQ(table()->model()->index(shownRow(), 0).data().toString(), "4");
    }
    form.takeEvents();
    clickRow(0);
    EXPECT_EQ(form.grdRows.currentRow(), 0) << "the view's first row is the query's first one in this order";
    clickRow(4);
    EXPECT_EQ(form.grdRows.number("SNo"), 3);
    EXPECT_EQ(events(), (QStringList{"grdRows Click", "grdRows Click"}));
}

TEST_F(GridViewTest, KeysMouseAndCodeChooseOnceEach) {
    table()->setFocus();
    events();
    QTest::keyClick(table(), Qt::Key_Down);
    EXPECT_EQ(form.grdRows.currentRow(), 1);
    QTest::keyClick(table(), Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(form.grdRows.currentRow(), 4);
    QTest::keyClick(table(), Qt::Key_Space);
    EXPECT_EQ(events(), (QStringList{"grdRows Click", "grdRows Click", "grdRows Click"}));
    clickRow(2);
    EXPECT_EQ(events(), QStringList{"grdRows Click"});
    QTest::keyClick(table(), Qt::Key_Return);
    EXPECT_EQ(events(), QStringList{"grdRows DblClick"});
    form.grdRows.onDblClick = {};
    QTest::keyClick(table(), Qt::Key_Return);
    EXPECT_EQ(events(), QStringList{"cmdSave Click"}) << "where a row does not open, Enter is the default button's";

    form.grdRows.onDblClick = [this] { form.note("opened"); };
    QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {},
                       table()->visualRect(table()->model()->index(3, 1)).center());
    EXPECT_EQ(form.grdRows.currentRow(), 3);
    const QStringList seen = events();
    EXPECT_EQ(seen.count("opened"), 1);
    EXPECT_EQ(seen.count("grdRows Click"), 1);

    form.grdRows.selectRow(2);
    EXPECT_EQ(events(), QStringList{"grdRows Click"}) << "its own";
    EXPECT_EQ(shownRow(), 2);
    form.grdRows.selectRow(-1);
    settleEvents();
    EXPECT_FALSE(table()->currentIndex().isValid());
    EXPECT_TRUE(table()->selectionModel()->selectedRows().isEmpty());
}

TEST_F(GridViewTest, ARefreshKeepsThePlaceAndAnotherListStartsAtItsTop) {
    form.grdRows.load(lines(20));
    settleEvents();
    table()->verticalScrollBar()->setValue(50);
    form.grdRows.load(lines(20));
    settleEvents();
    EXPECT_EQ(table()->verticalScrollBar()->value(), 50);
    form.grdRows.load(lines(40));
    settleEvents();
    EXPECT_EQ(table()->verticalScrollBar()->value(), 0);
    form.grdRows.clear();
    settleEvents();
    EXPECT_EQ(table()->model()->rowCount(), 0);
    EXPECT_FALSE(table()->currentIndex().isValid());
}

TEST_F(GridViewTest, WhatWasSavedOrEnteredLastIsInSightAndDeleteTakesALineAway) {
    const auto inSight = [](TableView* view, int row) {
        return view->viewport()->rect().contains(view->visualRect(view->model()->index(row, 0)));
    };
    form.grdRows.load(lines(40));
    form.grdRows.selectRow(150);
    settleEvents();
    EXPECT_TRUE(inSight(table(), 150));

    form.strip.setTab(1);
    settleEvents();
    TableView* entries = tableOf(form.grdEntry);
    for (int line = 0; line < 40; ++line)
        form.grdEntry.addRow();
    settleEvents();
    EXPECT_TRUE(inSight(entries, 40));
    form.takeEvents();
    form.grdEntry.selectRow(3);
    key(form.grdEntry, Qt::Key_Delete);
    EXPECT_FALSE(events().contains("grdEntry DblClick")) << "not where a double click opens a line";
    int deleted = 0;
    form.grdEntry.onDelete = [&] { ++deleted; };
    key(form.grdEntry, Qt::Key_Delete);
    key(form.grdEntry, Qt::Key_Return);
    EXPECT_EQ(deleted, 1);
    EXPECT_FALSE(events().contains("grdEntry DblClick")) << "Enter would take the line away";
}

TEST_F(GridViewTest, ALongListShowsAtOnceAndIsReadOn) {
    for (int times = 1; times <= 256; times *= 2)
        billing.run(QStringLiteral("insert into Lines select SNo + %1, Service, Amount, Paid, Secret from Lines")
                        .arg(5 * times));
    const int all = 5 * 512;
    const auto list = [this] {
        return Recordset::paged(billing.beside(), Sql("select SNo, Service, Amount, Paid from Lines order by SNo"));
    };
    const auto readOn = [](const Control& control) {
        for (int round = 0; round < all && control.hasMore(); ++round)
            QApplication::processEvents();
        settleEvents();
    };
    form.grdRows.setFormat("Amount", "#,##0.00");
    load(list());
    EXPECT_LT(table()->model()->rowCount(), all);
    EXPECT_TRUE(
        table()->parentWidget()->findChild<TotalsLine*>()->text().endsWith("the total comes when all are read"));
    EXPECT_EQ(column(1).first(), "dressing");
    readOn(form.grdRows);
    EXPECT_EQ(table()->model()->rowCount(), all);
    EXPECT_EQ(table()->model()->index(all - 1, 0).data().toString(), QString::number(all));
    // A sort takes in what is not there yet, and ends with its list.
    load(list());
    clickHead(0);
    clickHead(0);
    EXPECT_EQ(column(0).first(), QString::number(all));
    load(list());
    EXPECT_EQ(column(0).first(), "1");
    // What is typed is looked for in all entries.
    form.cboTown.clear();
    form.cboTown.fill(list(), [](const Recordset& row) { return ComboBox::Entry{"LINE " + row.text(0)}; });
    window->view()->refreshNow();
    EXPECT_LT(form.cboTown.entriesRead(), all);
    type(form.cboTown, "line 2560");
    EXPECT_EQ(form.cboTown.listIndex(), all - 1);
    form.tree.clear();
    form.tree.addNode({"all", "All", {}, true});
    form.tree.fill(list(), [](const Recordset& row) { return Tree::Node{row.text(0), row.text(1), "all", false}; });
    window->view()->refreshNow();
    EXPECT_LT(form.tree.nodesRead().size(), all);
    readOn(form.tree);
    const auto* tree = widget<QTreeView>(form.tree);
    EXPECT_EQ(tree->model()->rowCount(tree->model()->index(0, 0)), all);
    form.tree.select(QString::number(all));
    settleEvents();
    EXPECT_EQ(tree->currentIndex().row(), all - 1);
}

TEST_F(GridViewTest, RowsThatGoWhileTheyArePaintedAreNoFault) {
    form.grdRows.load(lines(20));
    settleEvents();
    clickHead(1);
    form.grdRows.load(billing.run("select SNo from Lines where SNo < 3"));
    table()->viewport()->repaint();
    EXPECT_FALSE(table()->model()->index(90, 3).data().isValid());
    settleEvents();
    EXPECT_EQ(table()->model()->rowCount(), 2);
    EXPECT_EQ(column(0), (QStringList{"1", "2"})) << "other columns: the sort is gone";

    // Who walks through the rows is not moved by the view.
    Recordset rows = lines();
    form.grdRows.load(rows);
    int seen = 0;
    for (rows.moveFirst(); !rows.eof() && seen < 100; rows.moveNext(), ++seen)
        form.grdRows.cellText(0, 1);
    EXPECT_EQ(seen, 5);
}

TEST_F(GridViewTest, AnEntryGridShowsItsCellsAndItsEmptyRow) {
    form.strip.setTab(1);
    form.grdEntry.setMoney({1});
    form.grdEntry.setCell(1, 0, "CONSULTATION");
    form.grdEntry.setCell(1, 1, "7,500.00");
    form.grdEntry.addRow();
    settleEvents();
    TableView* entries = tableOf(form.grdEntry);
    EXPECT_EQ(entries->model()->headerData(0, Qt::Horizontal).toString(), "Item");
    ASSERT_EQ(entries->model()->rowCount(), 2);
    EXPECT_EQ(entries->model()->index(0, 1).data().toString(), "7,500.00");
    form.takeEvents();
    clickRow(0, entries);
    EXPECT_EQ(form.grdEntry.currentRow(), 1) << "the head is row 0";
    EXPECT_TRUE(events().contains("grdEntry Click"));
    form.grdEntry.removeRow(1);
    settleEvents();
    EXPECT_EQ(entries->model()->rowCount(), 1);
}

/// The keys only go through lines that a click takes away; Delete is the click there.
TEST_F(GridViewTest, KeysTakeNoLineAwayButDelete) {
    form.strip.setTab(1);
    form.grdEntry.onClick = [this] { form.grdEntry.removeRow(form.grdEntry.currentRow()); };
    form.grdEntry.onDelete = form.grdEntry.onClick;
    for (const char* item : {"A", "B", "C"}) {
        form.grdEntry.setCell(form.grdEntry.rows() - 1, 0, item);
        form.grdEntry.addRow();
    }
    settleEvents();
    TableView* entries = tableOf(form.grdEntry);
    entries->setFocus();
    entries->selectionModel()->setCurrentIndex(entries->model()->index(0, 0), QItemSelectionModel::SelectCurrent);
    QTest::keyClick(entries, Qt::Key_Down);
    settleEvents();
    EXPECT_EQ(form.grdEntry.rows(), 5);
    QTest::keyClick(entries, Qt::Key_Delete);
    settleEvents();
    EXPECT_EQ(form.grdEntry.cell(1, 0) + form.grdEntry.cell(2, 0), "AC");
}

TEST_F(GridViewTest, ATimerRestsWhileAListIsScrolled) {
    window = std::make_unique<FormWindow>(form, ViewSetting{{}, false, 200});
    window->resize(1100, 640);
    window->show();
    form.grdRows.load(lines());
    form.tmrTick.setEnabled(true);
    const auto ticked = [&] { return events().contains("tmrTick Timer"); };
    EXPECT_TRUE(QTest::qWaitFor(ticked));
    QScrollBar* bar = tableOf(form.grdRows)->verticalScrollBar();
    for (int turn = 0; turn < 30; ++turn) {
        bar->triggerAction(turn % 2 ? QAbstractSlider::SliderSingleStepAdd : QAbstractSlider::SliderSingleStepSub);
        form.takeEvents();
        QThread::msleep(6);
        QApplication::processEvents(); // one tick at most
        EXPECT_FALSE(form.takeEvents().contains("tmrTick Timer"));
    }
    EXPECT_TRUE(QTest::qWaitFor(ticked)) << "and goes on";
    form.tmrTick.setEnabled(false);
}

} // namespace
} // namespace orvane
