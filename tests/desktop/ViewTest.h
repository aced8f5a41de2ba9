#pragma once

#include "desktop/FormWindow.h"
#include "support/SampleForm.h"
#include "support/TestUi.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace orvane {

inline void settleEvents() {
    for (int round = 0; round < 3; ++round)
        QApplication::processEvents();
}

/// The sample form in a window, worked on with mouse and keys.
class ViewTest : public ::testing::Test {
protected:
    void SetUp() override {
        form.tmrTick.setEnabled(false);
        show();
    }

    void show() {
        window.reset();
        window = std::make_unique<FormWindow>(form, ViewSetting{});
        window->resize(1100, 640);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        window->activateWindow();
        settleEvents();
        form.takeEvents();
    }
    QWidget* widget(const Control& control) { return window->view()->widgetOf(control); }
    template <typename T>
    T* widget(const Control& control) {
        return qobject_cast<T*>(widget(control));
    }
    /// Where typed keys go.
    QWidget* editor(const Control& control) { return window->view()->bindingOf(control)->editor(); }
    QLineEdit* line(const Control& control) { return qobject_cast<QLineEdit*>(editor(control)); }
    /// What the field shows, which the control holds as well.
    QString text(const Control& control) {
        settleEvents();
        EXPECT_EQ(line(control)->text(), control.valueText());
        return line(control)->text();
    }
    void key(const Control& control, Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(editor(control), pressed, modifiers);
        settleEvents();
    }
    void focus(const Control& control) { editor(control)->setFocus(); }
    void type(const Control& control, const QString& text) {
        focus(control);
        key(control, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor(control), text);
        settleEvents();
    }
    void press(const Control& control) {
        QTest::mouseClick(widget(control), Qt::LeftButton);
        settleEvents();
    }
    /// What the form has noted since the last look, but for fields that were left on the way.
    QStringList events() {
        QStringList seen = allEvents();
        seen.removeIf([](const QString& event) { return event.endsWith(QLatin1String(" Leave")); });
        return seen;
    }
    QStringList allEvents() {
        settleEvents();
        return form.takeEvents();
    }

    TestUi ui;
    SampleForm form{ui};
    std::unique_ptr<FormWindow> window;
};

} // namespace orvane
