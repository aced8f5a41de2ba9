#include "books/Tariff.h"

#include "data/words/Money.h"

namespace orvane {

const TariffPolicy BillPatTariff{"INVESTIGATION", {"NHIS", "HMO", "PHIS"}};
const TariffPolicy BillPatAdjustTariff{"LAB", {"NHIS", "HMO"}};

struct TariffKind {
    SqlLiteral byItem;    ///< the template view, up to the item
    SqlLiteral byKey;     ///< on to the client's key
    SqlLiteral byHostKey; ///< on to the private tariff's key
    SqlLiteral master;
    const char* masterCategory;
    bool isCounted; ///< has a stock, and its quantity must be counted by the user
    SqlLiteral templateRow;
    SqlLiteral templateKey;
    SqlLiteral templateEnd;
    SqlLiteral update;
};

namespace {

constexpr const char* NoTemplate =
    "Price Template for this HMO/Company Yet to be Created! Proceed to use Hospital Private tariff";
constexpr const char* NoPrice = "No price for this HMO/Company! Proceed to use Hospital Private tariff";

const TariffKind Drug{"select distinct  * from vwDrugNHIS where Drug ='",
                      "'   and  coyID='",
                      "' and  coyID='",
                      "select distinct  * from drugs where drgname ='",
                      "drgCatName",
                      true,
                      "select top 1 SNo   from DrugNHIS where drgName ='",
                      "'   and  company='",
                      "' order by SNo",
                      "update DrugNHIS set Capitated='"};

const TariffKind Lab{"select distinct  * from vwLabServiceNHIS where LabItem ='",
                     "'and coyID='",
                     "'   and coyID='",
                     "select distinct  * from labservices where drgname ='",
                     "drgCatName",
                     false,
                     "select distinct  * from LabServiceNHIS where drgName ='",
                     "'and company='",
                     "'",
                     "update labserviceNHIS set Capitated='"};

const TariffKind Service{"select distinct  * from vwServiceNHIS where service ='",
                         "'   and coyID='",
                         "'   and coyID='",
                         "select distinct  * from hServices where service ='",
                         "Category",
                         false,
                         "select distinct  * from hServiceNHIS where service ='",
                         "'   and company='",
                         "'",
                         "update hServiceNHIS set Capitated='"};

/// One lookup of an item with what all its steps need.
class Lookup {
public:
    Lookup(Connection& connection, const TariffPolicy& policy, const TariffKind& kind, const QString& clientCategory,
           const QString& item)
        : m_connection(connection), m_policy(policy), m_kind(kind), m_clientCategory(clientCategory), m_item(item) {}

    TariffAnswer answer;

    void takeClientTariff(const QString& key, const QString& privateTariff) {
        const Recordset row(m_connection, Sql(m_kind.byItem) << m_item << m_kind.byKey << key << "'");
        if (row.eof()) {
            answer.fallback = NoTemplate;
            takeHostTariff(privateTariff);
            return;
        }
        answer.revType = row.text("revType");
        takeFacts(row);
        if (row.number("Price") <= 0) {
            answer.fallback = NoPrice;
            takeHostTariff(privateTariff);
        } else {
            answer.price = formatTwoDecimals(row.number("Price"));
        }
    }

private:
    void takeHostTariff(const QString& privateTariff) {
        const Recordset row(m_connection, Sql(m_kind.byItem) << m_item << m_kind.byHostKey << privateTariff << "'");
        if (row.eof()) {
            takeMaster();
            return;
        }
        takeFacts(row);
        answer.price = formatTwoDecimals(row.number("Price"));
    }

    /// The last resort knows no price, so the line cannot be added.
    void takeMaster() {
        answer.price = "0";
        const Recordset row(m_connection, Sql(m_kind.master) << m_item << "'");
        if (row.eof())
            return;
        answer.capitated = capitatedOf(row);
        answer.category = row.text(m_kind.masterCategory);
        answer.quantity = "1";
    }

    void takeFacts(const Recordset& row) {
        answer.capitated = capitatedOf(row);
        answer.category = row.text("Category");
        answer.stock = m_kind.isCounted ? QString::number(row.number("UnitsInStock"), 'g', 15) : "***";
        answer.quantity = m_kind.isCounted ? "0" : "1";
    }

    QString capitatedOf(const Recordset& row) const {
        return m_policy.capitatedClients.contains(m_clientCategory) ? row.text("Capitated") : "NO";
    }

    Connection& m_connection;
    const TariffPolicy& m_policy;
    const TariffKind& m_kind;
    QString m_clientCategory;
    QString m_item;
};

} // namespace

const TariffKind* tariffKind(const QString& kind, const TariffPolicy& policy) {
    if (kind == "DRUG")
        return &Drug;
    if (kind == "LAB" || kind == policy.laboratory)
        return &Lab;
    return kind == "SERVICE" ? &Service : nullptr;
}

QString tariffKey(const TariffVisit& visit) {
    return visit.clientCategory == "NHIS" ? "NHIS" : visit.retainID;
}

TariffAnswer resolveTariff(Connection& connection, const TariffPolicy& policy, const TariffKind& kind,
                           const TariffVisit& visit, const QString& item, const QString& privateTariff) {
    Lookup lookup(connection, policy, kind, visit.clientCategory, item);
    lookup.takeClientTariff(tariffKey(visit), privateTariff);
    return lookup.answer;
}

QString verifiedCapitation(const TariffPolicy& policy, const TariffVisit& visit, const QString& capitated) {
    if (!policy.capitatedClients.contains(visit.clientCategory) || visit.feeForService == "YES" || capitated.isEmpty())
        return "NO";
    return capitated;
}

void rememberTemplateFlags(Books& books, const TariffKind& kind, const TariffVisit& visit, const QString& item,
                           const QString& capitated, const QString& revType) {
    qlonglong lowest = 0;
    Recordset row(books.connection, Sql(kind.templateRow)
                                        << item << kind.templateKey << tariffKey(visit) << kind.templateEnd);
    for (; !row.eof(); row.moveNext())
        if (const qlonglong number = row.integer("SNo"); lowest == 0 || number < lowest)
            lowest = number;
    books.connection.execute(Sql(kind.update) << capitated << "',  RevType='" << revType << "' where SNo=" << lowest);
}

} // namespace orvane
