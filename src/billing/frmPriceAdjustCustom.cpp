#include "billing/frmPriceAdjustCustom.h"

namespace orvane {

frmPriceAdjustCustom::frmPriceAdjustCustom(Program& owner)
    : PriceAdjustScreen(owner, "frmPriceAdjustCustom", "Bill Adjustment Before Processing") {}

Layout frmPriceAdjustCustom::layout() const {
    using namespace orvane::layout;
    return fieldsAbove({field("Rpt Heading", cboHead, 44), field("Bill To", cboPat, 44), stretch(),
                        buttons({}, {&CancelButton, &cmdSave})});
}

void frmPriceAdjustCustom::Form_Load() {
    Connection connection = program.openBilling();
    for (Recordset head(connection, Sql("select distinct headName from vwBillheading")); !head.eof(); head.moveNext())
        cboHead.addItem(head.text("headName"));
    const Recordset line = openRow(connection);
    if (!showRow(line, "billNo"))
        return;
    cboHead.setText(line.text("BillHead"));
    offerClients(cboPat, connection, payers(line.text("billTo")), line.text("billTo"));
}

Recordset frmPriceAdjustCustom::openRow(Connection& connection) const {
    return Recordset(connection, Sql("select * from Billingdetails where SNO=") << session.lWorkSNo);
}

bool frmPriceAdjustCustom::isComplete() {
    return passes({{!isPriceValid(), " Please enter valid price ", &txtPrice},
                   {change().newItem.isEmpty(), "Please specify Item", &txtDrug},
                   {cboHead.text().trimmed().isEmpty(), "Please specify Rpt Heading for this Bill Item", &cboHead}});
}

Given<Saved> frmPriceAdjustCustom::write(Books& books) {
    return customiseLine(books, change(), cboHead.text().trimmed(), chosenClient(cboPat));
}

} // namespace orvane
