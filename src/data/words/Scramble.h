#pragma once

#include <QChar>
#include <optional>

namespace orvane {

/// The stored form of one character of a password; none for a character that passwords cannot hold.
std::optional<QChar> scrambledCharacter(QChar character);

} // namespace orvane
