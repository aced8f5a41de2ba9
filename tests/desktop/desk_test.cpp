// A day at the desk: real windows, keys and clicks, timers that run by themselves.
#include "desktop/DateEdit.h"
#include "desktop/DesktopUi.h"
#include "desktop/FormWindow.h"
#include "desktop/ShellWindow.h"
#include "desktop/ShownForm.h"
#include "desktop/ViewTest.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Workstation.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QPushButton>
#include <QThread>
#include <QTimer>

namespace orvane {
namespace {

/// Two timers of one beat; the first one's handler lets events in.
class TickingForm : public Form {
public:
    explicit TickingForm(Ui& ui) : Form(ui, "frmTicking", "Ticking") {
        tmrFirst.onTimer = [this] {
            inside = true;
            for (int ticks = 0; ticks < 5; ++ticks) {
                QThread::msleep(7);
                this->ui().processEvents();
            }
            inside = false;
            ++first;
        };
        tmrSecond.onTimer = [this] {
            ++second;
            secondInside = secondInside || inside;
        };
        cmdGo.onClick = [this] { ++pressed; };
    }
    Layout layout() const override { return layout::buttons({}, {&cmdGo}); }

    Timer tmrFirst{*this, "tmrFirst", 5, true}, tmrSecond{*this, "tmrSecond", 5, true};
    Button cmdGo{*this, "cmdGo", "Go"};
    int first = 0, second = 0, pressed = 0;
    bool inside = false, secondInside = false;
};

TEST(DeskTimers, NoTickIsLostInsideAnotherAndNoneRunsThere) {
    DesktopUi ui;
    TickingForm form(ui);
    ui.show(form);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.first >= 5; }));
    EXPECT_GE(form.second, 4);
    EXPECT_LE(form.second, 2 * form.first + 2) << "ticks that pile up are one";
    EXPECT_FALSE(form.secondInside);

    // A press that comes inside a timer's event waits for its end.
    form.tmrSecond.setEnabled(false);
    form.tmrFirst.onTimer = [&] {
        form.tmrFirst.setEnabled(false);
        static_cast<QPushButton*>(ui.windows().viewOf(form)->widgetOf(form.cmdGo))->click();
        static_cast<QPushButton*>(ui.windows().viewOf(form)->widgetOf(form.cmdGo))->click();
        EXPECT_EQ(form.pressed, 0);
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.pressed > 0; }));
    form.unload();
}

TEST(DeskTimers, TheDoctorsAlertComesByItself) {
    TestHome home;
    {
        Workstation station(home.folder());
        station.layHospital();
        Connection billing = station.billing();
        makePatient(billing);
        makeVisit(billing, {.date = QDate::currentDate()});
        makeConsultation(billing, {.date = QDate::currentDate()});
    }
    DesktopUi ui;
    ui.windows().setTimerSpeed(1000);
    Program program(home.folder(), ui);
    registerScreens(program);
    ASSERT_TRUE(Main(program, "amina.b"));
    const Control* alert = program.form("MdiTolmek").find("tmrMDI");
    EXPECT_FALSE(alert->isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([&] { return alert->isEnabled(); }));
    program.form("MdiTolmek").abandon();
}

TEST_F(ViewTest, AClickIntoANumberIsThereToTypeAnother) {
    form.txtAmt0.setText("0");
    settleEvents();
    auto* line = widget<QLineEdit>(form.txtAmt0);
    QTest::mouseClick(line, Qt::LeftButton);
    QTest::keyClicks(line, "1");
    EXPECT_EQ(form.txtAmt0.text(), "1");
    QTest::mouseClick(line, Qt::LeftButton, {}, line->rect().center());
    EXPECT_FALSE(line->hasSelectedText()) << "a second click finds a place in it";
}

TEST_F(ViewTest, ANumberThatCannotBeReadIsMarkedAtOnce) {
    for (const auto& [text, wrong] : {std::pair("abc5000", true),
                                      {"N5000", true},
                                      {"5 000", true},
                                      {"5,000.50", false},
                                      {"", false},
                                      {"-3", false},
                                      {"1.2.3", true}}) {
        type(form.txtAmt0, QString::fromLatin1(text));
        EXPECT_EQ(widget(form.txtAmt0)->property("invalid").toBool(), wrong) << text;
    }
    form.cmdSave.onClick = [this] { form.txtAmt0.setFocus(); };
    press(form.cmdSave);
    EXPECT_EQ(QApplication::focusWidget(), widget(form.txtAmt0));
    EXPECT_EQ(widget<QLineEdit>(form.txtAmt0)->selectedText(), "1.2.3") << "what a box complained about is typed over";
}

TEST_F(ViewTest, ASumIsWorkedOutOnLeavingItsField) {
    for (const auto& [typed, value] : {std::pair("3*450", "1350"),
                                       {"12,500 + 700", "13200"},
                                       {"100-2*25.25+.5", "50"},
                                       {"10/4", "2.50"},
                                       {"10/3", "3.33"},
                                       {"450", "450"},
                                       {"1,350.00", "1,350.00"},
                                       {"5 000+1", "5 000+1"},
                                       {"3*", "3*"},
                                       {"10/0", "10/0"},
                                       {"3*-4", "3*-4"},
                                       {"-5", "-5"},
                                       {"abc", "abc"}}) {
        type(form.txtAmt0, QString::fromLatin1(typed));
        QTest::keyClick(editor(form.txtAmt0), Qt::Key_Tab);
        settleEvents();
        EXPECT_EQ(form.txtAmt0.text(), value) << typed;
    }
    type(form.txtName, "3*450");
    editor(form.txtAmt0)->setFocus();
    EXPECT_EQ(form.txtName.text(), "3*450") << "a text stays a text";
    type(form.txtAmt0, "2*2");
    press(form.cmdSave);
    EXPECT_EQ(form.txtAmt0.text(), "4") << "a button presses what its user means";
}

class SuggestionTest : public ViewTest {
protected:
    void SetUp() override {
        form.cboColor.clear();
        form.cboColor.addItems({"IN-PATIENT", "OUT-PATIENT", "ARTEMETHER + LUMEFANTRINE 20/120MG TABLET X6",
                                "ARTEMETHER + LUMEFANTRINE 20/120MG TABLET X24", "OUT-PATIENT"});
        ViewTest::SetUp();
    }
    QAbstractItemView* popup() { return widget<QComboBox>(form.cboColor)->completer()->popup(); }
    /// As typed keys go while suggestions are open: to their list.
    void keyInList(Qt::Key key) {
        ASSERT_TRUE(popup()->isVisible());
        QTest::keyClick(popup(), key);
        settleEvents();
    }
};

TEST_F(SuggestionTest, AreAsWideAsTheirEntries) {
    type(form.cboColor, "arte");
    const int needed = popup()->fontMetrics().horizontalAdvance(form.cboColor.item(3));
    EXPECT_GT(popup()->viewport()->width(), needed);
    EXPECT_LT(widget(form.cboColor)->width(), needed) << "else this shows nothing";
}

TEST_F(SuggestionTest, LeavingTakesTheMarkedTheFirstOrTheOnlyOne) {
    const struct {
        const char* typed;
        QVector<Qt::Key> keys;
        const char* taken;
    } cases[] = {
        {"X24", {Qt::Key_Tab}, "ARTEMETHER + LUMEFANTRINE 20/120MG TABLET X24"},
        {"arte", {Qt::Key_Tab}, "ARTEMETHER + LUMEFANTRINE 20/120MG TABLET X6"},
        {"arte", {Qt::Key_Return}, "ARTEMETHER + LUMEFANTRINE 20/120MG TABLET X6"},
        {"arte", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Tab}, "ARTEMETHER + LUMEFANTRINE 20/120MG TABLET X24"},
        {"arte", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, "ARTEMETHER + LUMEFANTRINE 20/120MG TABLET X24"},
        {"OUT", {Qt::Key_Tab}, "OUT-PATIENT"}};
    for (const auto& test : cases) {
        SCOPED_TRACE(test.typed);
        form.cboColor.setListIndex(0);
        settleEvents();
        type(form.cboColor, QString::fromLatin1(test.typed));
        for (const Qt::Key key : test.keys)
            keyInList(key);
        EXPECT_EQ(form.cboColor.text(), test.taken);
        EXPECT_EQ(widget<QComboBox>(form.cboColor)->currentText(), test.taken);
        EXPECT_FALSE(popup()->isVisible());
        EXPECT_EQ(editor(form.cboColor)->hasFocus(), test.keys.last() == Qt::Key_Return);
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

class DeskTest : public ::testing::Test {
protected:
    class EntryForm : public Form {
    public:
        EntryForm(Ui& ui, const QString& name) : Form(ui, name, name) {
            cboTown.addItems({"ABA", "IBADAN"});
            cboColor.addItems({"RED", "GREEN"});
            grdEntry.setHead("---Item---|--Price--");
            cmdClose.onClick = [this] { unload(); };
        }
        Layout layout() const override {
            using namespace orvane::layout;
            return column({field("Name", txtName), field("Code", txtCode), field("Town", cboTown),
                           field("Color", cboColor), growing(cell(grdEntry)),
                           buttons({&cmdRefresh}, {&cmdClose, &cmdSave})});
        }
        Button* cancelButton() override { return &cmdClose; }

        TextBox txtName{*this, "txtName"}, txtCode{*this, "txtCode"};
        ComboBox cboTown{*this, "cboTown", ComboBox::ListOnly}, cboColor{*this, "cboColor", ComboBox::ListOnly};
        EntryGrid grdEntry{*this, "grdEntry"};
        Button cmdRefresh{*this, "cmdRefresh", "&Refresh"}, cmdClose{*this, "cmdClose", "&Close"};
        Button cmdSave{*this, "cmdSave", "&Save"};
    };
    class ReceiptForm : public EntryForm {
    public:
        explicit ReceiptForm(Ui& ui) : EntryForm(ui, "frmReceipt") {}
        std::optional<Page> page() const override { return Page(); }
        QString documentName() const override { return "12/3 ADE"; }
    };
    class Shell : public Form {
    public:
        explicit Shell(Ui& ui) : Form(ui, "frmShell", "Shell") {
            cmdView.onClick = [this] { ++viewed; };
        }
        Layout layout() const override { return layout::row({layout::cell(cmdView)}); }
        MenuItem mnuFile{*this, "mnuFile", "&File"};
        MenuItem mnuRct{*this, "mnuRct", " Receipt Entry", &mnuFile};
        MenuItem mnuRctNo{*this, "mnuRctNo", "Receipt Numbers", &mnuFile};
        Button cmdView{*this, "cmdView", "Patients from Doctor"};
        int viewed = 0;
    };

    void SetUp() override {
        ui.windows().setMainSize({1366, 768});
        ui.windows().memory().setFile(folder.filePath("desk.ini"));
        ui.show(shell);
        ui.show(first);
        settle();
    }
    static void settle() {
        for (int round = 0; round < 3; ++round)
            QApplication::processEvents();
    }
    QWidget* editor(const Control& control) {
        return ui.windows().viewOf(control.form())->bindingOf(control)->editor();
    }
    QMdiSubWindow* front() { return ui.windows().shell()->area()->currentSubWindow(); }
    QString frontTitle() { return front() ? front()->widget()->findChild<FormView*>()->objectName() : QString(); }
    /// Answers the question that comes up, if one does; gives how many did.
    int answering(QMessageBox::StandardButton answer, const std::function<void()>& act) {
        int asked = 0;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                ++asked;
                EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No)) << "it would lose something";
                box->button(answer)->click();
            }
        });
        watch.start(1);
        act();
        settle();
        if (ShellWindow* window = ui.windows().shell())
            window->activateWindow(); // nobody does it on a screen without a window manager
        settle();
        return asked;
    }

    QTemporaryDir folder;
    DesktopUi ui;
    Shell shell{ui};
    EntryForm first{ui, "frmFirst"}, second{ui, "frmSecond"};
    ReceiptForm receipt{ui};
};

TEST_F(DeskTest, AnEntryUnderWayIsNotLostUnasked) {
    const auto esc = [&] { QTest::keyClick(editor(first.txtName), Qt::Key_Escape); };
    const auto close = [&] { front()->close(); };
    QTest::keyClicks(editor(first.txtName), "ADE");
    EXPECT_EQ(answering(QMessageBox::No, esc), 1);
    EXPECT_EQ(answering(QMessageBox::No, close), 1);
    EXPECT_EQ(answering(QMessageBox::No, [&] { ui.windows().shell()->close(); }), 1);
    EXPECT_FALSE(first.isClosed() || shell.isClosed());
    EXPECT_EQ(first.txtName.text(), "ADE");
    // A save that empties its fields, or that says so, leaves nothing to lose.
    first.entrySaved();
    EXPECT_FALSE(first.hasEntry());
    QTest::keyClicks(editor(first.txtName), "X");
    EXPECT_TRUE(first.hasEntry());
    first.txtName.clear();
    EXPECT_FALSE(first.hasEntry());
    // One choice is a look-up, two are an entry; lines of an entry grid are one.
    QTest::keyClick(editor(first.cboTown), Qt::Key_Down);
    EXPECT_EQ(first.cboTown.listIndex(), 0);
    EXPECT_EQ(answering(QMessageBox::No, close), 0);
    EXPECT_TRUE(first.isClosed());

    ui.show(second);
    second.grdEntry.addRow();
    EXPECT_EQ(answering(QMessageBox::Yes, [&] { QTest::keyClick(editor(second.txtName), Qt::Key_Escape); }), 1);
    EXPECT_TRUE(second.isClosed());
}

TEST_F(DeskTest, TheStatedButtonsCloseAFormUnasked) {
    QTest::keyClicks(editor(first.txtName), "ADE");
    EXPECT_EQ(answering(QMessageBox::No, [&] { static_cast<QPushButton*>(editor(first.cmdClose))->click(); }), 0);
    EXPECT_TRUE(first.isClosed());
}

TEST_F(DeskTest, AReceiptOpensInFrontAndEscGoesBack) {
    ui.show(second);
    first.cmdSave.onClick = [this] {
        ui.show(receipt);
        first.txtCode.setFocus();
    };
    ui.show(first);
    static_cast<QPushButton*>(editor(first.cmdSave))->click();
    settle();
    EXPECT_EQ(frontTitle(), "frmReceipt");
    // Esc from beside the page, where no field is.
    for (QPushButton* button : front()->findChildren<QPushButton*>())
        if (button->text().contains("PDF")) {
            button->setFocus();
            QTest::keyClick(button, Qt::Key_Escape);
        }
    settle();
    EXPECT_TRUE(receipt.isClosed());
    EXPECT_EQ(frontTitle(), "frmFirst") << "not the one that was shown last";
    EXPECT_EQ(QApplication::focusWidget(), editor(first.txtCode));
}

TEST_F(DeskTest, WindowsWithAListTakeTheRoomAndAreWhereTheirUserLeftThem) {
    const QSize room = ui.windows().shell()->area()->viewport()->size();
    EXPECT_EQ(front()->size(), room);
    ui.windows().shell()->resize(1024, 600);
    settle();
    EXPECT_EQ(front()->size(), ui.windows().shell()->area()->viewport()->size()) << "and goes on to fill it";
    ui.windows().shell()->resize(1366, 768);
    settle();
    first.unload();

    QString user = "amina.b";
    ui.windows().memory().setUser([&user] { return user; });
    ui.show(second);
    front()->setGeometry(40, 50, 700, 400);
    second.unload();
    EntryForm again(ui, "frmSecond"), other(ui, "frmSecond");
    ui.show(again);
    EXPECT_EQ(front()->geometry(), QRect(40, 50, 700, 400));
    again.unload();
    user = "another/one";
    ui.show(other);
    EXPECT_EQ(front()->size(), room) << "of another user";
    other.unload();
}

TEST_F(DeskTest, CtrlSSavesAndF5Refreshes) {
    QStringList pressed;
    first.cmdSave.onClick = [&] { pressed << "save"; };
    first.cmdRefresh.onClick = [&] { pressed << "refresh"; };
    QTest::keyClick(editor(first.txtName), Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(editor(first.grdEntry), Qt::Key_F5);
    first.cmdSave.setEnabled(false);
    QTest::keyClick(editor(first.txtName), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(pressed, (QStringList{"save", "refresh"}));
}

TEST_F(DeskTest, WithoutAPrinterAPdfIsOfferedWhereTheLastOneWent) {
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        GTEST_SKIP() << "this machine has a printer";
    QDir().mkpath(folder.filePath("receipts"));
    ui.windows().memory().keep("printing/folder", folder.filePath("receipts"));
    QString said, proposed;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            said = box->text();
            box->button(QMessageBox::Yes)->click();
        } else if (auto* files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            proposed = files->selectedFiles().value(0);
            files->reject();
        }
    });
    watch.start(1);
    ui.show(receipt);
    ui.printForm(receipt);
    EXPECT_EQ(said, "No printer is set up on this computer. Save the document as a PDF instead?");
    EXPECT_EQ(proposed, folder.filePath("receipts/12-3 ADE.pdf"));
}

TEST_F(DeskTest, LettersOfTheMainWindowAreItsOwnAndAMenusStayTheSame) {
    const QString reserved = ui.windows().shell()->reservedLetters();
    EXPECT_TRUE(reserved.contains('F') && reserved.contains('P')) << qPrintable(reserved);
    for (const QPushButton* button : front()->findChildren<QPushButton*>())
        EXPECT_FALSE(reserved.contains(Mnemonics::asked(button->text()))) << qPrintable(button->text());

    auto* entry = static_cast<MenuBinding*>(ui.windows().shell()->view()->bindingOf(shell.mnuRct));
    const QString shown = entry->action()->text();
    EXPECT_FALSE(Mnemonics::asked(shown).isNull());
    entry->refreshNow();
    EXPECT_EQ(entry->action()->text(), shown);
    shell.mnuRct.setCaption(" Receipts");
    entry->refreshNow();
    EXPECT_EQ(Mnemonics::asked(entry->action()->text()), Mnemonics::asked(shown));
}

} // namespace
} // namespace orvane
