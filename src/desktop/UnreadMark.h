#pragma once

class QLineEdit;
class QString;

namespace orvane {

/// Marks a field whose text cannot be read, by its colour and by a broken border, and says why in its hint and to a
/// screen reader; an empty `why` takes the mark away.
void markUnread(QLineEdit& line, const QString& why);

} // namespace orvane
