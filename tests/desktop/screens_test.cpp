// Every screen of the program on a small monitor: whole, reachable by keys, nothing forgotten.
#include "desktop/FormWindow.h"
#include "desktop/Keyed.h"
#include "desktop/ShellWindow.h"
#include "support/Workstation.h"

#include <QApplication>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

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
    void expectOwnKeys(FormWindow& window);

    QString reserved; ///< letters of the main window
};
INSTANTIATE_TEST_SUITE_P(OnSqlite, ScreensTest, ::testing::Values(Engine::Sqlite));

/// With each page of its tab strip in sight; once, where it has none.
void forEachPage(FormWindow& window, const std::function<void()>& look) {
    auto* tabs = window.findChild<QTabWidget*>();
    for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
        if (tabs)
            tabs->setCurrentIndex(page);
        QApplication::processEvents();
        look();
    }
}

bool isOnlyRead(const Binding& binding) {
    const auto* box = dynamic_cast<const TextBox*>(binding.control());
    return box && box->isLocked();
}

bool isSeen(ControlKind kind) {
    // A label's words may stand in the layout itself, as the name of a field.
    return kind != ControlKind::Timer && kind != ControlKind::Menu && kind != ControlKind::Frame &&
           kind != ControlKind::Label;
}

TEST_P(ScreensTest, NoScreenIsCutOffOrLeavesAControlOut) {
    forEachScreen([](Form& form, FormWindow& window) {
        forEachPage(
            window,
            [&] {
                for (const QScrollArea* scroll : window.findChildren<QScrollArea*>()) {
                    EXPECT_EQ(scroll->isVisible() * scroll->verticalScrollBar()->maximum() * int(!form.page()), 0)
                        << "high";
                    EXPECT_EQ(scroll->isVisible() * scroll->horizontalScrollBar()->maximum(), 0) << "too wide";
                }
            });
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

/// Alt and a letter, or, of the tools of a report, the key that the hint names at its end.
QKeySequence keyOf(const QAbstractButton& button) {
    static const QRegularExpression named(R"(\((\S+)\)$)");
    return button.shortcut().isEmpty() ? QKeySequence(named.match(button.toolTip()).captured(1)) : button.shortcut();
}

/// What can be pressed and the fields that can be used have a key each, and none of the main window's.
void ScreensTest::expectOwnKeys(FormWindow& window) {
    QMap<QString, QString> owners;
    const auto take = [&](const QString& words, const QKeySequence& key) {
        const QString name = key.toString();
        EXPECT_FALSE(name.isEmpty()) << qPrintable(words);
        EXPECT_FALSE(name.size() == 5 && reserved.contains(name.back())) << qPrintable(words);
        EXPECT_FALSE(owners.contains(name)) << qPrintable(words) << " and " << qPrintable(owners.value(name));
        owners.insert(name, words);
    };
    for (const QTabWidget* tabs : window.findChildren<QTabWidget*>())
        for (int tab = 0; tab < tabs->count(); ++tab)
            take(tabs->tabText(tab), QKeySequence::mnemonic(tabs->tabText(tab)));
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        if (button->isVisible() && !button->text().isEmpty())
            take(button->text(), keyOf(*button));
    for (const Binding* binding : window.findChildren<Binding*>()) {
        const ControlKind kind = binding->control()->kind();
        const bool field =
            kind == ControlKind::TextBox || kind == ControlKind::ComboBox || kind == ControlKind::DatePicker;
        if (!field || !binding->widget()->isVisible() || isOnlyRead(*binding))
            continue;
        const auto labels = window.findChildren<KeyLabel*>();
        const auto own = std::find_if(labels.cbegin(), labels.cend(),
                                      [&](const KeyLabel* label) { return label->buddy() == binding->editor(); });
        const QString name = binding->control()->name();
        ASSERT_NE(own, labels.cend()) << qPrintable(name) << " has no name beside it";
        const QKeySequence key = (*own)->key().sequence();
        take(name, key);
        if (key.isEmpty() || !binding->editor()->isEnabled())
            continue;
        QTest::keyClick(&window, key[0].key(), key[0].keyboardModifiers());
        EXPECT_TRUE(binding->editor()->hasFocus() || binding->widget()->hasFocus()) << qPrintable(name);
    }
}

TEST_P(ScreensTest, EveryFieldIsReachedByKeysAndEveryButtonHasItsOwn) {
    forEachScreen([this](Form&, FormWindow& window) {
        window.activateWindow();
        forEachPage(
            window, [&] { expectOwnKeys(window); });
        for (const Binding* binding : window.findChildren<Binding*>()) {
            const Control* control = binding->control();
            const bool field = control->kind() == ControlKind::TextBox || control->kind() == ControlKind::ComboBox ||
                               control->kind() == ControlKind::DatePicker || control->kind() == ControlKind::Button;
            EXPECT_TRUE(!field || (binding->editor()->focusPolicy() & Qt::TabFocus) || isOnlyRead(*binding))
                << qPrintable(control->name());
        }
    });
}

} // namespace
} // namespace orvane
