#include "receipts/ListEntry.h"

namespace orvane {

ListEntry readListEntry(const QString& entry) {
    const qsizetype open = entry.lastIndexOf('[');
    const qsizetype close = entry.indexOf(']', open);
    if (open < 0 || close < 0)
        return {entry.trimmed(), {}, {}};
    const qsizetype hash = entry.indexOf('#', close);
    return {entry.left(open).trimmed(), entry.mid(open + 1, close - open - 1),
            hash < 0 ? QString() : entry.mid(hash + 1)};
}

} // namespace orvane
