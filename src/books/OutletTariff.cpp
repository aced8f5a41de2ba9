#include "books/OutletTariff.h"

#include "data/words/Money.h"

namespace orvane {

struct OutletKind {
    SqlLiteral items;
    SqlLiteral byItem; ///< the tariff's view, up to the item
    SqlLiteral byKey;  ///< on to the tariff's key
    SqlLiteral end;
    SqlLiteral category; ///< up to the item
    SqlLiteral row;      ///< the tariff's row, up to its number
    SqlLiteral update;   ///< up to the revenue type
    SqlLiteral ofItem;   ///< behind the price
    SqlLiteral ofRow;    ///< behind the item
};

namespace {

constexpr OutletKind Drug{"select distinct drug as service from vwDrugsForGrid order by drug",
                          "select distinct  * from vwDrugNHIS where Drug ='",
                          "'   and  coyID='",
                          "'   and  LocID='0001'",
                          "select distinct  drgCatName from Drugs where drgName ='",
                          "select Price,RevType from DrugNHIS where SNo=",
                          "update DrugNHIS set RevType='",
                          " where drgname='",
                          "' and SNo="};

constexpr OutletKind Investigation{"select distinct Drgname as service from labservices order by drgname",
                                   "select distinct  * from vwLabServiceNHIS where LabItem ='",
                                   "'and coyID='",
                                   "'",
                                   "select distinct  drgCatName from Labservices where drgName ='",
                                   "select Price,RevType from LabServiceNHIS where SNo=",
                                   "update labserviceNHIS set RevType='",
                                   "  where  drgname='",
                                   "' and SNo="};

constexpr OutletKind Service{"select distinct service from qryhServices order by service",
                             "select distinct  * from vwServiceNHIS where service ='",
                             "'   and coyID='",
                             "'",
                             "select distinct  Category from hservices where Service ='",
                             "select Price,RevType from hServiceNHIS where SNo=",
                             "update hServiceNHIS set RevType='",
                             "  where service='",
                             "' and  SNo="};

QString priceAndType(double price, const QString& revType) {
    return formatTwoDecimals(price) + ' ' + revType;
}

} // namespace

const OutletKind* outletKind(const QString& kind) {
    if (kind == "DRUG")
        return &Drug;
    if (kind == "INVESTIGATION")
        return &Investigation;
    return kind == "SERVICE" ? &Service : nullptr;
}

QStringList outletItems(Connection& connection, const OutletKind& kind) {
    QStringList names;
    for (Recordset row(connection, Sql(kind.items)); !row.eof(); row.moveNext())
        names << row.text("service");
    return names;
}

std::optional<OutletPrice> outletPrice(Connection& connection, const OutletKind& kind, const QString& item,
                                       const QString& privateTariff) {
    const Recordset row(connection, Sql(kind.byItem) << item << kind.byKey << privateTariff << kind.end);
    if (row.eof())
        return std::nullopt;
    const Recordset category(connection, Sql(kind.category) << item << "'");
    return OutletPrice{.sno = row.integer("SNo"),
                       .price = row.number("Price"),
                       .revType = row.text("revType"),
                       .category = category.eof() ? QString() : category.text(0)};
}

Given<Saved> changeOutletPrice(Books& books, const OutletKind& kind, const QString& item, const OutletPrice& now) {
    const Recordset before(books.connection, Sql(kind.row) << now.sno);
    if (before.eof())
        return Saved{};
    books.connection.execute(Sql(kind.update)
                             << now.revType << "',Price=" << now.price << kind.ofItem << item << kind.ofRow << now.sno);
    books.audit({"Outsider: Tariff Adjustment: " + item,
                 {},
                 "from: " + priceAndType(before.number("Price"), before.text("RevType")) + " : => " +
                     priceAndType(now.price, now.revType)});
    books.record(item, now.price);
    return Saved{};
}

} // namespace orvane
