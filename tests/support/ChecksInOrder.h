#pragma once

#include "support/Workstation.h"

#include <gtest/gtest.h>

namespace orvane {

/// One step on the way to a save that passes: what its user puts right, and what he is told then.
struct CheckStep {
    const char* field; ///< control of the form, set to `value`; null: nothing is put right
    const char* value;
    const char* box = nullptr;   ///< exactly this comes up; null: the button is not pressed yet
    const char* focus = nullptr; ///< control that has the focus then; null: not looked at
};

/// Presses the button after each step. Each box comes although what the later steps put right is still wrong.
inline void expectChecksInOrder(Workstation& ws, const QString& form, const QString& button,
                                std::initializer_list<CheckStep> steps) {
    for (const CheckStep& step : steps) {
        SCOPED_TRACE(std::string(step.field ? step.field : "") + " = <" + (step.value ? step.value : "") + ">");
        if (step.field)
            ws.set(form + '.' + step.field, step.value);
        if (!step.box)
            continue;
        ws.click(form + '.' + button);
        EXPECT_BOXES(ws.ui, {step.box});
        if (const Control* focused = ws.form(form).focused(); step.focus)
            EXPECT_EQ(focused ? focused->name() : QString(), step.focus);
    }
}

} // namespace orvane
