#include "support/SourceTree.h"

namespace orvane {

QString sourceFile(const QString& path) {
    return QStringLiteral(ORVANE_SOURCE_DIR) + '/' + path;
}

} // namespace orvane
