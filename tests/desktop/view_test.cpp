// What a user does with the widgets of a form, and what he sees of what code does.
#include "desktop/ViewTest.h"

#include "data/DataError.h"
#include "desktop/DateEdit.h"
#include "support/HostileTexts.h"

#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
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
    EXPECT_TRUE(line(form.txtAmt0)->alignment() & Qt::AlignRight);
    EXPECT_TRUE(line(form.txtLocked)->isReadOnly());
}

TEST_F(ViewTest, TypingReachesTheControlCharacterByCharacter) {
    type(form.txtName, "ab");
    EXPECT_EQ(text(form.txtName), "ab");
    EXPECT_EQ(events(), (QStringList{"txtName Change", "txtName Change"}));
    type(form.txtCode, "ab1234");
    EXPECT_EQ(text(form.txtCode), "AB123") << "capitals, at most five";
    type(form.txtCode, "AC");
    line(form.txtCode)->setCursorPosition(1);
    QTest::keyClicks(line(form.txtCode), "b");
    EXPECT_EQ(text(form.txtCode), "ABC");
    EXPECT_EQ(line(form.txtCode)->cursorPosition(), 2);
    type(form.txtDigits, "1x2");
    EXPECT_EQ(text(form.txtDigits), "12") << "what the handler refuses is dropped";

    form.strip.setTab(1);
    settleEvents();
    type(form.txtNote, "one");
    key(form.txtNote, Qt::Key_Return);
    QTest::keyClicks(editor(form.txtNote), "two");
    EXPECT_EQ(form.txtNote.text(), "one\ntwo");
    EXPECT_FALSE(events().contains("cmdSave Click")) << "Enter is a line of the note here";
}

TEST_F(ViewTest, TheFormHoldsWhatIsPastedAndAFieldOfOneLineHoldsOne) {
    const auto paste = [this](const Control& control, const QString& text) {
        QApplication::clipboard()->setText(text);
        type(control, {});
        key(control, Qt::Key_V, Qt::ControlModifier);
    };
    form.txtNote.multiline();
    show();
    for (const QString& hostile : hostileTexts()) {
        SCOPED_TRACE(hostile.left(20).toStdString());
        for (const Control* control : {static_cast<Control*>(&form.txtName), static_cast<Control*>(&form.cboTown)}) {
            paste(*control, hostile);
            EXPECT_EQ(text(*control), QString(hostile).replace('\r', ' ').replace('\n', ' '));
        }
        paste(form.txtNote, hostile);
        EXPECT_EQ(form.txtNote.text(), qobject_cast<QPlainTextEdit*>(editor(form.txtNote))->toPlainText());
        EXPECT_EQ(form.txtNote.text(), QString(hostile).replace('\r', '\n'));
    }
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
    EXPECT_EQ(text(form.txtName), "<b>O'NEILL</b>");
    EXPECT_TRUE(widget<QAbstractButton>(form.chkCard)->isChecked());
    EXPECT_TRUE(widget<QRadioButton>(form.radTwo)->isChecked());
    EXPECT_FALSE(widget<QRadioButton>(form.radOne)->isChecked());
    EXPECT_EQ(text(form.cboTown), "IBADAN");
    EXPECT_EQ(line(form.dtDate)->text(), "04/03/2026");
    EXPECT_EQ(widget<QProgressBar>(form.bar)->value(), 40);
    EXPECT_EQ(widget<QTabWidget>(form.strip)->currentIndex(), 1);
    EXPECT_EQ(widget<QLabel>(form.lblTitle)->text(), "A & B");
    EXPECT_EQ(widget<QTreeView>(form.tree)->currentIndex().data().toString(), "Leaf");
}

TEST_F(ViewTest, KeysGoThroughTheFieldsAndPressTheStatedButtons) {
    const auto pressing = [this](const Control& control, Qt::Key pressed) {
        focus(control);
        events();
        key(control, pressed);
        return events().join(';');
    };
    EXPECT_EQ(pressing(form.txtName, Qt::Key_Return), "cmdSave Click");
    EXPECT_EQ(pressing(form.cboTown, Qt::Key_Return), "cmdSave Click");
    EXPECT_EQ(pressing(form.txtName, Qt::Key_Escape), "cmdClose Click");
    EXPECT_EQ(pressing(form.cmdExtra, Qt::Key_Return), "cmdExtra Click") << "with the focus it is pressed itself";
    form.cmdSave.setEnabled(false);
    settleEvents();
    EXPECT_EQ(pressing(form.txtName, Qt::Key_Return), "");
    form.txtName.onEnter = [this] { form.note("txtName Enter"); };
    EXPECT_EQ(pressing(form.txtName, Qt::Key_Return), "txtName Enter");

    form.txtCode.onFocus = [this] { form.note("txtCode Focus"); };
    key(form.txtName, Qt::Key_Tab);
    EXPECT_EQ(allEvents(), (QStringList{"txtName Leave", "txtCode Focus"}));
    // A list and a date take part under their own names, wherever the focus stands inside them.
    for (const Control* control : std::initializer_list<const Control*>{&form.txtCode, &form.cboColor, &form.chkCard,
                                                                        &form.cboTown, &form.txtDigits, &form.dtDate}) {
        QWidget* focused = QApplication::focusWidget();
        EXPECT_TRUE(widget(*control) == focused || widget(*control)->isAncestorOf(focused))
            << qPrintable(control->name());
        QTest::keyClick(focused, Qt::Key_Tab);
        settleEvents();
    }
}

TEST_F(ViewTest, ADateCanBeEmptyAndNeverBecomesWhatIsNoDate) {
    type(form.dtDate, "4/3/2026");
    EXPECT_EQ(form.dtDate.date(), QDate(2026, 3, 4));
    focus(form.txtName);
    EXPECT_EQ(line(form.dtDate)->text(), "04/03/2026");

    type(form.dtDate, "31/02/2026");
    EXPECT_EQ(form.dtDate.date(), QDate(2026, 3, 4));
    EXPECT_TRUE(line(form.dtDate)->property("invalid").toBool());
    EXPECT_EQ(line(form.dtDate)->accessibleDescription(), "“31/02/2026” is not a date (day/month/year).");
    focus(form.txtName);
    EXPECT_EQ(line(form.dtDate)->text(), "31/02/2026") << "the mistake stays in sight";
    events();
    press(form.cmdSave);
    EXPECT_EQ(events(), QStringList{}) << "nothing is saved with it";
    EXPECT_EQ(QApplication::focusWidget(), line(form.dtDate));
    press(form.cmdClose);
    EXPECT_TRUE(events().contains("cmdClose Click")) << "but the form can be left";

    type(form.dtDate, "");
    key(form.dtDate, Qt::Key_Delete);
    press(form.cmdSave);
    EXPECT_TRUE(form.dtDate.isEmpty());
    const QStringList after = events();
    EXPECT_TRUE(after.contains("dtDate Change") && after.contains("cmdSave Click")) << qPrintable(after.join(';'));
}

TEST(DateEditTest, ReadsDatesAsTheyAreWritten) {
    const QDate today = QDate::currentDate();
    const QString year = today.toString("yyyy");
    for (const QString& read :
         QStringList{"14/03/2026=2026-03-14", " 1-2-2026 =2026-02-01", "29/02/2024=2024-02-29",
                     "5/3=" + year + "-03-05", "14.03=" + year + "-03-14", "5/3/26=2026-03-05", "05032026=2026-03-05",
                     "050326=2026-03-05", "T=" + today.toString(Qt::ISODate), "="})
        EXPECT_EQ(DateEdit::parse(read.section('=', 0, 0)),
                  std::optional(QDate::fromString(read.section('=', 1), Qt::ISODate)))
            << qPrintable(read);
    for (const char* none : {"29/02/2026", "03/14/2026", "0503", "5/3/", "5/3/202", "14/03/20266", "14/03/1026", "abc"})
        EXPECT_EQ(DateEdit::parse(QString::fromLatin1(none)), std::nullopt) << none;
}

TEST_F(ViewTest, ANumberThatCannotBeReadIsMarkedAtOnceAndEasyToTypeOver) {
    for (const char* typed : {"abc5000", "N5000", "5 000", "5,000.50", "", "-3", "1.2.3"}) {
        type(form.txtAmt0, QString::fromLatin1(typed));
        const bool number = QStringList{"5,000.50", "", "-3"}.contains(QLatin1String(typed));
        EXPECT_EQ(widget(form.txtAmt0)->property("invalid").toBool(), !number) << typed;
        EXPECT_EQ(!widget(form.txtAmt0)->toolTip().isEmpty(), !number) << "words beside the colour";
    }
    form.cmdSave.onClick = [this] { form.txtAmt0.setFocus(); };
    press(form.cmdSave);
    EXPECT_EQ(QApplication::focusWidget(), widget(form.txtAmt0));
    EXPECT_EQ(line(form.txtAmt0)->selectedText(), "1.2.3") << "what a box complained about is typed over";
    focus(form.txtName);
    press(form.txtAmt0);
    QTest::keyClicks(line(form.txtAmt0), "1");
    EXPECT_EQ(text(form.txtAmt0), "1");
    QTest::mouseClick(line(form.txtAmt0), Qt::LeftButton, {}, line(form.txtAmt0)->rect().center());
    EXPECT_FALSE(line(form.txtAmt0)->hasSelectedText()) << "a second click finds a place in it";
}

TEST_F(ViewTest, ASumIsWorkedOutOnLeavingItsField) {
    for (const QString& sum :
         QStringList{"3*450=1350", "12,500 + 700=13200", "100-2*25.25+.5=50", "10/4=2.50", "10/3=3.33", "450=450",
                     "1,350.00=1,350.00", "5 000+1=5 000+1", "3*=3*", "10/0=10/0", "3*-4=3*-4", "-5=-5", "abc=abc"}) {
        type(form.txtAmt0, sum.section('=', 0, 0));
        key(form.txtAmt0, Qt::Key_Tab);
        EXPECT_EQ(form.txtAmt0.text(), sum.section('=', 1)) << qPrintable(sum);
    }
    type(form.txtName, "3*450");
    focus(form.txtAmt0);
    EXPECT_EQ(form.txtName.text(), "3*450") << "a text stays a text";
    type(form.txtAmt0, "2*2");
    press(form.cmdSave);
    EXPECT_EQ(form.txtAmt0.text(), "4") << "a button presses what its user means";
}

TEST_F(ViewTest, TicksOptionsTabsListsAndTreesGoToTheirControls) {
    press(form.chkCard);
    press(form.radTwo);
    EXPECT_EQ(events(), (QStringList{"chkCard Click", "radTwo Click"}));
    EXPECT_FALSE(form.radOne.isChecked() || widget<QRadioButton>(form.radOne)->isChecked());
    widget<QTabWidget>(form.strip)->setCurrentIndex(1);
    EXPECT_EQ(events(), QStringList{"tabs Click"});
    EXPECT_EQ(form.strip.tab(), 1);

    auto* list = widget<QListView>(form.lstItems);
    list->setFocus();
    list->setCurrentIndex(list->model()->index(1, 0));
    for (const char* ticked : {"TWO", ""}) {
        QTest::keyClick(list, Qt::Key_Space);
        EXPECT_EQ(form.lstItems.valueText(), ticked);
    }
    auto* tree = widget<QTreeView>(form.tree);
    const QModelIndex leaf = tree->model()->index(0, 0, tree->model()->index(0, 0));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(leaf).center());
    EXPECT_EQ(form.tree.selectedKey(), "leaf");
}

TEST_F(ViewTest, WhatIsHiddenDisabledOrLockedReachesItsWidgets) {
    form.fraOuter.setEnabled(false);
    settleEvents();
    EXPECT_FALSE(widget(form.radCash)->isEnabled());
    EXPECT_TRUE(widget(form.radOne)->isEnabled());
    form.fraOuter.setEnabled(true);
    settleEvents();
    EXPECT_TRUE(widget(form.radCash)->isEnabled());
    form.fraInner.setVisible(false);
    const auto label = [this] {
        for (const QLabel* shown : window->findChildren<QLabel*>())
            if (shown->isVisible() && shown->text().remove('&') == "Digits")
                return true;
        return false;
    };
    EXPECT_TRUE(label());
    form.txtDigits.setVisible(false);
    settleEvents();
    EXPECT_FALSE(label()) << "a field takes its label along";
    EXPECT_FALSE(widget(form.radCash)->isVisible() || widget<QGroupBox>(form.fraInner)->isVisible());

    form.cboColor.setListIndex(1);
    form.dtDate.setDate(QDate(2026, 3, 4));
    const std::pair<Control*, const char*> typed[] = {
        {&form.txtName, "x"}, {&form.cboTown, "ABA"}, {&form.cboColor, "RED"}, {&form.dtDate, "5/3/2026"}};
    form.txtName.setLocked(true);
    form.cboTown.setLocked(true);
    form.cboColor.setLocked(true);
    form.dtDate.setLocked(true);
    settleEvents();
    for (const auto& [control, text] : typed)
        type(*control, QString::fromLatin1(text));
    for (const Qt::Key pressed : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageDown}) {
        QTest::keyClick(widget(form.cboColor), pressed);
        key(form.cboColor, pressed);
        key(form.dtDate, pressed);
    }
    press(form.cboColor);
    EXPECT_FALSE(QApplication::activePopupWidget());
    EXPECT_EQ(form.txtName.text() + form.cboTown.text() + form.cboColor.text(), "GREEN");
    EXPECT_EQ(form.dtDate.date(), QDate(2026, 3, 4));
    EXPECT_TRUE(widget(form.cboColor)->isEnabled()) << "it can be read";
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
    EXPECT_EQ(text(form.txtName), "typed meanwhile") << "but after it";
    EXPECT_EQ(text(form.txtCode), "NEW") << "what was typed over a value that has gone goes with it";
    EXPECT_TRUE(widget(form.cmdSave)->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), widget(form.cmdSave)) << "the focus is where it was";

    form.cmdSave.onClick = [] { throw DataError("The server has gone away."); };
    press(form.cmdSave);
    EXPECT_BOXES(ui, {"The server has gone away."});
    EXPECT_EQ(text(form.txtName), "typed meanwhile");
    EXPECT_TRUE(widget(form.cmdSave)->isEnabled());
}

TEST_F(ViewTest, ACaptionThatChangesKeepsALetterOfItsOwn) {
    const auto* extra = widget<QPushButton>(form.cmdExtra);
    EXPECT_EQ(widget<QPushButton>(form.cmdSave)->text(), "&Save");
    EXPECT_NE(extra->text(), "&Save Copy") << "S is taken";
    form.cmdExtra.setCaption("Keep && Go");
    settleEvents();
    EXPECT_EQ(Mnemonics::plain(extra->text()), "Keep & Go");
    EXPECT_FALSE(Mnemonics::asked(extra->text()).isNull());
}

TEST(MnemonicsTest, GivesEachAKeyOfItsOwnAmongWhatIsInSight) {
    // Page, what it is, its words, and its key ("!": with Shift) with the words that show it.
    const QStringList cases{"0 first|Off|O: &Off", "0 press|&Find|I: F&ind", "0 press|OK|K: O&K",
                            "0 press|OK|O!: OK",   "0 press|OK|K!: OK",      "0 press|OK|1: OK (&1)",
                            "0 field|AA|A: &AA",   "0 field|A A|A!: A A",    "0 field|A && A|3: A && A (&3)",
                            "0 press|%|2: % (&2)", "1 press|X|X: &X",        "2 press|X|X: &X",
                            "2 field|X|X!: X",     "0 press|Ze|E: Z&e",      "0 field|&Z|Z: &Z",
                            "0 field|U|U!: U",     "0 press|U|U: &U"};
    const QHash<QString, Mnemonics::Kind> kinds{
        {"first", Mnemonics::First}, {"press", Mnemonics::Press}, {"field", Mnemonics::Field}};
    Mnemonics letters("F");
    QStringList shown(cases.size());
    QVector<int> ids;
    for (int place = 0; place < cases.size(); ++place) {
        const QStringList parts = cases.at(place).split('|');
        letters.setPage(parts[0].left(1).toInt());
        ids << letters.add(kinds[parts[0].mid(2)], parts[1], [&shown, place](const QString& words, Mnemonics::Key key) {
            shown[place] =
                (key.letter.isNull() ? QString() : key.letter + QString(key.shifted ? "!" : "")) + ": " + words;
        });
    }
    letters.assign();
    for (int place = 0; place < shown.size(); ++place)
        EXPECT_EQ(shown.at(place), cases.at(place).section('|', 2)) << place;
    letters.captionChanged(ids.at(2), "Other");
    EXPECT_EQ(shown.at(2), "T: O&ther");
    letters.captionChanged(ids.at(1), "Go in");
    EXPECT_EQ(shown.at(1), "I: Go &in") << "its letter goes along";
}

TEST_F(ViewTest, ATimerTicksWhileItIsEnabledAndItsFormRests) {
    form.tmrOff.setEnabled(true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return form.events.contains("tmrOff Timer"); }));
    form.cmdSave.onClick = [this] {
        form.events.clear();
        QTest::qWait(20);
        EXPECT_FALSE(form.events.contains("tmrOff Timer")) << "not into a handler that runs";
    };
    press(form.cmdSave);
    form.tmrOff.setEnabled(false);
    events();
    QTest::qWait(20);
    EXPECT_EQ(events(), QStringList{});

    FormWindow scripted(form, ViewSetting{{}, true});
    form.tmrOff.setEnabled(true);
    window.reset();
    events();
    QTest::qWait(20);
    EXPECT_EQ(events(), QStringList{}) << "in a script the script says when";
}

TEST_F(ViewTest, AClosedFormIsNotTouchedAgain) {
    auto closing = std::make_unique<SampleForm>(ui, "frmClosing");
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
