// What a user does with the widgets of a form, and what he sees of what code does.
#include "desktop/ViewTest.h"

#include "data/DataError.h"
#include "desktop/DateEdit.h"

#include <QComboBox>
#include <QCompleter>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeView>

namespace orvane {
namespace {

TEST_F(ViewTest, ShowsEveryControlThatItsLayoutPlaces) {
    for (const Control* control : form.controls()) {
        const ControlKind kind = control->kind();
        if (kind == ControlKind::Menu || kind == ControlKind::Timer || control == &form.fraOuter)
            continue;
        ASSERT_TRUE(widget(*control)) << qPrintable(control->name());
        EXPECT_EQ(widget(*control)->objectName(), control->name());
    }
    EXPECT_EQ(editor(form.txtName)->accessibleName(), "Name");
    EXPECT_TRUE(widget<QLineEdit>(form.txtAmt0)->alignment() & Qt::AlignRight);
    EXPECT_TRUE(widget<QLineEdit>(form.txtLocked)->isReadOnly());
}

TEST_F(ViewTest, TypingReachesTheControlCharacterByCharacter) {
    type(form.txtName, "ab");
    EXPECT_EQ(form.txtName.text(), "ab");
    EXPECT_EQ(events(), (QStringList{"txtName Change", "txtName Change"}));

    type(form.txtCode, "ab1234");
    EXPECT_EQ(form.txtCode.text(), "AB123") << "capitals, at most five";
    EXPECT_EQ(widget<QLineEdit>(form.txtCode)->text(), "AB123");
    type(form.txtDigits, "1x2");
    EXPECT_EQ(form.txtDigits.text(), "12") << "what the handler refuses is dropped";

    form.strip.setTab(1);
    settleEvents();
    type(form.txtNote, "one");
    QTest::keyClick(editor(form.txtNote), Qt::Key_Return);
    QTest::keyClicks(editor(form.txtNote), "two");
    EXPECT_EQ(form.txtNote.text(), "one\ntwo");
    EXPECT_FALSE(events().contains("cmdSave Click")) << "Enter is a line of the note here";
}

TEST_F(ViewTest, ACharacterTypedInTheMiddleKeepsItsPlace) {
    type(form.txtCode, "AC");
    auto* line = widget<QLineEdit>(form.txtCode);
    line->setCursorPosition(1);
    QTest::keyClicks(line, "b");
    settleEvents();
    EXPECT_EQ(line->text(), "ABC");
    EXPECT_EQ(line->cursorPosition(), 2);
}

TEST_F(ViewTest, WhatCodeSetsIsShown) {
    form.txtName.setText("<b>O'NEILL</b>");
    form.chkCard.setChecked(true);
    form.radTwo.setChecked(true);
    form.cboTown.setListIndex(1);
    form.dtDate.setDate(QDate(2026, 3, 4));
    form.bar.setValue(40);
    form.strip.setTab(1);
    form.lblTitle.setText("A && B");
    form.tree.select("leaf");
    settleEvents();
    EXPECT_EQ(widget<QLineEdit>(form.txtName)->text(), "<b>O'NEILL</b>");
    EXPECT_TRUE(widget<QAbstractButton>(form.chkCard)->isChecked());
    EXPECT_TRUE(widget<QRadioButton>(form.radTwo)->isChecked());
    EXPECT_FALSE(widget<QRadioButton>(form.radOne)->isChecked());
    EXPECT_EQ(widget<QComboBox>(form.cboTown)->currentText(), "IBADAN");
    EXPECT_EQ(widget<DateEdit>(form.dtDate)->lineEdit()->text(), "04/03/2026");
    EXPECT_EQ(widget<QProgressBar>(form.bar)->value(), 40);
    EXPECT_EQ(widget<QTabWidget>(form.strip)->currentIndex(), 1);
    EXPECT_EQ(widget<QLabel>(form.lblTitle)->text(), "A & B");
    EXPECT_EQ(widget<QTreeView>(form.tree)->currentIndex().data().toString(), "Leaf");
}

TEST_F(ViewTest, EnterPressesTheDefaultButtonAndEscTheCancelButton) {
    editor(form.txtName)->setFocus();
    QTest::keyClick(editor(form.txtName), Qt::Key_Return);
    EXPECT_EQ(events(), QStringList{"cmdSave Click"});
    QTest::keyClick(editor(form.cboTown), Qt::Key_Return);
    EXPECT_EQ(events(), QStringList{"cmdSave Click"});
    QTest::keyClick(editor(form.txtName), Qt::Key_Escape);
    EXPECT_EQ(events(), QStringList{"cmdClose Click"});
    widget(form.cmdExtra)->setFocus();
    events();
    QTest::keyClick(widget(form.cmdExtra), Qt::Key_Return);
    EXPECT_EQ(events(), QStringList{"cmdExtra Click"}) << "a button with the focus is pressed itself";

    form.cmdSave.setEnabled(false);
    settleEvents();
    editor(form.txtName)->setFocus();
    events();
    QTest::keyClick(editor(form.txtName), Qt::Key_Return);
    EXPECT_EQ(events(), QStringList{});
    form.txtName.onEnter = [this] { form.note("txtName Enter"); };
    QTest::keyClick(editor(form.txtName), Qt::Key_Return);
    EXPECT_EQ(events(), QStringList{"txtName Enter"});
}

TEST_F(ViewTest, LeavingAFieldIsAnEventOfItsForm) {
    editor(form.txtName)->setFocus();
    events();
    form.txtCode.onFocus = [this] { form.note("txtCode Focus"); };
    QTest::keyClick(editor(form.txtName), Qt::Key_Tab);
    EXPECT_EQ(allEvents(), (QStringList{"txtName Leave", "txtCode Focus"}));
    EXPECT_EQ(QApplication::focusWidget(), editor(form.txtCode)) << "the next one in reading order";
}

TEST_F(ViewTest, ADateCanBeEmptyAndNeverBecomesWhatIsNoDate) {
    auto* line = widget<DateEdit>(form.dtDate)->lineEdit();
    type(form.dtDate, "4/3/2026");
    EXPECT_EQ(form.dtDate.date(), QDate(2026, 3, 4));
    editor(form.txtName)->setFocus();
    EXPECT_EQ(line->text(), "04/03/2026");
    events();

    type(form.dtDate, "31/02/2026");
    EXPECT_EQ(form.dtDate.date(), QDate(2026, 3, 4));
    EXPECT_TRUE(line->property("invalid").toBool());
    editor(form.txtName)->setFocus();
    EXPECT_EQ(line->text(), "31/02/2026") << "the mistake stays in sight";
    events();
    press(form.cmdSave);
    EXPECT_EQ(events(), QStringList{}) << "nothing is saved with it";
    EXPECT_EQ(QApplication::focusWidget(), line);
    press(form.cmdClose);
    EXPECT_TRUE(events().contains("cmdClose Click")) << "but the form can be left";

    type(form.dtDate, "");
    QTest::keyClick(line, Qt::Key_Delete);
    press(form.cmdSave);
    EXPECT_TRUE(form.dtDate.isEmpty());
    const QStringList after = events();
    EXPECT_TRUE(after.contains("dtDate Change") && after.contains("cmdSave Click")) << qPrintable(after.join(';'));
}

TEST(DateEditTest, ReadsDatesAsTheyAreWritten) {
    struct Case {
        const char* text;
        std::optional<QDate> date;
    };
    const Case cases[] = {{"14/03/2026", QDate(2026, 3, 14)},
                          {" 1-2-2026 ", QDate(2026, 2, 1)},
                          {"29/02/2024", QDate(2024, 2, 29)},
                          {"", QDate()},
                          {"29/02/2026", std::nullopt},
                          {"03/14/2026", std::nullopt},
                          {"5/3", QDate(QDate::currentDate().year(), 3, 5)},
                          {"14.03", QDate(QDate::currentDate().year(), 3, 14)},
                          {"5/3/26", QDate(2026, 3, 5)},
                          {"05032026", QDate(2026, 3, 5)},
                          {"050326", QDate(2026, 3, 5)},
                          {"T", QDate::currentDate()},
                          {"0503", std::nullopt},
                          {"5/3/", std::nullopt},
                          {"5/3/202", std::nullopt},
                          {"14/03/20266", std::nullopt},
                          {"14/03/1026", std::nullopt},
                          {"abc", std::nullopt}};
    for (const Case& test : cases)
        EXPECT_EQ(DateEdit::parse(QString::fromLatin1(test.text)), test.date) << test.text;
}

TEST_F(ViewTest, AListIsSearchedAsOneTypesAndTakesOnlyItsEntries) {
    auto* color = widget<QComboBox>(form.cboColor);
    type(form.cboColor, "ree");
    EXPECT_EQ(form.cboColor.text(), "") << "a search is no choice yet";
    ASSERT_TRUE(color->completer()->popup()->isVisible());
    EXPECT_EQ(color->completer()->completionCount(), 1);
    color->completer()->popup()->hide();
    QTest::keyClick(editor(form.cboColor), Qt::Key_Tab);
    settleEvents();
    EXPECT_EQ(form.cboColor.text(), "GREEN") << "the one entry that the search left";
    EXPECT_TRUE(form.takeEvents().contains("cboColor Click"));

    type(form.cboColor, "blue");
    editor(form.txtName)->setFocus();
    settleEvents();
    EXPECT_EQ(form.cboColor.text(), "GREEN") << "what fits no entry changes nothing";
    EXPECT_EQ(color->currentText(), "GREEN");
    EXPECT_FALSE(form.takeEvents().contains("cboColor Click"));

    color->setFocus();
    QTest::keyClick(color, Qt::Key_Up);
    settleEvents();
    EXPECT_EQ(form.cboColor.listIndex(), 0) << "the arrow keys choose";
}

TEST_F(ViewTest, ACompletionPicksItsOwnEntryAmongEqualOnes) {
    form.cboTown.addItem("ABA", 7);
    settleEvents();
    auto* town = widget<QComboBox>(form.cboTown);
    type(form.cboTown, "aba");
    EXPECT_EQ(form.cboTown.listIndex(), 0);
    type(form.cboTown, "ab");
    EXPECT_EQ(form.cboTown.text(), "ab") << "free text is the value as it is typed";
    QCompleter* completer = town->completer();
    ASSERT_EQ(completer->completionCount(), 2) << "both of that name, and no other";
    Q_EMIT completer->activated(completer->completionModel()->index(1, 0));
    const QStringList seen = events();
    EXPECT_EQ(seen.count("cboTown Click"), 2) << "once as it was typed, once picked: " << qPrintable(seen.join(';'));
    EXPECT_EQ(form.cboTown.listIndex(), 3);
    EXPECT_EQ(form.cboTown.itemData(form.cboTown.listIndex()), 7);
    EXPECT_EQ(town->currentText(), "ABA");
}

TEST_F(ViewTest, TicksOptionsTabsListsAndTreesGoToTheirControls) {
    press(form.chkCard);
    press(form.radTwo);
    EXPECT_EQ(events(), (QStringList{"chkCard Click", "radTwo Click"}));
    EXPECT_FALSE(form.radOne.isChecked());
    EXPECT_FALSE(widget<QRadioButton>(form.radOne)->isChecked());

    widget<QTabWidget>(form.strip)->setCurrentIndex(1);
    EXPECT_EQ(events(), QStringList{"tabs Click"});
    EXPECT_EQ(form.strip.tab(), 1);

    auto* list = widget<QListView>(form.lstItems);
    list->setFocus();
    list->setCurrentIndex(list->model()->index(1, 0));
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_EQ(form.lstItems.valueText(), "TWO");
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_EQ(form.lstItems.valueText(), "");

    auto* tree = widget<QTreeView>(form.tree);
    const QModelIndex leaf = tree->model()->index(0, 0, tree->model()->index(0, 0));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(leaf).center());
    EXPECT_EQ(form.tree.selectedKey(), "leaf");
}

TEST_F(ViewTest, AFrameReachesTheWidgetsInIt) {
    form.fraOuter.setEnabled(false);
    settleEvents();
    EXPECT_FALSE(widget(form.radCash)->isEnabled());
    EXPECT_TRUE(widget(form.radOne)->isEnabled());
    form.fraOuter.setEnabled(true);
    settleEvents();
    EXPECT_TRUE(widget(form.radCash)->isEnabled());
    form.fraInner.setVisible(false);
    settleEvents();
    EXPECT_FALSE(widget(form.radCash)->isVisible());
    EXPECT_FALSE(widget<QGroupBox>(form.fraInner)->isVisible());
}

TEST_F(ViewTest, AHiddenFieldTakesItsLabelAlong) {
    auto labels = [this] {
        int shown = 0;
        for (const QLabel* label : window->findChildren<QLabel*>())
            if (label->isVisible() && label->text().remove('&') == "Digits")
                ++shown;
        return shown;
    };
    EXPECT_EQ(labels(), 1);
    form.txtDigits.setVisible(false);
    settleEvents();
    EXPECT_EQ(labels(), 0);
}

TEST_F(ViewTest, NothingIsPressedTwiceWhileAHandlerRuns) {
    int saves = 0;
    form.cmdSave.onClick = [&] {
        ++saves;
        window->view()->setBusy(true);
        EXPECT_FALSE(widget(form.cmdSave)->isEnabled());
        QTest::mouseClick(widget(form.cmdSave), Qt::LeftButton);
        QTest::keyClick(editor(form.txtName), Qt::Key_Return);
        QTest::keyClicks(editor(form.txtName), "typed meanwhile");
        QTest::keyClicks(editor(form.txtCode), "stale");
        form.txtCode.setText("NEW");
        settleEvents();
        EXPECT_EQ(form.txtName.text(), "") << "not into a handler that runs";
        window->view()->setBusy(false);
    };
    widget(form.cmdSave)->setFocus();
    press(form.cmdSave);
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(form.txtName.text(), "typed meanwhile") << "but after it";
    EXPECT_EQ(widget<QLineEdit>(form.txtName)->text(), "typed meanwhile");
    EXPECT_EQ(form.txtCode.text(), "NEW") << "what was typed over a value that has gone goes with it";
    EXPECT_EQ(widget<QLineEdit>(form.txtCode)->text(), "NEW");
    EXPECT_TRUE(widget(form.cmdSave)->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), widget(form.cmdSave)) << "the focus is where it was";
}

TEST_F(ViewTest, AFaultIsShownOnceAndTheFormStaysFilled) {
    type(form.txtName, "ADE");
    form.cmdSave.onClick = [] { throw DataError("The server has gone away."); };
    press(form.cmdSave);
    EXPECT_BOXES(ui, {"The server has gone away."});
    EXPECT_EQ(widget<QLineEdit>(form.txtName)->text(), "ADE");
    EXPECT_TRUE(widget(form.cmdSave)->isEnabled());
}

TEST_F(ViewTest, EveryButtonHasALetterOfItsOwnAndEveryFieldOne) {
    QStringList pressed;
    for (const QPushButton* button : window->findChildren<QPushButton*>())
        pressed << QString(Mnemonics::asked(button->text()));
    for (const QLabel* label : window->findChildren<QLabel*>())
        EXPECT_FALSE(label->buddy() && Mnemonics::asked(label->text()).isNull()) << qPrintable(label->text());
    EXPECT_EQ(pressed.size(), 3);
    EXPECT_EQ(QSet<QString>(pressed.cbegin(), pressed.cend()).size(), pressed.size()) << qPrintable(pressed.join(' '));
    EXPECT_EQ(widget<QPushButton>(form.cmdSave)->text(), "&Save");
    EXPECT_NE(widget<QPushButton>(form.cmdExtra)->text(), "&Save Copy") << "S is taken";

    form.cmdExtra.setCaption("Keep && Go");
    settleEvents();
    EXPECT_EQ(Mnemonics::plain(widget<QPushButton>(form.cmdExtra)->text()), "Keep & Go");
}

TEST(MnemonicsTest, AsksForFreeLettersAndSharesThemOnlyAmongFields) {
    Mnemonics letters("F");
    QStringList shown;
    auto add = [&](Mnemonics::Kind kind, const char* caption) {
        const qsizetype place = shown.size();
        shown << QString();
        return letters.add(kind, QString::fromLatin1(caption), [&shown, place](const QString& text, QChar letter) {
            shown[place] = text;
            if (Mnemonics::asked(text).isNull() && !letter.isNull())
                shown[place] += letter;
        });
    };
    add(Mnemonics::Press, "&Find");
    add(Mnemonics::Press, "&OK");
    add(Mnemonics::Press, "OK");
    const int third = add(Mnemonics::Press, "OK");
    add(Mnemonics::Field, "OK");
    add(Mnemonics::Field, "AA");
    add(Mnemonics::Field, "A A");
    add(Mnemonics::Press, "Profit && &Loss");
    add(Mnemonics::Field, "12 %");
    letters.setPage(1);
    add(Mnemonics::Press, "X");
    letters.setPage(2);
    add(Mnemonics::Press, "X");
    add(Mnemonics::Field, "Xi");
    letters.setPage(0);
    add(Mnemonics::Press, "Ze");
    add(Mnemonics::Field, "Z");
    add(Mnemonics::Field, "U");
    add(Mnemonics::Press, "U");
    letters.assign();
    EXPECT_EQ(shown, (QStringList{"Fi&nd", "&OK", "O&K", "OKJ", "OK", "&AA", "&A A", "Profit && &Loss", "&12 %", "&X",
                                  "&X", "X&i", "Z&e", "&Z", "U", "&U"}));
    letters.captionChanged(third, "Other");
    EXPECT_EQ(shown.at(third), "O&ther");
    letters.captionChanged(1, "Go on");
    EXPECT_EQ(shown.at(1), "Go &on") << "its letter goes along";
}

TEST_F(ViewTest, WhatIsLockedCanBeReadAndNotChanged) {
    form.cboColor.setListIndex(1);
    form.dtDate.setDate(QDate(2026, 3, 4));
    form.cboColor.setLocked(true);
    form.cboTown.setLocked(true);
    form.dtDate.setLocked(true);
    form.txtName.setLocked(true);
    settleEvents();
    type(form.txtName, "x");
    type(form.cboTown, "ABA");
    type(form.cboColor, "RED");
    type(form.dtDate, "5/3/2026");
    for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageDown}) {
        QTest::keyClick(widget(form.cboColor), Qt::Key(key));
        QTest::keyClick(editor(form.cboColor), Qt::Key(key));
        QTest::keyClick(editor(form.dtDate), Qt::Key(key));
    }
    QTest::mouseClick(widget(form.cboColor), Qt::LeftButton);
    settleEvents();
    EXPECT_FALSE(widget<QComboBox>(form.cboColor)->view()->isVisible());
    EXPECT_EQ(form.txtName.text(), "");
    EXPECT_EQ(form.cboTown.text(), "");
    EXPECT_EQ(form.cboColor.text(), "GREEN");
    EXPECT_EQ(form.dtDate.date(), QDate(2026, 3, 4));
    EXPECT_TRUE(widget(form.cboColor)->isEnabled());
}

TEST_F(ViewTest, ATimerTicksWhileItIsEnabledAndItsFormRests) {
    form.tmrFast.setEnabled(true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return form.events.contains("tmrFast Timer"); }));
    form.cmdSave.onClick = [this] {
        form.events.clear();
        QTest::qWait(20);
        EXPECT_FALSE(form.events.contains("tmrFast Timer")) << "not into a handler that runs";
    };
    press(form.cmdSave);
    form.tmrFast.setEnabled(false);
    events();
    QTest::qWait(20);
    EXPECT_EQ(events(), QStringList{});

    FormWindow scripted(form, ViewSetting{{}, true});
    form.tmrFast.setEnabled(true);
    window.reset();
    events();
    QTest::qWait(20);
    EXPECT_EQ(events(), QStringList{}) << "in a script the script says when";
}

TEST_F(ViewTest, AClosedFormIsNotTouchedAgain) {
    auto closing = std::make_unique<ShownForm>(ui, QStringLiteral("frmClosing"));
    FormWindow own(*closing, ViewSetting{});
    own.show();
    QTest::keyClicks(own.view()->bindingOf(closing->txtName)->editor(), "a");
    own.release();
    closing.reset();
    QTest::keyClicks(own.view()->findChild<QWidget*>("txtName"), "b");
    for (QPushButton* button : own.findChildren<QPushButton*>())
        button->click();
    for (QTreeView* tree : own.findChildren<QTreeView*>())
        Q_EMIT tree->clicked(tree->model()->index(0, 0));
    settleEvents();
    own.resize(700, 500);
    EXPECT_TRUE(own.close()) << "the window may go";
}

} // namespace
} // namespace orvane
