#include "billing/frmPriceAdjustSplit.h"

namespace orvane {

frmPriceAdjustSplit::frmPriceAdjustSplit(Program& owner)
    : PriceAdjustScreen(owner, "frmPriceAdjustSplit", "Bill Item To") {
    for (TextBox* box : {&txtDrug, &txtQty, &txtPrice})
        box->setLocked(true);
}

Layout frmPriceAdjustSplit::layout() const {
    using namespace orvane::layout;
    return fieldsAbove({field("Bill To", cboPat, 44), stretch(), buttons({}, {&CancelButton, &cmdSave})});
}

void frmPriceAdjustSplit::Form_Load() {
    Connection connection = program.openBilling();
    const Recordset line = openRow(connection);
    if (!showRow(line, "billNo"))
        return;
    offerClients(cboPat, connection,
                 Sql("select retainName,retainID,retainCode from hretainerShip order by retainNAME "),
                 line.text("billTo"));
}

Recordset frmPriceAdjustSplit::openRow(Connection& connection) const {
    return Recordset(connection, Sql("select * from BillingDetails where SNO=") << session.lWorkSNo);
}

bool frmPriceAdjustSplit::isComplete() {
    return passes({{!isPriceValid(), " Please enter valid price ", &txtPrice},
                   {cboPat.text().isEmpty(), "Please specify Bill To", &cboPat},
                   {change().newItem.isEmpty(), "Please specify Service/Drug", &txtDrug}});
}

Given<Saved> frmPriceAdjustSplit::write(Books& books) {
    return splitPayer(books, change(), chosenClient(cboPat));
}

} // namespace orvane
