#include "billing/frmBillPatAdjust.h"

namespace orvane {

frmBillPatAdjust::frmBillPatAdjust(Program& owner)
    : ItemCapture(owner, "frmBillPatAdjust", "Add to Collated Bill", BillPatAdjustTariff, "Please specify Attnd Date") {
}

/// The items are of the day of the visit, so that they fall into its month.
void frmBillPatAdjust::Form_Load() {
    ItemCapture::Form_Load();
    Connection connection = program.openBilling();
    const Recordset visit(connection, Sql("select recdate from qryhVisitsForAttend where consultid ='")
                                          << session.gConsultID << "'");
    dtDate.setDate(visit.eof() ? QDate() : visit.date("recdate"));
}

void frmBillPatAdjust::saveLine(Connection& connection, int row) {
    Recordset item(connection, Sql("select * from billAccum where 1=2"));
    item.addNew();
    setItemColumns(item, row);
    setVisitColumns(item, row);
    item.set("Capitated", "NO");
    item.set("attendedto", 1);
    item.set("isBilled", 1);
    item.update();
    Recordset line(connection, Sql("select * from billingdetails where 1=2"));
    line.addNew();
    setItemColumns(line, row);
    setLineColumns(line, row, addedItem(connection, row));
    line.set("BillBy", session.gUsername);
    line.update();
    charge(connection, row, "New Bill Item: " + cellText(row, Item));
    audit("insert BillDetails Item for ", row);
}

} // namespace orvane
