#pragma once

#include <QString>

namespace orvane {

/// What an entry of a receipt screen's list says: "NAME [number]" or "NAME [number]#bill". The name may hold brackets
/// of its own; what an entry lacks is empty.
struct ListEntry {
    QString name, number, bill;
};

ListEntry readListEntry(const QString& entry);

} // namespace orvane
