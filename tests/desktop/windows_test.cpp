// The windows of the open forms: the main window, those inside it, dialogs, and a script that works on them.
#include "desktop/DesktopUi.h"
#include "desktop/FormWindow.h"
#include "desktop/ShellWindow.h"
#include "desktop/ShownForm.h"
#include "desktop/WindowDriver.h"
#include "play/Play.h"
#include "support/Workstation.h"

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

namespace orvane {
namespace {

/// The sample form without its menus, so that it is no main window: its menus go to another form.
class PlainForm : public Form {
public:
    PlainForm(Ui& ui, const QString& name) : Form(ui, name, name) {}
    Layout layout() const override {
        using namespace orvane::layout;
        return column({field(QStringLiteral("Name"), txtName), buttons({}, {&cmdGo})});
    }
    bool Form_Unload() override { return !refuses; }

    TextBox txtName{*this, QStringLiteral("txtName")};
    Button cmdGo{*this, QStringLiteral("cmdGo"), QStringLiteral("Go")};
    bool refuses = false;
};

class ShellForm : public PlainForm {
public:
    explicit ShellForm(Ui& ui) : PlainForm(ui, QStringLiteral("frmShell")) {}
    MenuItem mnuFile{*this, QStringLiteral("mnuFile"), QStringLiteral("File")};
    MenuItem mnuOpen{*this, QStringLiteral("mnuOpen"), QStringLiteral("Open && Go"), &mnuFile};
    MenuItem mnuSecret{*this, QStringLiteral("mnuSecret"), QStringLiteral("Secret"), &mnuFile};
    MenuItem mnuWindow{*this, QStringLiteral("mnuWindow"), QStringLiteral("Window")};
    MenuItem mnuWindowTV{*this, QStringLiteral("mnuWindowTV"), QStringLiteral("Tile Vertical"), &mnuWindow};
    MenuItem mnuWindowTH{*this, QStringLiteral("mnuWindowTH"), QStringLiteral("Tile Horizontal"), &mnuWindow};
    StatusBar status{*this, QStringLiteral("status"), 2};
};

class WindowsTest : public ::testing::Test {
protected:
    void SetUp() override {
        ui.windows().setMainSize({1366, 768});
        shell.status.setPanel(1, QStringLiteral("amina.b"));
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
        QTimer::singleShot(0, [act] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            act(*dialog);
        });
    }

    DesktopUi ui;
    ShellForm shell{ui};
    PlainForm first{ui, QStringLiteral("frmFirst")}, second{ui, QStringLiteral("frmSecond")};
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
    second.setCaption(QStringLiteral("Another"));
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
    for (const QChar letter : ui.windows().shell()->menuLetters())
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
    ui.box(QStringLiteral("<b>5 < 6</b>"), Icon::Critical);
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
    EXPECT_FALSE(ui.question(QStringLiteral("Exit?"), QStringLiteral("Exit Application")));
    onBox<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
    EXPECT_TRUE(ui.question(QStringLiteral("Exit?")));
    onBox<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.textValue(), "5");
        dialog.setTextValue(QStringLiteral("7"));
        dialog.accept();
    });
    EXPECT_EQ(ui.inputBox(QStringLiteral("How many?"), {}, QStringLiteral("5")), QStringLiteral("7"));
    onBox<QInputDialog>([](QInputDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(ui.inputBox(QStringLiteral("How many?")), std::nullopt);
}

TEST_F(WindowsTest, ABusyPointerGivesWayToABox) {
    ui.setBusy(true);
    ui.setBusy(true);
    EXPECT_TRUE(QApplication::overrideCursor());
    onBox<QMessageBox>([](QMessageBox& box) {
        EXPECT_FALSE(QApplication::overrideCursor());
        box.accept();
    });
    ui.box(QStringLiteral("Saved"));
    EXPECT_TRUE(QApplication::overrideCursor());
    ui.setBusy(false);
    EXPECT_FALSE(QApplication::overrideCursor());
}

class ScriptTest : public WorkstationTest {
protected:
    QString play(const QString& script, const PlayOptions& options, int* code) {
        QBuffer input, output;
        input.setData(script.toUtf8());
        input.open(QIODevice::ReadOnly);
        output.open(QIODevice::WriteOnly);
        *code = runPlay(home.folder(), input, output, options);
        return QString::fromUtf8(output.data());
    }
};
INSTANTIATE_TEST_SUITE_P(OnSqlite, ScriptTest, ::testing::Values(Engine::Sqlite));

TEST_P(ScriptTest, SaysTheSameOnRealWindowsAsOnTheModel) {
    const QString script = QStringLiteral(R"(
clock server "2026-03-14 09:30:00"
start
state MdiTolmek.mnuAccts
menu mnuOffAttd
set frmRecordsOffline.txtName "A"
click frmRecordsOffline.cmdOK
items frmRecordsOffline.cboVehNo
set frmRecordsOffline.dtNext "2026-03-20"
print frmRecordsOffline.dtNext
set frmRecordsOffline.dtNext ""
print frmRecordsOffline.dtNext
timer MdiTolmek.Timer2
print MdiTolmek.lblDate
picture main.png
close frmRecordsOffline
answer yes
close MdiTolmek
)");
    // The session that the fixture started holds the home: end it first.
    ui.answer(true);
    ws.close(QStringLiteral("MdiTolmek"));
    ui.takeQuestions();
    int modelCode = -1, windowCode = -1;
    const QString onModel = play(script, {}, &modelCode);
    QTemporaryDir out;
    DesktopUi desktop;
    desktop.windows().setMainSize({1366, 768});
    desktop.windows().setScripted(true);
    DesktopShower shower(desktop);
    WindowDriver driver(desktop.windows(), out.path());
    const QString onWindows = play(script, {std::nullopt, &driver, &shower}, &windowCode);
    EXPECT_EQ(onWindows, onModel);
    EXPECT_EQ(modelCode, 0) << qPrintable(onModel);
    EXPECT_EQ(windowCode, 0);
    EXPECT_EQ(QImage(out.filePath(QStringLiteral("main.png"))).size(), QSize(1366, 768));
}

} // namespace
} // namespace orvane
