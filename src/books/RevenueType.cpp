#include "books/RevenueType.h"

namespace orvane {

namespace {

bool isTaken(Connection& connection, const QString& name) {
    return !Recordset(connection, Sql("select * from hRevenueType where RevType='") << name << "'").eof();
}

void compose(Recordset& row, const RevenueType& type) {
    row.set("revType", type.name);
    row.set("CatRemarks", type.category);
    row.set("Active", type.active);
    row.set("AccountNo", nullIfEmpty(type.accountNo));
    row.update();
}

void carryName(Connection& connection, const QString& from, const QString& to) {
    for (const SqlLiteral& update :
         {SqlLiteral("update billAccum set revType='"), SqlLiteral("update billingDetails set revType='"),
          SqlLiteral("update drugMaster set revType='"), SqlLiteral("update Labservices set revType='"),
          SqlLiteral("update hservices set revType='")})
        connection.execute(Sql(update) << to << "' where revType='" << from << "'");
}

} // namespace

Given<Saved> addRevenueType(Books& books, const RevenueType& type) {
    if (isTaken(books.connection, type.name))
        return Refusal::RevenueTypeTaken;
    Recordset row(books.connection, Sql("select * from hRevenueType where 1=2"));
    row.addNew();
    compose(row, type);
    books.record(type.name, 0);
    return Saved{};
}

Given<Saved> changeRevenueType(Books& books, const QString& name, const RevenueType& type) {
    Recordset row(books.connection, Sql("select * from hRevenueType where RevType='") << name << "'");
    if (row.eof())
        return Refusal::RevenueTypeGone;
    const bool sameWord = type.name.compare(name, Qt::CaseInsensitive) == 0;
    if (!sameWord && isTaken(books.connection, type.name))
        return Refusal::RevenueTypeTaken;
    compose(row, type);
    if (type.name != name)
        carryName(books.connection, name, type.name);
    books.record(type.name, 0);
    return Saved{};
}

bool isCatchAllRevenue(const QString& name) {
    return name.compare(QLatin1StringView("OTHERS"), Qt::CaseInsensitive) == 0;
}

Given<Saved> deleteRevenueType(Books& books, const QString& name) {
    if (isCatchAllRevenue(name))
        return Refusal::CatchAllRevenue;
    books.connection.execute(Sql("delete from hrevenueType where revtype = '") << name << "'");
    books.record(name, 0);
    return Saved{};
}

void correctRevenue(Books& books, const RevenueCorrection& correction) {
    const auto ofLine = [&](SqlLiteral update) {
        books.connection.execute(Sql(update) << " revType='" << correction.type << "', treatedBy='"
                                             << correction.consultant << "' where SNO=" << correction.sno);
    };
    const auto ofReceipts = [&](SqlLiteral update) {
        books.connection.execute(Sql(update) << " revType='" << correction.type << "' where billNo='"
                                             << correction.billNo << "' and billItem ='" << correction.item << "'");
    };
    ofLine("update billingDetails set ");
    ofLine("update billAccum set ");
    ofReceipts("update PaymentDetails set ");
    ofReceipts("update PaymentTypeDetails set ");
    books.record(correction.billNo, 0);
}

} // namespace orvane
