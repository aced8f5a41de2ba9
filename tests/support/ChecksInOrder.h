#pragma once

#include "support/Workstation.h"

#include <gtest/gtest.h>

namespace orvane {

/// A value that is entered, and what the press of the button is answered with then.
struct CheckStep {
    const char *control, *value;
    const char* text = nullptr;  ///< of the box; null: the button is not pressed yet
    const char* focus = nullptr; ///< where the focus is then; null: not asked
};

/// Enters each value in turn and presses the button of the form: exactly the check of each step fails.
inline void expectChecksInOrder(Workstation& ws, const QString& form, const QString& button,
                                std::initializer_list<CheckStep> steps) {
    for (const CheckStep& step : steps) {
        SCOPED_TRACE(std::string(step.control) + " = <" + step.value + ">");
        ws.set(form + '.' + step.control, step.value);
        if (!step.text)
            continue;
        ws.click(form + '.' + button);
        EXPECT_BOXES(ws.ui, {step.text});
        if (step.focus)
            EXPECT_EQ(ws.form(form).focused()->name(), step.focus);
    }
}

} // namespace orvane
