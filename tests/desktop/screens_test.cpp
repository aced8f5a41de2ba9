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
            FormWindow window(form, ViewSetting{"FACSRW", true});
            window.resize(window.sizeFor(smallRoom));
            window.show();
            QApplication::processEvents();
            look(form, window);
            window.release();
            form.abandon();
        }
        EXPECT_GT(shown, 20);
    }
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

void expectOwnLetters(FormWindow& window) {
    QMap<QChar, QString> owners;
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        const QChar letter = Mnemonics::asked(button->text());
        if (!button->isVisible() || letter.isNull())
            continue;
        EXPECT_FALSE(owners.contains(letter))
            << qPrintable(button->text()) << " and " << qPrintable(owners.value(letter));
        owners.insert(letter, button->text());
    }
}

TEST_P(ScreensTest, EveryFieldIsReachedByKeysAndEveryButtonHasItsOwnLetter) {
    forEachScreen([](Form&, FormWindow& window) {
        auto* tabs = window.findChild<QTabWidget*>();
        for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
            if (tabs)
                tabs->setCurrentIndex(page);
            expectOwnLetters(window);
        }
        for (const QLabel* label : window.findChildren<QLabel*>())
            EXPECT_FALSE(label->buddy() && label->isVisible() && Mnemonics::asked(label->text()).isNull())
                << qPrintable(label->text());
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

} // namespace
} // namespace orvane
