#pragma once

#include "session/Program.h"

namespace orvane {

/// The stored form of one character of a password; none for a character that passwords cannot hold.
std::optional<QChar> scrambledCharacter(QChar character);

/// The text as passwords are stored: each printable character but the blank by another one. Any other character is
/// dropped and says so in a box.
QString scramblePassword(Program& program, const QString& text);

} // namespace orvane
