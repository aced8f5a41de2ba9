#pragma once

#include "books/Books.h"

#include <QStringList>

namespace orvane {

/// What differs between the screens that price an item.
struct TariffPolicy {
    QString laboratory;           ///< the kind under which a laboratory item is offered, beside "LAB"
    QStringList capitatedClients; ///< client categories whose items may be capitated
};

extern const TariffPolicy BillPatTariff;       ///< of frmBillPat
extern const TariffPolicy BillPatAdjustTariff; ///< of frmBillPatAdjust

/// The visit that an item is priced for.
struct TariffVisit {
    QString clientCategory;
    QString retainID;      ///< the client, key of its price template
    QString feeForService; ///< "YES": the patient of a capitated client who pays per item
};

/// What a lookup found, as the entry line shows it.
struct TariffAnswer {
    QString price = "0";
    QString quantity = "0";
    QString stock = "0"; ///< "***" for what is not counted
    QString category;
    QString capitated; ///< empty: nothing was found that says so
    QString revType;   ///< of the client's own template row only
    QString fallback;  ///< why the private tariff was used; empty: it was not
};

/// One kind of item: its template, its master and their statements. Null for a text that is no kind under this policy.
struct TariffKind;
const TariffKind* tariffKind(const QString& kind, const TariffPolicy& policy);

/// The key of the visit's price template: "NHIS" for the category of that name (one national template), else the
/// client.
QString tariffKey(const TariffVisit& visit);

/// Price, capitation, revenue type, stock and category of an item: from the visit's template where it has a price above
/// 0, else from the private template, else from the item's master with a price of 0. Raises DataError.
TariffAnswer resolveTariff(Connection& connection, const TariffPolicy& policy, const TariffKind& kind,
                           const TariffVisit& visit, const QString& item, const QString& privateTariff);

/// "NO" where capitation cannot apply to the visit or `capitated` is empty, else `capitated`.
QString verifiedCapitation(const TariffPolicy& policy, const TariffVisit& visit, const QString& capitated);

/// Writes the flags that the user chose back to the template row, so that the next patient of the client starts from
/// them. An item without a template row changes nothing. Raises DataError.
void rememberTemplateFlags(Books& books, const TariffKind& kind, const TariffVisit& visit, const QString& item,
                           const QString& capitated, const QString& revType);

} // namespace orvane
