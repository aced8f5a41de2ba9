#include "billing/BillingRow.h"
#include "billing/Collate.h"
#include "billing/frmBillPat.h"
#include "data/Money.h"
#include "receipts/PatientAccount.h"

namespace orvane {

void frmBillPat::OKButton_Click() {
    if (dtDate.isEmpty()) {
        program.box("Please specify Date");
        dtDate.setFocus();
        return;
    }
    if (OrderGridDrug.rows() < 3) {
        program.box("No  Item is Processed!!! Please Verify");
        cboDrug.setFocus();
        return;
    }
    if (!program.question("Are you sure to save?", "About to save"))
        return;
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    if (isBillProcessed(connection, session.gConsultID)) {
        transaction.rollback();
        program.box(billProcessedText());
        return;
    }
    for (int row = 1; row < OrderGridDrug.rows() - 1; ++row)
        if (OrderGridDrug.cell(row, Status) == "NEW")
            saveLine(connection, row);
    refreshBill(connection);
    transaction.commit();
    unload();
}

/// The columns that an item bears on the bill as in its accumulation.
void frmBillPat::setItemColumns(Recordset& item, int row) const {
    item.set("dtDate", dtDate.date());
    item.set("drgName", OrderGridDrug.cell(row, Item));
    item.set("Price", amountIn(row, Price));
    item.set("Qty", amountIn(row, Units));
    item.set("SubTotal", amountIn(row, SubTotal));
    item.set("billType", OrderGridDrug.cell(row, EntryType));
    item.set("billTo", OrderGridDrug.cell(row, BillTo));
    item.set("coyName", OrderGridDrug.cell(row, CoyName));
    item.set("revType", OrderGridDrug.cell(row, RevenueType));
    item.set("conID", QVariant());
}

void frmBillPat::saveLine(Connection& connection, int row) {
    Recordset item(connection, Sql("select * from billAccum where 1=2"));
    item.addNew();
    setItemColumns(item, row);
    item.set("PNo", lblNo.text());
    item.set("consultID", lblBill.text());
    item.set("Category", OrderGridDrug.cell(row, Category));
    item.set("usage", OrderGridDrug.cell(row, Usage));
    item.set("Capitated", sBillMode == "CAP" ? OrderGridDrug.cell(row, Capitated) : "NO");
    item.update();
    audit("insert BillAccum Item for ", row);
    // A client without capitation pays every item, whatever the line shows.
    const bool mayBeCapitated = BillPatTariff.capitatedClients.contains(lblClient.text());
    if (OrderGridDrug.cell(row, Capitated) == "NO" || !mayBeCapitated)
        putOnBill(connection, row);
}

/// What is not capitated goes on the bill at once, under the number that its row was given.
void frmBillPat::putOnBill(Connection& connection, int row) {
    const qlonglong number =
        Recordset(connection, Sql("select top 1 SNO from billaccum order by SNo desc")).integer("SNO");
    Recordset line(connection, Sql("select * from billingdetails where 1=2"));
    line.addNew();
    setItemColumns(line, row);
    line.set("SNo", number);
    line.set("billNo", lblBill.text());
    line.set("dosage", OrderGridDrug.cell(row, Usage));
    line.set("Capitated", "NO");
    line.update();
    connection.execute(Sql("update BillAccum set attendedTo=1,isbilled=1 where SNO =") << number);
    postPatientTran(program, connection, session.gServerDate, lblNo.text(), session.gConsultID,
                    -amountIn(row, SubTotal), OrderGridDrug.cell(row, BillTo), OrderGridDrug.cell(row, Item));
    audit("insert BillDetails Item for ", row);
}

double frmBillPat::amountIn(int row, Column column) const {
    return parseAmount(OrderGridDrug.cell(row, column)).value_or(0);
}

void frmBillPat::audit(const QString& action, int row) {
    program.writeAuditTrail(session.gUsername, action + session.sAuditCoy, lblBill.text(),
                            OrderGridDrug.cell(row, Item) + ": " + OrderGridDrug.cell(row, SubTotal), name());
}

void frmBillPat::refreshBill(Connection& connection) {
    const QString& id = session.gConsultID;
    const std::optional<double> amount = billDetailsTotal(connection, id);
    if (!amount)
        return;
    const QString words = getValInWord(program, *amount);
    if (Recordset(connection, Sql("select * from Billing where billno = '") << id << "'").eof())
        addBillingRow(connection, {dtDate.date(), id, lblNo.text(), sRetainID, *amount, words});
    else
        updateBillAmount(connection, id, *amount, words);
}

} // namespace orvane
