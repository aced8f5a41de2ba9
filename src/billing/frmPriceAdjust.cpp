#include "billing/frmPriceAdjust.h"

namespace orvane {

frmPriceAdjust::frmPriceAdjust(Program& owner) : PriceAdjustScreen(owner, "frmPriceAdjust", "Price Adjustment") {}

Layout frmPriceAdjust::layout() const {
    using namespace orvane::layout;
    return fieldsAbove({field("Capitated", cboCap, 8), stretch(), buttons({}, {&CancelButton, &cmdSave})});
}

void frmPriceAdjust::Form_Load() {
    cboCap.addItems({"", "YES", "NO"});
    Connection connection = program.openBilling();
    const Recordset item = openRow(connection);
    if (showRow(item, "consultID"))
        cboCap.setText(item.text("Capitated"));
}

Recordset frmPriceAdjust::openRow(Connection& connection) const {
    return Recordset(connection, Sql("select * from BillAccum where SNO=") << session.lWorkSNo);
}

bool frmPriceAdjust::isComplete() {
    return passes({{!isPriceValid(), " Please enter valid price ", &txtPrice},
                   {cboCap.text().isEmpty(), "Please specify Capitation", &cboCap},
                   {change().newItem.isEmpty(), "Please specify Service/Drug", &txtDrug}});
}

Given<Saved> frmPriceAdjust::write(Books& books) {
    return adjustPrice(books, change(), cboCap.text());
}

} // namespace orvane
