#include "demo/BulkPrices.h"

#include "books/Tariff.h"

namespace orvane {

PriceBook::PriceBook(Connection& billing) {
    const std::pair<const char*, Sql> lists[] = {
        {"DRUG", Sql("select drgName as Item,company,Price,Capitated,RevType from DrugNHIS order by SNo")},
        {"LAB", Sql("select drgName as Item,company,Price,Capitated,RevType from LabServiceNHIS order by SNo")},
        {"SERVICE", Sql("select service as Item,company,Price,Capitated,RevType from hServiceNHIS order by SNo")},
    };
    for (const auto& [kind, statement] : lists) {
        List& list = m_lists[QString::fromLatin1(kind)];
        for (Recordset row(billing, statement); !row.eof(); row.moveNext())
            list.insert({row.text("Item"), row.text("company")},
                        {row.number("Price"), row.text("Capitated"), row.text("RevType")});
    }
    for (Recordset row(billing, Sql("select revType,AccountNo from hRevenueType")); !row.eof(); row.moveNext())
        m_accounts.insert(row.text("revType"), row.text("AccountNo"));
}

BulkPrice PriceBook::price(const DemoItem& item, const DemoPatient& patient) const {
    const List& list = *m_lists.constFind(item.kind);
    const TariffVisit visit{patient.category, patient.clientID, patient.feeForService ? "YES" : "NO"};
    const Entry own = list.value({item.name, tariffKey(visit)});
    const Entry used = own.price > 0 ? own : list.value({item.name, "0001"});
    const QString& revType = own.revType;
    return {used.price, verifiedCapitation(BillPatTariff, visit, used.capitated) == QLatin1String("YES"),
            revType.isEmpty() || revType == QLatin1String("OTHERS") ? item.revType : revType};
}

} // namespace orvane
