#pragma once

#include "demo/DemoParts.h"

#include <QHash>

namespace orvane {

/// What an item costs a patient, as the item screen would find it.
struct BulkPrice {
    double price = 0; ///< naira a unit
    bool capitated = false;
    QString revType;
};

/// All price lists of the hospital, read once.
class PriceBook {
public:
    explicit PriceBook(Connection& billing);
    /// From the client's list where that has a price, else from the private one.
    BulkPrice price(const DemoItem& item, const DemoPatient& patient) const;
    /// The ledger account of a revenue type.
    QString account(const QString& revType) const { return m_accounts.value(revType); }

private:
    struct Entry {
        double price = 0;
        QString capitated, revType;
    };
    using List = QHash<std::pair<QString, QString>, Entry>; ///< by item and the list's key

    QHash<QString, List> m_lists; ///< by kind of item
    QHash<QString, QString> m_accounts;
};

} // namespace orvane
