#pragma once

#include <QString>

namespace orvane {

/// A file of the source tree by its path from the top.
QString sourceFile(const QString& path);

} // namespace orvane
