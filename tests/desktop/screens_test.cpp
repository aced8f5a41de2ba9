// Every screen of the program on a small monitor: whole, reachable by keys, nothing forgotten.
#include "desktop/FormWindow.h"
#include "desktop/ShellWindow.h"
#include "support/Workstation.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

namespace orvane {
namespace {

constexpr QSize smallRoom(1366 - 8, 768 - 110); ///< what the main window of a small monitor leaves to a form

class ScreensTest : public WorkstationTest {
protected:
    /// Loads each screen as its menu does and hands it to `look`; one that refuses to open without more in hand is left
    /// out.
    void forEachScreen(const std::function<void(Form&, FormWindow&)>& look) {
        ShellWindow shell(ws.program.form("MdiTolmek"), true);
        reserved = shell.reservedLetters();
        int shown = 0;
        for (const QString& name : ws.program.formNames()) {
            Form& form = ws.program.form(name);
            if (ShellWindow::isShell(form))
                continue;
            form.load();
            ui.forgetBoxes();
            if (form.isClosed())
                continue;
            ++shown;
            const ::testing::ScopedTrace trace(__FILE__, __LINE__, form.name().toStdString());
            FormWindow window(form, ViewSetting{reserved, true});
            window.resize(window.sizeFor(smallRoom));
            window.show();
            QApplication::processEvents();
            look(form, window);
            window.release();
            form.abandon();
        }
        EXPECT_GT(shown, 20);
    }
    void expectOwnLetters(FormWindow& window);

    QString reserved; ///< letters of the main window
};
INSTANTIATE_TEST_SUITE_P(OnSqlite, ScreensTest, ::testing::Values(Engine::Sqlite));

bool isSeen(ControlKind kind) {
    // A label's words may stand in the layout itself, as the name of a field.
    return kind != ControlKind::Timer && kind != ControlKind::Menu && kind != ControlKind::Frame &&
           kind != ControlKind::Label;
}

TEST_P(ScreensTest, NoScreenIsCutOffOrLeavesAControlOut) {
    forEachScreen([](Form& form, FormWindow& window) {
        const auto* scroll = window.findChild<QScrollArea*>();
        EXPECT_EQ(scroll->verticalScrollBar()->maximum() * int(!form.page()), 0) << "too high";
        EXPECT_EQ(scroll->horizontalScrollBar()->maximum(), 0) << "too wide";
        for (const QPushButton* button : window.findChildren<QPushButton*>())
            EXPECT_TRUE(!button->isVisible() || button->width() >= button->sizeHint().width())
                << qPrintable(button->objectName());
        if (form.page())
            return;
        for (const Control* control : form.controls())
            EXPECT_TRUE(!isSeen(control->kind()) || !control->isShown() || window.view()->bindingOf(*control))
                << qPrintable(control->name()) << " is shown nowhere";
    });
}

/// Of every page, as a field on none of them is in sight with all.
QString pressedLetters(const FormWindow& window) {
    QString letters;
    for (const QTabWidget* tabs : window.findChildren<QTabWidget*>())
        for (int tab = 0; tab < tabs->count(); ++tab)
            letters += Mnemonics::asked(tabs->tabText(tab));
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        if (!button->shortcut().isEmpty())
            letters += button->shortcut().toString().back();
    return letters;
}

/// What can be pressed has a letter for itself, and none of the main window's.
void ScreensTest::expectOwnLetters(FormWindow& window) {
    QMap<QChar, QString> owners;
    const QString pressed = pressedLetters(window);
    const auto take = [&](const QString& text, QChar letter) {
        EXPECT_FALSE(letter.isNull() || reserved.contains(letter)) << qPrintable(text);
        EXPECT_FALSE(owners.contains(letter)) << qPrintable(text) << " and " << qPrintable(owners.value(letter));
        owners.insert(letter, text);
    };
    for (const QTabWidget* tabs : window.findChildren<QTabWidget*>())
        for (int tab = 0; tab < tabs->count(); ++tab)
            take(tabs->tabText(tab), Mnemonics::asked(tabs->tabText(tab)));
    for (const QAbstractButton* button : window.view()->findChildren<QAbstractButton*>())
        if (button->isVisible() && !button->text().isEmpty())
            take(button->text(), button->shortcut().isEmpty() ? QChar() : button->shortcut().toString().back());
    // The collation screen has more to press than there are letters; its fields are reached by Tab.
    constexpr int letters = 26 + 10;
    if (pressed.size() + reserved.size() >= letters)
        return;
    for (const QLabel* label : window.findChildren<QLabel*>())
        for (const QChar letter : label->text().toUpper())
            EXPECT_FALSE(label->buddy() && label->isVisible() && Mnemonics::asked(label->text()).isNull() &&
                         letter.isLetterOrNumber() && !reserved.contains(letter) && !pressed.contains(letter))
                << qPrintable(label->text()) << " could have " << qPrintable(QString(letter));
}

TEST_P(ScreensTest, EveryFieldIsReachedByKeysAndEveryButtonHasItsOwnLetter) {
    forEachScreen([this](Form&, FormWindow& window) {
        auto* tabs = window.findChild<QTabWidget*>();
        for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
            if (tabs)
                tabs->setCurrentIndex(page);
            expectOwnLetters(window);
        }
        for (const Binding* binding : window.findChildren<Binding*>()) {
            const Control* control = binding->control();
            const bool field = control->kind() == ControlKind::TextBox || control->kind() == ControlKind::ComboBox ||
                               control->kind() == ControlKind::DatePicker || control->kind() == ControlKind::Button;
            const auto* line = qobject_cast<const QLineEdit*>(binding->editor());
            EXPECT_TRUE(!field || (binding->editor()->focusPolicy() & Qt::TabFocus) || (line && line->isReadOnly()))
                << qPrintable(control->name());
        }
    });
}

TEST_P(ScreensTest, TheCollationScreenKeepsItsAmountAndItsSaveInSightWithLargeLetters) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 1.3);
    QApplication::setFont(large);
    Form& form = ws.program.form("frmBillingVerify");
    form.load();
    ui.forgetBoxes();
    FormWindow window(form, ViewSetting{{}, true});
    window.resize(smallRoom);
    window.show();
    QApplication::processEvents();
    for (const char* name : {"lblAmtDue", "OKButton", "cmdCancel", "SSTab1"}) {
        const QWidget* widget = window.view()->widgetOf(*form.find(name));
        EXPECT_GE(widget->visibleRegion().boundingRect().height(), std::min(widget->height(), 60)) << name;
    }
    window.release();
    form.abandon();
    QApplication::setFont(usual);
}

} // namespace
} // namespace orvane
