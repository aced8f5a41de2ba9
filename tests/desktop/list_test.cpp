// Lists that are searched as one types.
#include "desktop/ViewTest.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>

namespace orvane {
namespace {

class ListTest : public ViewTest {
protected:
    QCompleter* completer(const Control& control) { return widget<QComboBox>(control)->completer(); }
    /// As typed keys go while suggestions are open: to their list.
    void keyInList(const Control& control, Qt::Key pressed) {
        ASSERT_TRUE(completer(control)->popup()->isVisible());
        QTest::keyClick(completer(control)->popup(), pressed);
        settleEvents();
    }
};

TEST_F(ListTest, NarrowsWhileOneTypesAndTakesOnlyItsEntries) {
    type(form.cboColor, "ree");
    EXPECT_EQ(form.cboColor.text(), "") << "a search is no choice yet";
    EXPECT_EQ(completer(form.cboColor)->completionCount(), 1);
    keyInList(form.cboColor, Qt::Key_Tab);
    EXPECT_EQ(text(form.cboColor), "GREEN") << "the one entry that the search left";
    EXPECT_TRUE(events().contains("cboColor Click"));
    type(form.cboColor, "blue");
    focus(form.txtName);
    EXPECT_EQ(text(form.cboColor), "GREEN") << "what fits no entry changes nothing";
    EXPECT_FALSE(events().contains("cboColor Click"));
    widget(form.cboColor)->setFocus();
    QTest::keyClick(widget(form.cboColor), Qt::Key_Up);
    EXPECT_EQ(text(form.cboColor), "RED") << "the arrow keys choose";

    focus(form.cboTown);
    for (const auto& [letter, left] : {std::pair('i', 2), {'b', 2}, {'a', 2}, {'n', 0}}) {
        QTest::keyClick(widget(form.cboTown), letter);
        settleEvents();
        EXPECT_EQ(completer(form.cboTown)->completionCount(), left) << letter;
    }
    EXPECT_EQ(form.cboTown.listIndex(), -1);
    QTest::keyClick(widget(form.cboTown), Qt::Key_Backspace);
    settleEvents();
    for (const Qt::Key pressed : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        keyInList(form.cboTown, pressed);
    EXPECT_EQ(form.cboTown.listIndex(), 2);
    EXPECT_EQ(text(form.cboTown), "IBADAN NORTH");
}

TEST_F(ListTest, ACompletionPicksItsOwnEntryAmongEqualOnes) {
    form.cboTown.addItem("ABA", 7);
    settleEvents();
    type(form.cboTown, "aba");
    EXPECT_EQ(form.cboTown.listIndex(), 0);
    type(form.cboTown, "ab");
    EXPECT_EQ(form.cboTown.text(), "ab") << "free text is the value as it is typed";
    QCompleter* found = completer(form.cboTown);
    ASSERT_EQ(found->completionCount(), 2) << "both of that name, and no other";
    Q_EMIT found->activated(found->completionModel()->index(1, 0));
    const QStringList seen = events();
    EXPECT_EQ(seen.count("cboTown Click"), 2) << "once as it was typed, once picked: " << qPrintable(seen.join(';'));
    EXPECT_EQ(form.cboTown.itemData(form.cboTown.listIndex()), 7);
    EXPECT_EQ(text(form.cboTown), "ABA");
}

TEST_F(ListTest, LeavingTakesTheMarkedTheFirstOrTheOnlyOne) {
    form.cboColor.clear();
    form.cboColor.addItems({"IN-PATIENT", "OUT-PATIENT", "ARTEMETHER + LUMEFANTRINE 20/120MG TABLET X6",
                            "ARTEMETHER + LUMEFANTRINE 20/120MG TABLET X24", "OUT-PATIENT"});
    settleEvents();
    const struct {
        const char* typed;
        QVector<Qt::Key> keys;
        int taken;
    } cases[] = {{"X24", {Qt::Key_Tab}, 3},
                 {"arte", {Qt::Key_Tab}, 2},
                 {"arte", {Qt::Key_Return}, 2},
                 {"arte", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Tab}, 3},
                 {"arte", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, 3},
                 {"OUT", {Qt::Key_Tab}, 1}};
    const QAbstractItemView* popup = completer(form.cboColor)->popup();
    for (const auto& [typed, keys, taken] : cases) {
        SCOPED_TRACE(typed);
        form.cboColor.setListIndex(0);
        settleEvents();
        type(form.cboColor, typed);
        const int needed = popup->fontMetrics().horizontalAdvance(form.cboColor.item(taken));
        EXPECT_GT(popup->viewport()->width(), needed) << "as wide as its entries";
        for (const Qt::Key pressed : keys)
            keyInList(form.cboColor, pressed);
        EXPECT_EQ(form.cboColor.listIndex(), taken);
        EXPECT_EQ(text(form.cboColor), form.cboColor.item(taken));
        EXPECT_FALSE(popup->isVisible());
        EXPECT_EQ(editor(form.cboColor)->hasFocus(), keys.last() == Qt::Key_Return);
    }
    // A press of a button without leaving the field first.
    type(form.cboColor, "OUT");
    EXPECT_TRUE(window->view()->settle());
    EXPECT_EQ(form.cboColor.listIndex(), 1);
    form.cboColor.setListIndex(4);
    settleEvents();
    type(form.cboColor, "out-patient");
    window->view()->settle();
    EXPECT_EQ(form.cboColor.listIndex(), 4) << "the equal one that was chosen stays";
}

} // namespace
} // namespace orvane
