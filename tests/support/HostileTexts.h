#pragma once

#include <QList>
#include <QString>

namespace orvane {

/// Texts that break statements, formats, searches, sheets and screens which mix data with words of their own.
const QList<QString>& hostileTexts();

/// Whether a database column can hold it: neither U+0000 nor half of a character.
bool isStorable(const QString& text);

} // namespace orvane
