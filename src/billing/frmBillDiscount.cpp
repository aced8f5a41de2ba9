#include "billing/frmBillDiscount.h"

#include "billing/BillingRow.h"
#include "billing/Collate.h"
#include "data/words/Money.h"

namespace orvane {

frmBillDiscount::frmBillDiscount(Program& owner) : Screen(owner, "frmBillDiscount", "Discounts") {
    txtDue.numeric();
    txtDue.setLocked(true);
    txtHt.numeric();
    cmdInv.onClick = [this] { cmdInv_Click(); };
    cboVehNo.onClick = [this] { cboVehNo_Click(); };
    cboClinic.onClick = [this] { cboClinic_Click(); };
    OKButton.onClick = [this] { OKButton_Click(); };
    cmdCancel.onClick = [this] { clearFields(); };
    CancelButton.onClick = [this] { unload(); };
}

Layout frmBillDiscount::layout() const {
    using namespace orvane::layout;
    return column({row({field("Bills between", DTPicker1), field("and", DTPicker2), cell(cmdInv), stretch()}),
                   field("Patient", cboVehNo), cell(Label5), facts({{"Bill No", &lblBill}, {"Amount Paid", &lblAmt}}),
                   field("Amount Due", txtDue, 16), field("Date", dtDate), field("Entry Type", cboClinic, 16),
                   field("Remarks", cboCat, 16), field("Amount", txtHt, 16), field("Pay Type", cboPay, 16), stretch(),
                   buttons({&cmdCancel}, {&CancelButton, &OKButton})});
}

void frmBillDiscount::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    for (DatePicker* picker : {&DTPicker1, &DTPicker2, &dtDate})
        picker->setDate(today);
    cboClinic.addItems({QString(), "BILL", "DISCOUNT"});
    cboCat.addItems({QString(), "ENT", "DENTAL", "EYE", "BILL", "DISCOUNT"});
    cboPay.addItems({QString(), "CASH", "CHEQUE"});
    cboPay.setText("CASH");
}

void frmBillDiscount::cboClinic_Click() {
    if (isDiscount())
        cboCat.setText("DISCOUNT");
    else if (cboClinic.text() == QLatin1String("BILL"))
        cboCat.setListIndex(-1);
}

void frmBillDiscount::cmdInv_Click() {
    cboVehNo.clear();
    clearFields();
    Connection connection = program.openBilling();
    Recordset bills(connection, Sql("select distinct date,pno,fullname,billno from vwBilling where  date between '")
                                    << DTPicker1.date() << "' and '" << DTPicker2.date() << " '");
    for (; !bills.eof(); bills.moveNext())
        cboVehNo.addItem(bills.text("fullname") + " [" + bills.text("PNo") + "]#" + bills.text("billNo"));
}

void frmBillDiscount::cboVehNo_Click() {
    if (cboVehNo.listIndex() < 0)
        return;
    const QString entry = cboVehNo.text();
    const auto hash = entry.lastIndexOf(QLatin1Char('#'));
    const auto bracket = entry.lastIndexOf(QLatin1Char('['), hash);
    m_pno = entry.mid(bracket + 1, hash - bracket - 2);
    lblBill.setText(entry.mid(hash + 1));
    Label5.setText("Bill/Discount for: " + entry.left(bracket).trimmed());
    Connection connection = program.openBilling();
    const Recordset bill(connection, Sql("select AmountBilled,Amountpaid,billno from Billing where billno='")
                                         << lblBill.text() << "'");
    const double billed = bill.eof() ? 0 : bill.number("AmountBilled");
    const double paid = bill.eof() ? 0 : bill.number("Amountpaid");
    txtDue.setText(formatTwoDecimals(billed - paid));
    lblAmt.setText(formatTwoDecimals(paid));
}

void frmBillDiscount::OKButton_Click() {
    if (settlesSave() || !checkFields())
        return;
    const std::optional<double> amount = parseAmount(txtHt.text());
    // The entry type makes the sign: a negative amount would turn a discount into a charge. A line of 0 is none.
    if (!amount || round2(*amount) <= 0) {
        program.box("Please enter  Amount");
        txtHt.setFocus();
        return;
    }
    if (!program.question("Are you sure to save?", "About to save"))
        return;
    const double signedAmount = isDiscount() ? -round2(*amount) : round2(*amount);
    const auto afterSave = [this] {
        clearFields();
        program.box("Record Succesfully saved");
    };
    if (!saveOnce(
            OKButton, [&] { return save(signedAmount); }, afterSave))
        program.box(billProcessedText());
}

bool frmBillDiscount::checkFields() {
    const struct {
        bool missing;
        const char* text;
        Control& control;
    } checks[] = {
        {txtHt.text().isEmpty(), "Please enter  Amount", txtHt},
        {txtDue.text().isEmpty(), "Please enter Amount Due", txtDue},
        {cboVehNo.text().isEmpty(), "Please enter Patient No", cboVehNo},
        {cboClinic.text().isEmpty(), "Please Specify Entry type", cboClinic},
        {dtDate.isEmpty(), "Please enter date", dtDate},
        {cboCat.text().isEmpty(), "Please enter Remarks", cboCat},
    };
    for (const auto& check : checks) {
        if (check.missing) {
            program.box(QLatin1String(check.text));
            check.control.setFocus();
            return false;
        }
    }
    return true;
}

bool frmBillDiscount::save(double amount) {
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    if (isBillProcessed(connection, lblBill.text()))
        return false;
    addLine(connection, amount);
    if (isDiscount())
        addDiscount(connection, -amount);
    moveBill(connection, amount);
    transaction.commit({.action = name()});
    return true;
}

void frmBillDiscount::addLine(Connection& connection, double amount) {
    Recordset line(connection, Sql("select * from BillingDetails where 1=2"));
    line.addNew();
    line.set("dtDate", dtDate.date());
    line.set("billNo", lblBill.text());
    line.set("PNo", m_pno);
    line.set("drgName", cboCat.text());
    line.set("billType", "SERVICE");
    line.set("conID", 0);
    line.set("Price", amount);
    line.set("Qty", 1);
    line.set("SubTotal", amount);
    line.update();
    // There is no item whose number the line could bear: it takes its own key below zero, which no item has.
    connection.execute(Sql("update BillingDetails set SNo=0-detID where SNo is null and billNo='")
                       << lblBill.text() << "'");
}

void frmBillDiscount::addDiscount(Connection& connection, double amount) {
    Recordset discount(connection, Sql("select * from billDiscounts where 1=2"));
    discount.addNew();
    discount.set("dtDate", session.gServerDate);
    discount.set("dtTime", session.gServerTime.toString("HH:mm"));
    discount.set("billNo", lblBill.text());
    discount.set("Amount", amount);
    discount.set("Remarks", cboCat.text());
    discount.set("entryBy", session.gUsername);
    discount.update();
}

void frmBillDiscount::moveBill(Connection& connection, double amount) {
    Recordset bill(connection, Sql("select * from Billing where billNo='") << lblBill.text() << "'");
    if (bill.eof())
        return;
    const double billed = round2(bill.number("Amountbilled") + amount);
    bill.set("Amountbilled", billed);
    bill.set("AmountBIlledInWord", getValInWord(program, billed));
    bill.set("isPaid", billed <= round2(bill.number("AmountPaid")) ? 1 : 0);
    bill.update();
}

void frmBillDiscount::clearFields() {
    for (ComboBox* box : {&cboVehNo, &cboClinic, &cboCat})
        box->setListIndex(-1);
    txtHt.clear();
    txtDue.clear();
    for (Label* label : {&Label5, &lblBill, &lblAmt})
        label->clear();
    m_pno.clear();
}

} // namespace orvane
