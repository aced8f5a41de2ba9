#include "billing/frmPriceAdjustCustom.h"

#include "billing/BillingRow.h"
#include "billing/Collate.h"
#include "receipts/PatientAccount.h"

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

std::vector<PriceAdjustScreen::Check> frmPriceAdjustCustom::checks() {
    return {{!isPriceValid(), " Please enter valid price ", txtPrice},
            {change().newItem.isEmpty(), "Please specify Item", txtDrug},
            {cboHead.text().trimmed().isEmpty(), "Please specify Rpt Heading for this Bill Item", cboHead}};
}

void frmPriceAdjustCustom::saveRow(Connection& connection, Recordset& row) {
    const ItemChange now = change();
    const double charged = row.number("SubTotal");
    const QString billTo = chosenClient(cboPat);
    setAmounts(row, now);
    row.set("BillHead", cboHead.text().trimmed());
    if (row.text("BillType") == QLatin1String("INVESTIGATION"))
        row.set("BillType", "LAB");
    if (!billTo.isEmpty())
        row.set("billTo", billTo);
    row.update();
    const Recordset bill(connection,
                         Sql("select  PNo,Amountbilled,Subtotal,Diff from vwBillingProcessDetailsGroupedVerify "
                             "where billno='")
                             << m_billNo << "'");
    const double total = bill.number("Subtotal");
    updateBillAmount(connection, m_billNo, total, getValInWord(program, total));
    if (now.newAmount() == charged)
        return;
    if (!billTo.isEmpty() && !isCarriedBalance(m_oldItem))
        postPatientTran(program, connection, session.gServerDate, bill.text("PNo"), m_billNo, charged - now.newAmount(),
                        billTo, "Adjusted Bill Item: " + now.newItem);
    auditAdjustment(program, now, "Bill Adjustment/Customize: Item from: ");
}

} // namespace orvane
