#include "data/rows/procedures/Bodies.h"

namespace orvane {

Recordset billedLines(Connection& connection, const QVariantMap& parameters) {
    Sql lines = Sql("select Date,Fullname,Service,Qty,subTotal as Amount,revType as RevenueType,Consultant,Company,"
                    "BillNO,clientCatID as BillingCat,BillType from vwBillingDetailsForRev where date between '")
                << parameters.value("@Date1").toDate() << "' and '" << parameters.value("@Date2").toDate() << "'";
    const QString whose = parameters.value("@ClientCat").toString();
    if (whose != "(ALL)")
        lines << " and (RetainCode='" << whose << "' or clientType='" << whose << "')";
    return Recordset(connection, lines << " order by Date,Fullname");
}

} // namespace orvane
