// The keyboard alone, on the real windows of the program: how many keys a receipt costs, and what stays in sight.
#include "desktop/DesktopUi.h"
#include "desktop/Keyed.h"
#include "desktop/ShellWindow.h"
#include "desktop/ViewTest.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Workstation.h"

#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QTabWidget>
#include <QTimer>

namespace orvane {
namespace {

/// A user with a keyboard only. Each press counts as one, a chord too; what he must type whatever the program does, the
/// letters of a name and the digits of an amount, does not count.
class KeysTest : public ::testing::Test {
protected:
    KeysTest() {
        Workstation station(home.folder());
        station.layHospital();
        Connection billing = station.billing();
        for (const QString& number : {QStringLiteral("1"), QStringLiteral("2")}) {
            const QString pno = "P/000" + number, consultID = "001OFL000000" + number;
            const QDate today = QDate::currentDate();
            makePatient(billing, {.pno = pno, .surname = number == "1" ? "ADEYEMI" : "OGINNI"});
            makeVisit(billing, {.consultID = consultID, .pno = pno, .date = today});
            makeConsultation(billing, {.consultID = consultID, .pno = pno, .date = today});
            makeItem(billing, {.consultID = consultID, .pno = pno, .date = today, .price = 2000});
        }
    }
    void start(QSize size = {1366, 768}) {
        QFile settings(home.folder() + "/orvane.ini");
        ASSERT_TRUE(settings.open(QIODevice::Append) && settings.write("\n[menu]\nmnuRct = 1\n") > 0);
        settings.close();
        ui.windows().setMainSize(size);
        registerScreens(program);
        ASSERT_TRUE(Main(program, "amina.b"));
        settleEvents();
    }
    ~KeysTest() override {
        if (Form* shell = program.loadedForm("MdiTolmek"))
            shell->abandon();
    }

    Form& form(const char* name) { return program.form(name); }
    QWidget* widget(const char* formName, const char* control) {
        return ui.windows().viewOf(form(formName))->widgetOf(*form(formName).find(control));
    }
    QString front() { return ui.windows().shell()->area()->currentSubWindow()->windowTitle(); }
    /// Where a key goes: to what has the focus, in a box or menu that is open before all.
    static QWidget* target() {
        for (QWidget* top : {QApplication::activePopupWidget(), QApplication::activeModalWidget()})
            if (top)
                return top->focusWidget() ? top->focusWidget() : top;
        return QApplication::focusWidget() ? QApplication::focusWidget() : QApplication::activeWindow();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        ++keys;
        QTest::keyClick(target(), Qt::Key(key), modifiers);
        QTest::qWait(150); // a button shows that it is pressed, and then acts
    }
    void type(const QString& text) {
        QTest::keyClicks(target(), text);
        settleEvents();
    }
    void press(const QKeySequence& key) { press(key[0].key(), key[0].keyboardModifiers()); }
    /// Presses the key that the words of a button or field show.
    void press(const char* formName, const char* control) { press(keyOf(formName, control)); }
    QKeySequence keyOf(const char* formName, const char* control) {
        const Binding* binding = ui.windows().viewOf(form(formName))->bindingOf(*form(formName).find(control));
        if (const auto* button = qobject_cast<QAbstractButton*>(binding->widget()))
            return button->shortcut();
        for (const KeyLabel* label : ui.windows().viewOf(form(formName))->findChildren<KeyLabel*>())
            if (label->buddy() == binding->editor())
                return QKeySequence(QString(label->key().shifted ? "Alt+Shift+" : "Alt+") + label->key().letter);
        return {};
    }
    /// Presses a key that brings up boxes, and Enter in each.
    void pressAndAgree(int key, Qt::KeyboardModifiers modifiers) {
        QTimer agree;
        QObject::connect(&agree, &QTimer::timeout, &agree, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                boxes << box->text();
                ++keys;
                QTest::keyClick(box, Qt::Key_Return);
            }
        });
        agree.start(20);
        press(key, modifiers);
        ui.windows().shell()->activateWindow(); // nobody does it on a screen without a window manager
        settleEvents();
    }
    void openByMenu(const char* menu, const char* entry) {
        const auto action = [this](const char* name) {
            const FormView* strip = ui.windows().shell()->view();
            return static_cast<MenuBinding*>(strip->bindingOf(*form("MdiTolmek").find(name)))->action();
        };
        press(QKeySequence::mnemonic(action(menu)->text()));
        press(QKeySequence::mnemonic(action(entry)->text())[0].key());
    }
    int counted() { return std::exchange(keys, 0); }

    TestHome home;
    DesktopUi ui;
    Program program{home.folder(), ui};
    int keys = 0;
    QStringList boxes;
};

TEST_F(KeysTest, AReceiptFromTheWorklistAndOneAgainstABillTakeFewKeys) {
    start();
    // A full receipt: from the worklist to the receipt on the screen.
    press("MdiTolmek", "cmdView");
    EXPECT_TRUE(widget("frmFlash", "dGexp")->hasFocus());
    press(Qt::Key_Return);
    ASSERT_EQ(form("frmBillingVerify").find("lblBill")->valueText(), "001OFL0000001");
    const int before = keys;
    const auto* tabs = static_cast<QTabWidget*>(widget("frmBillingVerify", "SSTab1"));
    press(QKeySequence::mnemonic(tabs->tabText(1)));
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_LE(keys - before, 3);
    press("frmBillingVerify", "chkRct");
    press("frmBillingVerify", "cboPayFor");
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press("frmBillingVerify", "chkExact");
    pressAndAgree(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(front(), "Cash Receipt");
    RecordProperty("worklist", keys);
    EXPECT_LE(counted(), 20);
    EXPECT_EQ(boxes, QStringList{"Are you sure to save?"});
    press(Qt::Key_Escape);
    EXPECT_TRUE(widget("frmBillingVerify", "cboVehNo")->hasFocus()) << "where the next bill begins";

    // Another patient's bill, saved without a receipt.
    press("MdiTolmek", "cmdView");
    press(Qt::Key_Return);
    pressAndAgree(Qt::Key_S, Qt::ControlModifier);
    press(Qt::Key_Escape);
    counted();
    openByMenu("mnuActivities", "mnuRct");
    for (const char* time : {"first", "second"}) {
        press(Qt::Key_Return);
        type("OGINNI");
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        press("frmReceiptTemp", "txtHt");
        type("500");
        if (form("frmReceiptTemp").find("cboPay")->valueText().isEmpty()) {
            press("frmReceiptTemp", "cboPay");
            press(Qt::Key_Down);
        }
        boxes.clear();
        pressAndAgree(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(boxes, (QStringList{"Are you sure to save?", "Record Succesfully saved"})) << time;
        EXPECT_EQ(front(), "Cash Receipt") << time;
        RecordProperty(time, keys);
        EXPECT_LE(counted(), 12) << time;
        press(Qt::Key_Escape);
        counted();
        EXPECT_TRUE(widget("frmReceiptTemp", "cmdAdd")->hasFocus()) << "where the next receipt begins";
    }
}

/// A small screen, and large letters on a usual one.
class RoomTest : public KeysTest, public ::testing::WithParamInterface<std::pair<QSize, double>> {
protected:
    RoomTest() { large.setPointSizeF(usual.pointSizeF() * GetParam().second), QApplication::setFont(large); }
    ~RoomTest() override { QApplication::setFont(usual); }

    const QFont usual = QApplication::font();
    QFont large = usual;
};
INSTANTIATE_TEST_SUITE_P(Sizes, RoomTest,
                         ::testing::Values(std::pair(QSize(1024, 600), 1.0), std::pair(QSize(1366, 768), 1.3)));

TEST_P(RoomTest, TheCollationScreenKeepsWhatIsPayableAndItsSaveInSight) {
    start(GetParam().first);
    program.session.gSearchBillNo = "001OFL0000001";
    program.open("frmBillingVerify");
    settleEvents();
    EXPECT_EQ(ui.windows().shell()->size(), GetParam().first);
    for (const char* name : {"lblAmtDue", "OKButton", "cmdCancel", "txtSearch", "cboVehNo"}) {
        const QWidget* shown = widget("frmBillingVerify", name);
        EXPECT_EQ(shown->visibleRegion().boundingRect(), shown->rect()) << name;
    }
}

} // namespace
} // namespace orvane
