// The windows of the open forms: the main window, those inside it, dialogs, and a script that works on them.
#include "desktop/DesktopUi.h"
#include "desktop/FormWindow.h"
#include "desktop/ShellWindow.h"
#include "desktop/ShownForm.h"
#include "desktop/WindowDriver.h"
#include "play/Play.h"
#include "support/SourceTree.h"
#include "support/Workstation.h"
#include "tool/Tool.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QInputDialog>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>

namespace orvane {
namespace {

/// A small form without menus, so that it is no main window.
class PlainForm : public Form {
public:
    PlainForm(Ui& ui, const QString& name) : Form(ui, name, name) {}
    Layout layout() const override {
        using namespace orvane::layout;
        return column({field("Name", txtName), buttons({}, {&cmdGo})});
    }
    bool Form_Unload() override { return !refuses; }

    TextBox txtName{*this, "txtName"};
    Button cmdGo{*this, "cmdGo", "Go"};
    bool refuses = false;
};

class ShellForm : public PlainForm {
public:
    explicit ShellForm(Ui& ui) : PlainForm(ui, "frmShell") {}
    MenuItem mnuFile{*this, "mnuFile", "File"};
    MenuItem mnuOpen{*this, "mnuOpen", "Open && Go", &mnuFile};
    MenuItem mnuSecret{*this, "mnuSecret", "Secret", &mnuFile};
    MenuItem mnuWindow{*this, "mnuWindow", "Window"};
    MenuItem mnuWindowTV{*this, "mnuWindowTV", "Tile Vertical", &mnuWindow};
    MenuItem mnuWindowTH{*this, "mnuWindowTH", "Tile Horizontal", &mnuWindow};
    StatusBar status{*this, "status", 2};
};

class WindowsTest : public ::testing::Test {
protected:
    void SetUp() override {
        ui.windows().setMainSize({1366, 768});
        shell.status.setPanel(1, "amina.b");
        shell.mnuSecret.setVisible(false);
        ui.show(shell);
        QApplication::processEvents();
    }
    QMdiArea& area() { return *ui.windows().shell()->area(); }
    MenuBinding* menu(const Control& item) {
        return static_cast<MenuBinding*>(ui.windows().shell()->view()->bindingOf(item));
    }
    /// Acts on the box that comes up, once the program waits in it.
    template <typename Dialog>
    void onBox(std::function<void(Dialog&)> act) {
        QTimer::singleShot(
            0,
            [act] {
                auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
                ASSERT_TRUE(dialog);
                act(*dialog);
            });
    }

    DesktopUi ui;
    ShellForm shell{ui};
    PlainForm first{ui, "frmFirst"}, second{ui, "frmSecond"};
};

TEST_F(WindowsTest, FormsShowInsideTheMainWindowOnceAndGoWhenTheyClose) {
    QStringList activated;
    for (PlainForm* form : {&first, &second})
        form->onActivated = [&activated](Form& which) { activated << which.name(); };
    ui.show(first);
    ui.show(second);
    ui.show(first);
    EXPECT_EQ(area().subWindowList().size(), 2);
    EXPECT_EQ(area().activeSubWindow()->windowTitle(), "frmFirst");
    EXPECT_EQ(activated, (QStringList{"frmFirst", "frmSecond", "frmFirst"}));
    EXPECT_EQ(QApplication::focusWidget(), ui.windows().viewOf(first)->widgetOf(first.txtName));

    first.refuses = true;
    area().activeSubWindow()->close();
    EXPECT_FALSE(first.isClosed());
    EXPECT_TRUE(area().activeSubWindow()->isVisible()) << "a form that refuses stays in sight";
    first.refuses = false;
    area().activeSubWindow()->close();
    EXPECT_TRUE(first.isClosed());
    second.setCaption("Another");
    EXPECT_EQ(area().activeSubWindow()->windowTitle(), "Another");
    second.unload();
    EXPECT_EQ(area().subWindowList().size(), 0);
    EXPECT_FALSE(ui.windows().viewOf(second));
}

TEST_F(WindowsTest, MenusFollowTheirForm) {
    int opened = 0;
    shell.mnuOpen.onClick = [&] { ++opened; };
    menu(shell.mnuOpen)->action()->trigger();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(Mnemonics::plain(menu(shell.mnuOpen)->action()->text()), "Open & Go");
    EXPECT_FALSE(menu(shell.mnuSecret)->action()->isVisible());
    shell.mnuFile.setVisible(false);
    shell.mnuOpen.setEnabled(false);
    QApplication::processEvents();
    EXPECT_FALSE(menu(shell.mnuFile)->action()->isVisible());
    EXPECT_FALSE(menu(shell.mnuOpen)->action()->isEnabled());
    // The letters of the menu bar are not given away inside the windows.
    ui.show(first);
    for (const QChar letter : ui.windows().shell()->reservedLetters())
        EXPECT_NE(Mnemonics::asked(ui.windows().viewOf(first)->findChild<QLabel*>()->text()), letter);
}

TEST_F(WindowsTest, TheWindowMenuArrangesAndListsTheWindows) {
    ui.show(first);
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
    EXPECT_EQ(area().activeSubWindow(), children[0]);
}

TEST_F(WindowsTest, AModalFormReturnsWhenItHasClosed) {
    bool worked = false;
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(QApplication::activeModalWidget(), ui.windows().windowOf(first));
        // Behind a dialog nobody could reach a window inside the main one.
        ui.show(second);
        EXPECT_TRUE(ui.windows().windowOf(second)->isWindow());
        second.unload();
        worked = true;
        first.userEvent([&] { first.unload(); });
    });
    ui.showModal(first);
    EXPECT_TRUE(worked);
    EXPECT_TRUE(first.isClosed());
}

TEST_F(WindowsTest, BoxesShowPlainWordsAndEscIsNo) {
    onBox<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Billing");
        EXPECT_EQ(box.text(), "<b>5 < 6</b>");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        box.accept();
    });
    ui.box("<b>5 < 6</b>", Icon::Critical);
    onBox<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.detailedText().size(), 5000) << "the whole text can be read";
        EXPECT_LT(box.text().size(), 2000);
        box.accept();
    });
    ui.box(QString(5000, QLatin1Char('x')));
    onBox<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Exit Application");
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_FALSE(ui.question("Exit?", "Exit Application"));
    onBox<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
    EXPECT_TRUE(ui.question("Exit?"));
    onBox<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.textValue(), "5");
        dialog.setTextValue("7");
        dialog.accept();
    });
    EXPECT_EQ(ui.inputBox("How many?", {}, "5"), "7");
    onBox<QInputDialog>([](QInputDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(ui.inputBox("How many?"), std::nullopt);
}

TEST_F(WindowsTest, ABusyPointerGivesWayToABox) {
    ui.setBusy(true);
    ui.setBusy(true);
    EXPECT_TRUE(QApplication::overrideCursor());
    onBox<QMessageBox>([](QMessageBox& box) {
        EXPECT_FALSE(QApplication::overrideCursor());
        box.accept();
    });
    ui.box("Saved");
    EXPECT_TRUE(QApplication::overrideCursor());
    ui.setBusy(false);
    EXPECT_FALSE(QApplication::overrideCursor());
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
