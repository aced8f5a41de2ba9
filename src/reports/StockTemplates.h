#pragma once

#include <QStringList>

namespace orvane {

/// Puts the program's own templates into a home folder: those that are missing, and those that an earlier program laid
/// there and nobody has edited since, which the file's mark tells. An edited one is left alone. Gives the names of the
/// files that it wrote. Raises DataError when one cannot be read or written.
QStringList renewStockTemplates(const QString& folder);

/// What a stock template ends with: the mark by which an unedited one is known, made of the text before it.
QByteArray templateMark(const QByteArray& text);

} // namespace orvane
