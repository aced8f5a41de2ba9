// The windows of the open forms: the main window, those inside it, dialogs, timers, and a script that works on them.
#include "desktop/DesktopUi.h"
#include "desktop/ShellWindow.h"
#include "desktop/ViewTest.h"
#include "desktop/WindowDriver.h"
#include "forms/RangePicker.h"
#include "play/Play.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/SourceTree.h"
#include "support/Workstation.h"
#include "tool/Tool.h"

#include <QBuffer>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <filesystem>

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

TEST(TimersTest, NoTickIsLostInsideAnotherAndNoneRunsThere) {
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
        for (int press = 0; press < 2; ++press)
            static_cast<QPushButton*>(ui.windows().viewOf(form)->widgetOf(form.cmdGo))->click();
        EXPECT_EQ(form.pressed, 0);
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.pressed > 0; }));
    form.unload();
}

TEST(TimersTest, TheDoctorsAlertComesByItself) {
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
    const FormView* strip = ui.windows().shell()->view();
    const auto* button = strip->findChild<QPushButton*>("cmdView");
    EXPECT_TRUE(QTest::qWaitFor([&] { return button->accessibleName() == "Patients from Doctor (1)"; }));
    EXPECT_EQ(Mnemonics::plain(button->text()), button->accessibleName());
    EXPECT_FALSE(strip->findChild<QWidget*>("Picture1")->accessibleName().isEmpty());
    program.form("MdiTolmek").abandon();
}

class RangeForm : public Form {
public:
    RangeForm(Ui& ui, QDate today) : Form(ui, "frmRange", "Range") { visits.setDates(today); }
    Layout layout() const override { return layout::column({visits.layout()}); }
    void list() {}
    RangePicker visits{*this, {"between", "cmdGet", "&Get"}, &RangeForm::list, ComboBox::FreeText, &RangeForm::list};
};

TEST(RangeTest, AnUpToDateRangeMovesOnAndAnotherLastsTheDay) {
    TestHome home;
    Memory memory;
    TestUi ui;
    const QDate today(2026, 3, 14), tomorrow(2026, 3, 15);
    const struct {
        QDate first, last, opened, expectedFirst, expectedLast;
    } cases[] = {{today.addDays(-6), today, tomorrow, tomorrow.addDays(-6), tomorrow},
                 {today.addDays(-40), today.addDays(-10), tomorrow, tomorrow, tomorrow},
                 {today.addDays(-40), today.addDays(-10), today, today.addDays(-40), today.addDays(-10)}};
    const auto dates = [&](QDate day, QDate first, QDate last) {
        RangeForm form(ui, day);
        FormWindow window(form, ViewSetting{{}, false, 1, &memory});
        const auto seen = std::pair(form.visits.DTPicker1.date(), form.visits.DTPicker2.date());
        if (first.isValid()) {
            form.visits.DTPicker1.setDate(first);
            form.visits.DTPicker2.setDate(last);
        }
        window.release();
        return seen;
    };
    for (const auto& test : cases) {
        for (const bool remembers : {false, true}) {
            memory.setFile(remembers ? QDir(home.folder()).filePath("desk.ini") : QString());
            dates(today, test.first, test.last);
            const auto expected =
                remembers ? std::pair(test.expectedFirst, test.expectedLast) : std::pair(test.opened, test.opened);
            EXPECT_EQ(dates(test.opened, {}, {}), expected);
        }
    }
}

class ShellForm : public Form {
public:
    explicit ShellForm(Ui& ui) : Form(ui, "frmShell", "Shell") {
        status.setPanel(1, "amina.b");
        mnuSecret.setVisible(false);
    }
    Layout layout() const override { return layout::row({layout::cell(cmdView)}); }

    MenuItem mnuFile{*this, "mnuFile", "&File"};
    MenuItem mnuOpen{*this, "mnuOpen", "Open && Go", &mnuFile};
    MenuItem mnuRct{*this, "mnuRct", " Receipt Entry", &mnuFile};
    MenuItem mnuRctNo{*this, "mnuRctNo", "Receipt Numbers", &mnuFile};
    MenuItem mnuSecret{*this, "mnuSecret", "Secret", &mnuFile};
    MenuItem mnuWindow{*this, "mnuWindow", "Window"};
    MenuItem mnuWindowTV{*this, "mnuWindowTV", "Tile Vertical", &mnuWindow};
    MenuItem mnuWindowTH{*this, "mnuWindowTH", "Tile Horizontal", &mnuWindow};
    StatusBar status{*this, "status", 2};
    Button cmdView{*this, "cmdView", "Patients from Doctor"};
};

class EntryForm : public Form {
public:
    EntryForm(Ui& ui, const QString& name) : Form(ui, name, name) {
        cboTown.addItems({"ABA", "IBADAN"});
        grdEntry.setHead("---Item---|--Price--");
        cmdClose.onClick = [this] { unload(); };
    }
    Layout layout() const override {
        using namespace orvane::layout;
        return column({field("Name", txtName), field("Code", txtCode), field("Town", cboTown), growing(cell(grdEntry)),
                       buttons({&cmdRefresh}, {&cmdClose, &cmdSave})});
    }
    Button* cancelButton() override { return &cmdClose; }
    bool Form_Unload() override { return !refuses; }
    std::optional<Page> page() const override {
        return name() == QLatin1String("frmReceipt") ? std::optional(Page()) : std::nullopt;
    }
    QString documentName() const override { return "12/3 ADE"; }

    TextBox txtName{*this, "txtName"}, txtCode{*this, "txtCode"};
    ComboBox cboTown{*this, "cboTown", ComboBox::ListOnly};
    EntryGrid grdEntry{*this, "grdEntry"};
    Button cmdRefresh{*this, "cmdRefresh", "&Refresh"}, cmdClose{*this, "cmdClose", "&Close"};
    Button cmdSave{*this, "cmdSave", "&Save"};
    bool refuses = false;
};

TEST(MainWindowTest, FillsTheScreenUnlessItWasLeftSmaller) {
    const QTemporaryDir folder;
    DesktopUi ui;
    ui.windows().memory().setFile(folder.filePath("desk.ini"));
    const QRect smaller(30, 40, 700, 500);
    for (const bool leftSmaller : {false, true, false, false}) {
        ShellForm shell(ui);
        const bool wasSmaller = ui.windows().memory().value("frmShell/place").isValid();
        ui.show(shell);
        settleEvents();
        QWidget* window = ui.windows().shell();
        EXPECT_EQ(window->isMaximized(), !wasSmaller);
        EXPECT_TRUE(!wasSmaller || window->geometry().size() == smaller.size());
        if (leftSmaller) {
            window->showNormal();
            window->setGeometry(smaller);
        } else {
            window->showMaximized();
        }
        settleEvents();
        shell.unload();
        settleEvents();
        EXPECT_EQ(ui.windows().memory().value("frmShell/place").isValid(), leftSmaller);
    }
}

/// The main window with one form in it.
class WindowsTest : public ::testing::Test {
protected:
    void SetUp() override {
        ui.windows().setMainSize({1366, 768});
        ui.windows().memory().setFile(folder.filePath("desk.ini"));
        ui.show(shell);
        ui.show(first);
        settleEvents();
    }
    /// The forms go before their windows, as a program's do.
    void TearDown() override {
        for (Form* form : std::initializer_list<Form*>{&shell, &first, &second, &receipt})
            ui.abandoned(*form);
    }
    QMdiArea& area() { return *ui.windows().shell()->area(); }
    QMdiSubWindow* front() { return area().currentSubWindow(); }
    MenuBinding* menu(const Control& item) {
        return static_cast<MenuBinding*>(ui.windows().shell()->view()->bindingOf(item));
    }
    QWidget* editor(const Control& control) {
        return ui.windows().viewOf(control.form())->bindingOf(control)->editor();
    }
    void press(const Button& button) {
        static_cast<QPushButton*>(editor(button))->click();
        settleEvents();
    }
    /// Acts, while each dialog of this kind that comes up is answered; gives how many did.
    template <typename Dialog>
    int answering(const std::function<void(Dialog&)>& answer, const std::function<void()>& act) {
        int seen = 0;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
                ++seen;
                answer(*dialog);
            }
        });
        watch.start(1);
        act();
        settleEvents();
        if (ShellWindow* window = ui.windows().shell())
            window->activateWindow(); // nobody does it on a screen without a window manager
        settleEvents();
        return seen;
    }
    /// How many questions came up, which were answered so.
    int asked(QMessageBox::StandardButton answer, const std::function<void()>& act) {
        return answering<QMessageBox>(
            [&](QMessageBox& box) {
                EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No)) << "it would lose something";
                box.button(answer)->click();
            },
            act);
    }

    QTemporaryDir folder;
    DesktopUi ui;
    ShellForm shell{ui};
    EntryForm first{ui, "frmFirst"}, second{ui, "frmSecond"}, receipt{ui, "frmReceipt"};
};

TEST_F(WindowsTest, FormsShowInsideTheMainWindowOnceAndGoWhenTheyClose) {
    QStringList activated;
    for (EntryForm* form : {&first, &second})
        form->onActivated = [&activated](Form& which) { activated << which.name(); };
    ui.show(second);
    ui.show(first);
    EXPECT_EQ(area().subWindowList().size(), 2);
    EXPECT_EQ(front()->windowTitle(), "frmFirst");
    EXPECT_EQ(activated, (QStringList{"frmSecond", "frmFirst"}));
    EXPECT_EQ(QApplication::focusWidget(), editor(first.txtName));

    first.refuses = true;
    front()->close();
    EXPECT_FALSE(first.isClosed());
    EXPECT_TRUE(front()->isVisible()) << "a form that refuses stays in sight";
    first.refuses = false;
    front()->close();
    EXPECT_TRUE(first.isClosed());
    second.setCaption("Another");
    EXPECT_EQ(front()->windowTitle(), "Another");
    second.unload();
    EXPECT_EQ(area().subWindowList().size(), 0);
    EXPECT_FALSE(ui.windows().viewOf(second));
}

TEST_F(WindowsTest, AnEntryUnderWayIsNotLostUnasked) {
    const auto esc = [&] { QTest::keyClick(editor(first.txtName), Qt::Key_Escape); };
    const auto close = [&] { front()->close(); };
    QTest::keyClicks(editor(first.txtName), "ADE");
    EXPECT_EQ(asked(QMessageBox::No, esc), 1);
    EXPECT_EQ(asked(QMessageBox::No, close), 1);
    EXPECT_EQ(asked(QMessageBox::No, [&] { ui.windows().shell()->close(); }), 1);
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
    EXPECT_EQ(asked(QMessageBox::No, close), 0);
    EXPECT_TRUE(first.isClosed());

    EntryForm stated(ui, "frmStated");
    ui.show(stated);
    QTest::keyClicks(editor(stated.txtName), "ADE");
    EXPECT_EQ(asked(QMessageBox::No, [&] { press(stated.cmdClose); }), 0) << "the stated buttons close unasked";
    EXPECT_TRUE(stated.isClosed());
    ui.show(second);
    second.grdEntry.addRow();
    EXPECT_EQ(asked(QMessageBox::Yes, [&] { QTest::keyClick(editor(second.txtName), Qt::Key_Escape); }), 1);
    EXPECT_TRUE(second.isClosed());
}

TEST_F(WindowsTest, AReceiptOpensInFrontAndEscGoesBack) {
    second.cmdSave.onClick = [this] {
        ui.show(receipt);
        second.txtCode.setFocus();
    };
    EntryForm third(ui, "frmThird");
    ui.show(second);
    ui.show(third);
    ui.show(first);
    ui.show(second);
    press(second.cmdSave);
    EXPECT_EQ(front()->windowTitle(), "frmReceipt");
    // Esc from beside the page, where no field is.
    for (QPushButton* button : front()->findChildren<QPushButton*>())
        if (button->text().contains("PDF")) {
            button->setFocus();
            QTest::keyClick(button, Qt::Key_Escape);
        }
    settleEvents();
    EXPECT_TRUE(receipt.isClosed());
    EXPECT_EQ(front()->windowTitle(), "frmSecond") << "where he came from";
    EXPECT_EQ(QApplication::focusWidget(), editor(second.txtCode));
    third.unload();
}

TEST_F(WindowsTest, WindowsWithAListTakeTheRoomAndAreWhereTheirUserLeftThem) {
    const QSize room = area().viewport()->size();
    EXPECT_EQ(front()->size(), room);
    ui.windows().shell()->resize(1024, 600);
    settleEvents();
    EXPECT_EQ(front()->size(), area().viewport()->size()) << "and goes on to fill it";
    ui.windows().shell()->resize(1366, 768);
    settleEvents();
    EXPECT_EQ(front()->size(), room);
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

TEST_F(WindowsTest, CtrlSSavesAndF5Refreshes) {
    QStringList pressed;
    first.cmdSave.onClick = [&] { pressed << "save"; };
    first.cmdRefresh.onClick = [&] { pressed << "refresh"; };
    QTest::keyClick(editor(first.txtName), Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(editor(first.grdEntry), Qt::Key_F5);
    first.cmdSave.setEnabled(false);
    QTest::keyClick(editor(first.txtName), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(pressed, (QStringList{"save", "refresh"}));
}

TEST_F(WindowsTest, WithoutAPrinterAPdfIsOfferedWhereTheLastOneWent) {
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        GTEST_SKIP() << "this machine has a printer";
    QDir().mkpath(folder.filePath("receipts"));
    ui.windows().memory().keep("printing/folder", folder.filePath("receipts"));
    QFile(folder.filePath("receipts/old.pdf")).open(QIODevice::WriteOnly);
    QStringList said;
    const auto answer = [&](QDialog& dialog) {
        if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
            said << box->text().section('\n', 0, 0);
            box->button(said.size() == 1 ? QMessageBox::Yes : QMessageBox::No)->click();
        } else if (said.size() == 1) {
            said << qobject_cast<QFileDialog*>(&dialog)->selectedFiles().value(0);
            dialog.findChild<QLineEdit*>()->setText("old");
            QMetaObject::invokeMethod(&dialog, &QDialog::accept, Qt::QueuedConnection);
        } else if (said.size() == 3) {
            dialog.reject();
        }
    };
    ui.show(receipt);
    answering<QDialog>(answer, [&] { ui.printForm(receipt); });
    EXPECT_EQ(said, (QStringList{"No printer is set up on this computer. Save the document as a PDF instead?",
                                 folder.filePath("receipts/12-3 ADE.pdf"), "old.pdf already exists."}));
}

TEST_F(WindowsTest, MenusFollowTheirFormAndKeepTheirLetters) {
    int opened = 0;
    shell.mnuOpen.onClick = [&] { ++opened; };
    menu(shell.mnuOpen)->action()->trigger();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(Mnemonics::plain(menu(shell.mnuOpen)->action()->text()), "Open & Go");
    EXPECT_FALSE(menu(shell.mnuSecret)->action()->isVisible());
    const QString reserved = ui.windows().shell()->reservedLetters();
    EXPECT_TRUE(reserved.contains('F') && reserved.contains('P')) << qPrintable(reserved);
    for (const QPushButton* button : front()->findChildren<QPushButton*>())
        EXPECT_FALSE(reserved.contains(Mnemonics::asked(button->text()))) << qPrintable(button->text());

    const QList<QLabel*> labels = ui.windows().shell()->findChildren<QLabel*>();
    shell.status.setMessage("Receipt 12 of N5.00 saved");
    settleEvents();
    EXPECT_TRUE(std::any_of(labels.cbegin(), labels.cend(), [](const QLabel* label) {
        return label->isVisible() && label->text() == "Receipt 12 of N5.00 saved";
    }));
    MenuBinding* entry = menu(shell.mnuRct);
    const QString shown = entry->action()->text();
    EXPECT_FALSE(Mnemonics::asked(shown).isNull());
    entry->refreshNow();
    EXPECT_EQ(entry->action()->text(), shown);
    shell.mnuRct.setCaption(" Receipts");
    shell.mnuFile.setVisible(false);
    shell.mnuOpen.setEnabled(false);
    settleEvents();
    EXPECT_EQ(Mnemonics::asked(entry->action()->text()), Mnemonics::asked(shown));
    EXPECT_FALSE(menu(shell.mnuFile)->action()->isVisible());
    EXPECT_FALSE(menu(shell.mnuOpen)->action()->isEnabled());
}

TEST_F(WindowsTest, TheWindowMenuArrangesAndListsTheWindows) {
    ui.show(second);
    menu(shell.mnuWindowTV)->action()->trigger();
    const QList<QMdiSubWindow*> children = area().subWindowList();
    EXPECT_EQ(children[0]->height(), area().viewport()->height());
    EXPECT_EQ(children[0]->geometry().right() + 1, children[1]->geometry().left());
    menu(shell.mnuWindowTH)->action()->trigger();
    EXPECT_EQ(children[0]->width(), area().viewport()->width());
    EXPECT_EQ(children[0]->geometry().bottom() + 1, children[1]->geometry().top());

    QMenu* windowMenu = menu(shell.mnuWindow)->menu();
    Q_EMIT windowMenu->aboutToShow();
    Q_EMIT windowMenu->aboutToShow();
    QStringList listed;
    for (QAction* action : windowMenu->actions())
        if (action->isCheckable())
            listed << Mnemonics::plain(action->text()) + (action->isChecked() ? "*" : "");
    EXPECT_EQ(listed, (QStringList{"1 frmFirst", "2 frmSecond*"}));
    windowMenu->actions().at(windowMenu->actions().size() - 2)->trigger();
    EXPECT_EQ(front(), children[0]);
}

TEST_F(WindowsTest, AModalFormReturnsWhenItHasClosed) {
    first.unload();
    EntryForm modal(ui, "frmModal");
    bool worked = false;
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(QApplication::activeModalWidget(), ui.windows().windowOf(modal));
        // Behind a dialog nobody could reach a window inside the main one.
        ui.show(second);
        EXPECT_TRUE(ui.windows().windowOf(second)->isWindow());
        second.unload();
        worked = true;
        modal.userEvent([&] { modal.unload(); });
    });
    ui.showModal(modal);
    EXPECT_TRUE(worked && modal.isClosed());
}

TEST_F(WindowsTest, BoxesShowPlainWordsAndEscIsNo) {
    ui.setBusy(true);
    ui.setBusy(true);
    EXPECT_TRUE(QApplication::overrideCursor());
    const auto plain = [](QMessageBox& box) {
        EXPECT_FALSE(QApplication::overrideCursor()) << "a busy pointer gives way";
        EXPECT_EQ(box.windowTitle(), "Billing");
        EXPECT_EQ(box.text(), "<b>5 < 6</b>");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        box.accept();
    };
    EXPECT_EQ(answering<QMessageBox>(plain, [&] { ui.box("<b>5 < 6</b>", Icon::Critical); }), 1);
    EXPECT_TRUE(QApplication::overrideCursor());
    ui.setBusy(false);
    EXPECT_FALSE(QApplication::overrideCursor());

    const auto longOne = [](QMessageBox& box) {
        EXPECT_EQ(box.detailedText().size(), 5000) << "the whole text can be read";
        EXPECT_LT(box.text().size(), 2000);
        box.accept();
    };
    EXPECT_EQ(answering<QMessageBox>(longOne, [&] { ui.box(QString(5000, QLatin1Char('x'))); }), 1);
    const auto escape = [](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Exit Application");
        QTest::keyClick(&box, Qt::Key_Escape);
    };
    answering<QMessageBox>(
        escape, [&] { EXPECT_FALSE(ui.question("Exit?", "Exit Application")); });
    const auto enter = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); };
    answering<QMessageBox>(
        enter, [&] { EXPECT_TRUE(ui.question("Are you sure to save?")); });
    answering<QMessageBox>(enter, [&] { EXPECT_FALSE(ui.question("Are you sure to Delete?", {}, Consent::Destroys)); });
    const auto yes = [](QMessageBox& box) {
        EXPECT_EQ(box.informativeText(), "<i>ADE</i>\nN5.00");
        for (const QLabel* label : box.findChildren<QLabel*>())
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << qPrintable(label->text());
        box.button(QMessageBox::Yes)->click();
    };
    answering<QMessageBox>(yes, [&] { EXPECT_TRUE(ui.question("Exit?", {}, Consent::Keeps, "<i>ADE</i>\nN5.00")); });
    const auto given = [](QInputDialog& dialog) {
        EXPECT_EQ(dialog.textValue(), "5");
        dialog.setTextValue("7");
        dialog.accept();
    };
    answering<QInputDialog>(
        given, [&] { EXPECT_EQ(ui.inputBox("How many?", {}, "5"), "7"); });
    const auto cancel = [](QInputDialog& dialog) { dialog.reject(); };
    answering<QInputDialog>(cancel, [&] { EXPECT_EQ(ui.inputBox("How many?"), std::nullopt); });
}

/// Plays a script without windows (`out` empty), or on the real ones with its pictures and prints in `out`.
struct Played {
    int code = -1;
    QString output;
};

Played play(const QString& home, const QByteArray& script, const QString& out = {}) {
    QBuffer input, output;
    input.setData(script);
    input.open(QIODevice::ReadOnly);
    output.open(QIODevice::WriteOnly);
    Played played;
    if (out.isEmpty()) {
        played.code = runPlay(home, input, output, {});
    } else {
        DesktopUi desktop;
        desktop.windows().setMainSize({1366, 768});
        desktop.windows().setScripted(true);
        desktop.windows().setPrintFolder(out);
        DesktopShower shower(desktop);
        WindowDriver driver(desktop.windows(), out);
        PlayOptions options;
        options.driver = &driver;
        options.shower = &shower;
        played.code = runPlay(home, input, output, options);
    }
    played.output = QString::fromUtf8(output.data());
    return played;
}

TEST(ScriptTest, TheTourOfTheDemonstrationHospitalIsTheSameOnRealWindows) {
    QFile tour(sourceFile("demo/tour.play"));
    ASSERT_TRUE(tour.open(QIODevice::ReadOnly));
    const QByteArray script = tour.readAll();
    const QTemporaryDir folder;
    const QString out = folder.filePath("out");
    QDir().mkpath(out);
    const QString model = folder.filePath("model"), twin = folder.filePath("twin");
    QString words;
    QTextStream stream(&words);
    const QStringList demo{"demo", "--home", model, "--patients", "60",        "--days",
                           "5",    "--seed", "1",   "--until",    "2026-03-13"};
    ASSERT_EQ(runDatabaseTool(demo, stream, stream), 0) << qPrintable(words);
    std::filesystem::copy(model.toStdString(), twin.toStdString(), std::filesystem::copy_options::recursive);
    const Played onModel = play(model, script);
    EXPECT_EQ(onModel.code, 0) << qPrintable(onModel.output);
    EXPECT_EQ(play(twin, script, out).output, onModel.output);
    EXPECT_EQ(QImage(out + "/01-shell.png").size(), QSize(1366, 768));
    EXPECT_TRUE(QFile::exists(out + "/frmCashReceipt-1.pdf"));
}

// What the tour does not touch: an emptied date, entries read back, a list picked by its number, keys one by one.
TEST(ScriptTest, ActsOnWidgetsAsOnTheModel) {
    TestHome home;
    {
        Workstation station(home.folder());
        station.layHospital();
    }
    const QByteArray script = R"(
clock server "2026-03-14 09:30:00"
start
state MdiTolmek.mnuAccts
menu mnuOffAttd
key frmRecordsOffline.txtName "AD"
print frmRecordsOffline.txtName
key frmRecordsOffline.txtName "\n"
items frmRecordsOffline.cboVehNo
set frmRecordsOffline.dtNext "2026-03-20"
print frmRecordsOffline.dtNext
set frmRecordsOffline.dtNext ""
print frmRecordsOffline.dtNext
set frmRecordsOffline.chkCon "yes"
print frmRecordsOffline.chkCon
leave frmRecordsOffline.txtName
dblclick MdiTolmek.Picture1
timer MdiTolmek.Timer2
print MdiTolmek.lblDate
rows frmRecordsOffline.grdData
open frmUsers
pick frmUsers.TreeView1 "AMINA"
close frmUsers
close frmRecordsOffline
answer no
close MdiTolmek
answer yes
close MdiTolmek
)";
    const QTemporaryDir out;
    const Played onModel = play(home.folder(), script);
    const Played onWindows = play(home.folder(), script, out.path());
    EXPECT_EQ(onModel.code, 0) << qPrintable(onModel.output);
    EXPECT_EQ(onWindows.output, onModel.output);
}

} // namespace
} // namespace orvane
