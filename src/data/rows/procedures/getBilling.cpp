#include "data/rows/procedures/Bodies.h"

namespace orvane {

Recordset billOnPaper(Connection& connection, const QVariantMap& parameters) {
    return Recordset(
        connection,
        Sql("select d.dtDate as Date,d.drgName as Service,d.Qty,d.Price,d.SubTotal as Amount from BillingDetails d "
            "where "
            "d.billNo='")
            << parameters.value("@billNo").toString()
            << "' and not (isnull(d.revType, '')='CONSULTATION' and exists (select e.retainID from hretainershipExempt "
               "e inner join hRecords h on h.coyName=e.retainID where h.consultID=d.billNo)) order by "
               "d.dtDate,d.detID");
}

} // namespace orvane
