#pragma once

#include <QString>

namespace orvane {

/// The text on one line that a screen or terminal shows as it is: line breaks as \n, other control characters but tabs
/// as \u001B.
QString onOneLine(const QString& text);

/// A value as it stands inside a message to the user: on one line, tabs as \t, at most 40 characters of it.
QString shownText(const QString& text);

} // namespace orvane
