#pragma once

#include "play/Driver.h"

#include <QStringList>

namespace orvane {

// What the commands of a script do to a control: reads the script's value by the control's kind, refuses what its user
// could not do, and lets the driver act. All raise PlayError with the reason.

/// Refuses a control that is hidden or disabled, or whose form waits for a handler or for `modal` (null: no form is
/// modal).
void requireUsable(const Control& control, const Form* modal);

void setValue(Driver& driver, Control& control, const QString& value);
/// The entry of this index (a number that is not quoted), or the first one equal to the text, or the first one that
/// contains it.
void pickEntry(Driver& driver, Control& control, const QString& entry, bool isIndex);
void tickEntries(Driver& driver, Control& control, const QStringList& entries, bool ticked);
/// The row of this number from 0, or the first one with a cell equal to the text as it is shown; hidden columns are
/// looked at last.
void makeRowCurrent(Driver& driver, Control& control, const QString& row, bool isIndex);
void clickControl(Driver& driver, Control& control);
void typeKeys(Driver& driver, Control& control, const QString& keys);

} // namespace orvane
