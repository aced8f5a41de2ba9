#include "ViewTest.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>

namespace orvane {

namespace {

TEST_F(ViewTest, TabGoesThroughTheFieldsInReadingOrder) {
    editor(form.txtName)->setFocus();
    // A list and a date take part under their own names, wherever the focus stands inside them.
    const Control* const order[] = {&form.txtCode, &form.cboColor,  &form.chkCard,
                                    &form.cboTown, &form.txtDigits, &form.dtDate};
    for (const Control* control : order) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        settleEvents();
        EXPECT_TRUE(widget(*control) == QApplication::focusWidget() ||
                    widget(*control)->isAncestorOf(QApplication::focusWidget()))
            << control->name().toStdString();
    }
}

TEST_F(ViewTest, AListNarrowsWhileOneTypesAndKeysPick) {
    form.cboTown.clear();
    form.cboTown.addItems({"", "ABA", "IBADAN", "IBADAN NORTH"});
    settleEvents();
    auto* town = widget<QComboBox>(form.cboTown);
    town->setFocus();
    for (const auto& [key, left] : {std::pair('i', 2), {'b', 2}, {'a', 2}, {'n', 0}}) {
        QTest::keyClick(town, key);
        settleEvents();
        EXPECT_EQ(town->completer()->completionCount(), left) << key;
    }
    EXPECT_EQ(form.cboTown.listIndex(), -1);
    QTest::keyClick(town, Qt::Key_Backspace);
    settleEvents();
    auto* popup = town->completer()->popup();
    ASSERT_TRUE(popup->isVisible());
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Return);
    settleEvents();
    EXPECT_EQ(form.cboTown.listIndex(), 3);
    EXPECT_EQ(form.cboTown.text(), "IBADAN NORTH");
}

} // namespace

} // namespace orvane
