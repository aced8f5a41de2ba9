#include "billing/BillingRow.h"
#include "billing/Collate.h"
#include "billing/ItemCapture.h"
#include "data/words/Money.h"
#include "receipts/PatientAccount.h"

namespace orvane {

void ItemCapture::OKButton_Click() {
    if (settlesSave())
        return;
    if (dtDate.isEmpty()) {
        program.box(m_dateRefusal);
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
    QString refusal;
    const auto save = [&] {
        refusal = saveLines();
        return refusal.isEmpty();
    };
    if (!saveOnce(OKButton, save, [this] { unload(); }))
        program.box(refusal);
}

/// The new lines, their charges and the bill's row, all or nothing. Gives why nothing was saved; empty: all was.
QString ItemCapture::saveLines() {
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    if (isBillProcessed(connection, session.gConsultID))
        return billProcessedText();
    if (!isVisitUnchanged(connection, lblBill.text(), lblNo.text(), sRetainID))
        return reselectText();
    for (int row = 1; row < OrderGridDrug.rows() - 1; ++row)
        if (cellText(row, Status) == "NEW")
            saveLine(connection, row);
    refreshBill(connection);
    transaction.commit({.action = name()});
    return {};
}

/// The columns that an item bears on the bill as in its accumulation.
void ItemCapture::setItemColumns(Recordset& item, int row) const {
    item.set("dtDate", dtDate.date());
    item.set("drgName", cellText(row, Item));
    item.set("Price", amountIn(row, Price));
    item.set("Qty", amountIn(row, Units));
    item.set("SubTotal", amountIn(row, SubTotal));
    item.set("billType", cellText(row, EntryType));
    item.set("billTo", cellText(row, BillTo));
    item.set("coyName", cellText(row, CoyName));
    item.set("revType", cellText(row, RevenueType));
    item.set("conID", QVariant());
}

/// The columns that only the accumulation has.
void ItemCapture::setVisitColumns(Recordset& item, int row) const {
    item.set("PNo", lblNo.text());
    item.set("consultID", lblBill.text());
    item.set("Category", cellText(row, Category));
    item.set("usage", cellText(row, Usage));
}

/// The columns that only a line of the bill has; it bears the number of its item.
void ItemCapture::setLineColumns(Recordset& line, int row, qlonglong sno) const {
    line.set("SNo", sno);
    line.set("billNo", lblBill.text());
    line.set("dosage", cellText(row, Usage));
    line.set("Capitated", "NO");
}

qlonglong ItemCapture::addedItem(Connection& connection, int row) const {
    return numberOfAddedItem(connection, lblBill.text(), cellText(row, Item));
}

void ItemCapture::charge(Connection& connection, int row, const QString& remarks) {
    postPatientTran(program, connection, session.gServerDate, lblNo.text(), session.gConsultID,
                    -amountIn(row, SubTotal), cellText(row, BillTo), remarks);
}

double ItemCapture::amountIn(int row, Column column) const {
    return parseAmount(cellText(row, column)).value_or(0);
}

void ItemCapture::audit(const QString& action, int row) {
    program.writeAuditTrail(
        {action + session.sAuditCoy, lblBill.text(), cellText(row, Item) + ": " + cellText(row, SubTotal), name()});
}

void ItemCapture::refreshBill(Connection& connection) {
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
