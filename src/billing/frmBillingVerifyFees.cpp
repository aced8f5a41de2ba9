#include "billing/BillingRow.h"
#include "billing/frmBillingVerify.h"
#include "data/words/Money.h"
#include "receipts/PatientAccount.h"

namespace orvane {

bool frmBillingVerify::isFeeGiven(TextBox& box, const QString& refusal) {
    if (!hasPatient("Specify Patient Name"))
        return false;
    if (parseAmount(box.text()).value_or(-1) >= 0)
        return true;
    program.box(refusal);
    box.setFocus();
    return false;
}

/// A fee is an ordinary item of the visit. `billed`: its line is added with it, so that it never waits.
void frmBillingVerify::addFeeItem(Connection& connection, const QString& text, double fee, const QString& revType,
                                  bool billed) {
    Recordset item(connection, Sql("select * from billAccum where 1=2"));
    item.addNew();
    item.set("dtDate", dtDate.date());
    item.set("consultID", m_bill.consultID);
    item.set("drgName", text);
    item.set("Price", fee);
    item.set("Qty", 1);
    item.set("SubTotal", fee);
    item.set("billType", "SERVICE");
    item.set("usage", "");
    item.set("Capitated", "NO");
    item.set("isBilled", billed ? 1 : 0);
    item.set("attendedto", billed ? 1 : 0);
    item.set("suppres", 0);
    item.set("Category", "CONSULTATION");
    item.set("PNo", m_bill.pno);
    item.set("coyName", m_bill.retainID);
    item.set("billTo", m_bill.retainCode);
    if (billed) {
        item.set("conID", 0);
        item.set("revType", revType);
        item.set("BillBy", session.gUsername);
    }
    item.update();
}

/// The line of the fee that was added last.
void frmBillingVerify::addFeeLine(Connection& connection, const QString& text, double fee, const QString& revType) {
    Recordset line(connection, Sql("select * from BillingDetails where 1=2"));
    line.addNew();
    line.set("dtDate", dtDate.date());
    line.set("billNo", m_bill.consultID);
    line.set("SNo", numberOfAddedItem(connection, m_bill.consultID, text));
    line.set("drgName", text);
    line.set("Price", fee);
    line.set("Qty", 1);
    line.set("SubTotal", fee);
    line.set("billType", "SERVICE");
    line.set("conID", 0);
    line.set("dosage", "");
    line.set("coyName", m_bill.retainID);
    line.set("billTo", m_bill.retainCode);
    line.set("revType", revType);
    line.set("BillBy", session.gUsername);
    line.set("Capitated", "NO");
    line.update();
}

/// Amount and words of the Billing row as the lines now come to; without a line they stay.
void frmBillingVerify::updateBillTotal(Connection& connection) {
    if (const std::optional<double> total = billDetailsTotal(connection, m_bill.consultID))
        updateBillAmount(connection, m_bill.consultID, *total, getValInWord(program, *total));
}

void frmBillingVerify::cmdBill_Click() {
    if (settlesSave() || !isFeeGiven(txtProf, "Specify Prof fee! Numeric Only"))
        return;
    const double bill = parseAmount(lblCurr.text()).value_or(0);
    const QString percent = txtProf.text().trimmed();
    const double fee = round2(bill * amountIn(txtProf) / 100);
    const QString text = "Prof Fee (" + percent + "%)";
    const auto steps = [&](Connection& connection) { addFeeItem(connection, text, fee, {}, false); };
    changeBill(cmdBill, steps, [=, this] {
        program.writeAuditTrail(
            {"insert Prof Fee (" + percent + "%) for: " + m_bill.patient, m_bill.consultID, formatTwoDecimals(fee)});
        session.sAdjustItem = text;
        getAccumBill();
        program.box(percent + "% Prof fee of " + formatTwoDecimals(bill) +
                    " Added\nProf Fee is based on Current Bill\nProf Fee Charged is " + formatTwoDecimals(fee));
    });
}

/// `steps` in one transaction, as saveOnce of `button`; false, with the box, when a batch has taken the bill meanwhile.
bool frmBillingVerify::changeBill(Button& button, const std::function<void(Connection&)>& steps,
                                  std::function<void()> afterChange) {
    const auto save = [&] {
        Connection connection = program.openBilling();
        Transaction transaction(connection);
        if (isBillProcessed(connection, m_bill.consultID))
            return false;
        steps(connection);
        transaction.commit({.action = name()});
        return true;
    };
    const bool changed = saveOnce(button, save, std::move(afterChange));
    if (!changed)
        program.box(billProcessedText());
    return changed;
}

void frmBillingVerify::cmdNHIS_Click() {
    if (settlesSave() || !isFeeGiven(txtNHIS, "Specify NHIS fee! Numeric Only"))
        return;
    const QString percent = txtNHIS.text().trimmed();
    const std::optional<QString> text = ui().inputBox("Enter Item Description", {}, "NHIS  (" + percent + "%) Fee");
    if (!text || text->trimmed().isEmpty())
        return;
    const auto steps = [&](Connection& connection) { addServiceFee(connection, *text); };
    changeBill(cmdNHIS, steps, [this, percent, item = *text] {
        program.writeAuditTrail({"insert Service/NHIS  (" + percent + "%) fee for Drugs/Services for " + m_bill.patient,
                                 m_bill.consultID, item});
        session.sAdjustItem = item;
        getAccumBill();
    });
}

void frmBillingVerify::addServiceFee(Connection& connection, const QString& text) {
    const bool all = session.gNHISFee.isEmpty() || session.gNHISFee == "ALL";
    const QString revType = session.gNHISFee == "DRUG" ? "CONSULTATION" : "DRUG";
    const Recordset base =
        all ? Recordset(connection, Sql("select sum(subtotal) as Subtotal from BillAccum where consultid='")
                                        << m_bill.consultID << "'")
            : Recordset(connection, Sql("select sum(isnull(subtotal,0)) as Subtotal from BillAccum where consultid='")
                                        << m_bill.consultID << "' and billtype='DRUG'");
    const double fee = round2(base.number("Subtotal") * amountIn(txtNHIS) / 100);
    addFeeItem(connection, text, fee, revType, true);
    addFeeLine(connection, text, fee, revType);
    postPatientTran(program, connection, session.gServerDate, m_bill.pno, m_bill.consultID, 0 - fee, m_bill.retainCode,
                    text);
    updateBillTotal(connection);
}

bool frmBillingVerify::isManager() {
    Connection connection = program.openBilling();
    return !Recordset(connection, Sql("select  * from vwUsers where loginRole='MANAGEMENT' and username='")
                                      << session.gUsername << "'")
                .eof();
}

/// The bill is emptied: every item falls under the contract, and what was charged for it goes back to the account.
void frmBillingVerify::cmdCap_Click() {
    if (settlesSave() || !hasPatient("No Patient is selected"))
        return;
    if (!isManager()) {
        program.box("Only User with Mgt Previlege can initiate this Action");
        return;
    }
    if (!program.question("Are you sure to Capitate all Items in this Bill", "Capitation"))
        return;
    const auto steps = [this](Connection& saving) {
        capitateItems(saving);
        updateBillTotal(saving);
    };
    const bool changed = changeBill(cmdCap, steps, [this] {
        program.box(" Bill Item successfully Capitated");
        getAccumBill();
    });
    if (!changed)
        getAccumBill();
}

void frmBillingVerify::capitateItems(Connection& connection) {
    // Only what was charged goes back, and to the account that was charged: the lines tell, so they are read before
    // they go.
    QHash<qlonglong, Charge> charges;
    for (Recordset lines(connection, Sql("select SNo,SubTotal,billTo from billingdetails where BillNo = '")
                                         << m_bill.consultID << "'");
         !lines.eof(); lines.moveNext())
        charges.insert(lines.integer("SNo"), {lines.number("SubTotal"), lines.text("billTo")});
    connection.execute(Sql("delete from billingdetails where BillNo = '") << m_bill.consultID << "'");
    connection.execute(Sql("update  billing set AmountBilled=0,AmountBilledInWord='XXX'  where BillNo = '")
                       << m_bill.consultID << "'");
    connection.execute(Sql("update  BillAccum set Capitated='YES',isBilled=1,AttendedTo=1  where consultID = '")
                       << m_bill.consultID << "'");
    for (Recordset items(connection, Sql("select * from billAccum where consultID='") << m_bill.consultID << "'");
         !items.eof(); items.moveNext())
        capitateItem(connection, items, charges.value(items.integer("SNo")));
}

/// The trace of one capitated item, and its charge back to the account.
void frmBillingVerify::capitateItem(Connection& connection, const Recordset& item, const Charge& charge) {
    const QString name = item.text("drgName");
    const QString qty = item.text("Qty");
    Recordset trace(connection, Sql("select * from BillingDetailsAdjust where 1=2"));
    trace.addNew();
    trace.set("AdjustDate", session.gServerDate);
    trace.set("AdjustTime", session.gServerTime.toString("HH:mm"));
    trace.set("billNo", m_bill.consultID);
    trace.set("BillItem", name);
    trace.set("OldQty", qty);
    trace.set("newQty", qty);
    trace.set("OldPrice", item.number("Price"));
    trace.set("newPrice", 0);
    trace.set("AdjustBy", session.gUsername);
    trace.set("Remarks", "BILL Capitated");
    trace.update();
    if (charge.amount != 0 && !isCarriedBalance(name))
        postPatientTran(program, connection, session.gServerDate, m_bill.pno, m_bill.consultID, charge.amount,
                        charge.clientCode, "Bill Item Capitated: " + name);
    program.writeAuditTrail(
        {"Capitated  Bill Item for " + m_bill.patient, m_bill.consultID,
         "Item Capitated " + name + ": Qty:" + qty + " Amount: " + formatTwoDecimals(item.number("SubTotal"))});
}

} // namespace orvane
