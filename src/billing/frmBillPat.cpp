#include "billing/frmBillPat.h"

namespace orvane {

frmBillPat::frmBillPat(Program& owner)
    : ItemCapture(owner, "frmBillPat", "Bill Generation", BillPatTariff, "Please specify Date") {
    addRevenueTypes();
}

/// "CAP": the items of the visit may be capitated; "FFS" a capitated client's patient who pays per item; else "BIL".
QString frmBillPat::billMode() const {
    const bool isCapitatedClient = lblClient.text() == "HMO" || lblClient.text() == "NHIS";
    return !isCapitatedClient ? "BIL" : lblFFS.text() == "YES" ? "FFS" : "CAP";
}

void frmBillPat::saveLine(Connection& connection, int row) {
    Recordset item(connection, Sql("select * from billAccum where 1=2"));
    item.addNew();
    setItemColumns(item, row);
    setVisitColumns(item, row);
    item.set("Capitated", billMode() == "CAP" ? cellText(row, Capitated) : "NO");
    item.update();
    audit("insert BillAccum Item for ", row);
    // A client without capitation pays every item, whatever the line shows.
    const bool mayBeCapitated = BillPatTariff.capitatedClients.contains(lblClient.text());
    if (cellText(row, Capitated) == "NO" || !mayBeCapitated)
        putOnBill(connection, row);
}

/// What is not capitated goes on the bill at once, under the number that its row was given.
void frmBillPat::putOnBill(Connection& connection, int row) {
    const qlonglong number = addedItem(connection, row);
    Recordset line(connection, Sql("select * from billingdetails where 1=2"));
    line.addNew();
    setItemColumns(line, row);
    setLineColumns(line, row, number);
    line.update();
    connection.execute(Sql("update BillAccum set attendedTo=1,isbilled=1 where SNO =") << number);
    charge(connection, row, cellText(row, Item));
    audit("insert BillDetails Item for ", row);
}

} // namespace orvane
