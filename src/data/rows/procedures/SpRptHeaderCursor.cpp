#include "data/rows/Transaction.h"
#include "data/rows/procedures/Bodies.h"

namespace orvane {

namespace {

// A line's heading is its revenue type, not its item's category: the headings that a person may pick are the revenue
// types in use (vwBillheading), and the line itself bears a type but no category.
Sql headingOf() {
    return Sql("(select max(t.headName) from vwBillheading t where t.headName = BillingDetails.revType)");
}

void assign(Connection& connection, const QString& client, const QString& batchNo) {
    Sql bills = Sql("(select v.BillNo from vwBillingProcessAll v where v.batchNo='") << batchNo << "'";
    if (client != "(ALL)")
        bills << " and v.retainCode='" << client << "'";
    connection.execute(Sql("update BillingDetails set BillHead=")
                       << headingOf() << " where billNo in " << bills << ") and isnull(BillHead, '') = '' and "
                       << headingOf() << " is not null");
}

} // namespace

Recordset fillHeadings(Connection& connection, const QVariantMap& parameters) {
    const QString client = parameters.value("@coyCode").toString();
    const QString batchNo = parameters.value("@BatchNo").toString();
    if (connection.inTransaction()) {
        assign(connection, client, batchNo);
        return {};
    }
    Transaction transaction(connection);
    assign(connection, client, batchNo);
    transaction.commit();
    return {};
}

} // namespace orvane
