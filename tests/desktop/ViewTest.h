#pragma once

#include "desktop/FormWindow.h"
#include "desktop/ShownForm.h"
#include "support/TestUi.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

namespace orvane {

/// The sample form in a window, worked on with mouse and keys.
class ViewTest : public ::testing::Test {
protected:
    void SetUp() override { show(); }

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
    static void settleEvents() {
        for (int round = 0; round < 3; ++round)
            QApplication::processEvents();
    }
    QWidget* widget(const Control& control) { return window->view()->widgetOf(control); }
    template <typename T>
    T* widget(const Control& control) {
        return qobject_cast<T*>(widget(control));
    }
    /// Where typed keys go.
    QWidget* editor(const Control& control) { return window->view()->bindingOf(control)->editor(); }
    void type(const Control& control, const QString& text) {
        editor(control)->setFocus();
        QTest::keyClick(editor(control), Qt::Key_A, Qt::ControlModifier);
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
    ShownForm form{ui};
    std::unique_ptr<FormWindow> window;
};

} // namespace orvane
