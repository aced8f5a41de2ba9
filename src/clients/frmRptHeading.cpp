#include "clients/frmRptHeading.h"

#include "clients/LineCustom.h"

namespace orvane {

frmRptHeading::frmRptHeading(Program& owner) : Screen(owner, "frmRptHeading", "Items With No Rpt Heading") {
    prepareLines(grdData2);
    grdData2.setToolTip("Double Click a row to give the item its heading");
}

Layout frmRptHeading::layout() const {
    using namespace orvane::layout;
    return column({cell(grdData2), buttons({&cmdCust}, {&CancelButton})});
}

void frmRptHeading::fillGridBills() {
    grdData2.load(
        Recordset::paged(program.openBilling(),
                         Sql("select  SNO,Company,Fullname,BillHead as RptHead,Service,Qty,Price as UnitPrice,SubTotal "
                             "as Amount,BillNo,BillType from vwBillHeadingWithNull where batchno='")
                             << session.sBatchNo << "' ORDER BY date, fullname asc"));
}

void frmRptHeading::cmdCust_Click() {
    if (customiseCurrentLine(program, grdData2))
        fillGridBills();
}

} // namespace orvane
