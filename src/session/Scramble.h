#pragma once

#include "data/words/Scramble.h"
#include "session/Program.h"

namespace orvane {

/// The text as passwords are stored: each printable character but the blank by another one. Any other character is
/// dropped and says so in a box.
QString scramblePassword(Program& program, const QString& text);

} // namespace orvane
