#include "billing/frmBillDiscount.h"

#include "books/Bill.h"
#include "data/words/Money.h"

namespace orvane {

frmBillDiscount::frmBillDiscount(Program& owner) : Screen(owner, "frmBillDiscount", "Discounts") {
    txtDue.numeric();
    txtDue.setLocked(true);
    txtHt.numeric();
}

Layout frmBillDiscount::layout() const {
    using namespace orvane::layout;
    return column({bills.layout(), cell(Label5), facts({{"Bill No", &lblBill}, {"Amount Paid", &lblAmt}}),
                   field("Amount Due", txtDue, 16), field("Date", dtDate), field("Entry Type", cboClinic, 16),
                   field("Remarks", cboCat, 16), field("Amount", txtHt, 16), field("Pay Type", cboPay, 16), stretch(),
                   buttons({&cmdCancel}, {&CancelButton, &OKButton})});
}

void frmBillDiscount::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    bills.setDates(today);
    dtDate.setDate(today);
    cboClinic.addItems({"", "BILL", "DISCOUNT"});
    cboCat.addItems({"", "ENT", "DENTAL", "EYE", "BILL", "DISCOUNT"});
    cboPay.addItems({"", "CASH", "CHEQUE"});
    cboPay.setText("CASH");
}

void frmBillDiscount::cboClinic_Click() {
    if (cboClinic.text() == "DISCOUNT")
        cboCat.setText("DISCOUNT");
    else if (cboClinic.text() == "BILL")
        cboCat.setListIndex(-1);
}

void frmBillDiscount::cmdInv_Click() {
    listBills(Sql("date between '") << bills.DTPicker1.date() << "' and '" << bills.DTPicker2.date() << " '");
}

/// His bills, the newest first.
Screen::PatientTaker frmBillDiscount::patientTaker() {
    return [this](const QString& pno) {
        listBills(Sql("pno='") << pno << "' order by date desc");
        takeOnly(bills.cboVehNo, "This patient has no bill");
    };
}

void frmBillDiscount::listBills(const Sql& which) {
    bills.cboVehNo.clear();
    clearFields();
    Connection connection = program.openBilling();
    Recordset rows(connection, Sql("select distinct date,pno,fullname,billno from vwBilling where  ") << which);
    for (; !rows.eof(); rows.moveNext()) {
        const ListedVisit bill{rows.text("billNo"), rows.text("PNo"), rows.text("fullname")};
        bills.cboVehNo.addItem(bill.patient + " [" + bill.pno + "]#" + bill.consultID, QVariant::fromValue(bill));
    }
}

void frmBillDiscount::cboVehNo_Click() {
    const auto picked = bills.cboVehNo.picked<ListedVisit>();
    if (!picked)
        return;
    m_bill = *picked;
    lblBill.setText(m_bill.consultID);
    Label5.setText("Bill/Discount for: " + m_bill.patient);
    Connection connection = program.openBilling();
    const Recordset bill(connection, Sql("select AmountBilled,Amountpaid,billno from Billing where billno='")
                                         << m_bill.consultID << "'");
    const double billed = bill.eof() ? 0 : bill.number("AmountBilled");
    const double paid = bill.eof() ? 0 : bill.number("Amountpaid");
    txtDue.setText(formatTwoDecimals(billed - paid));
    lblAmt.setText(formatTwoDecimals(paid));
}

double frmBillDiscount::amount() const {
    return round2(parseAmount(txtHt.text()).value_or(0));
}

bool frmBillDiscount::isComplete() {
    return passes({{txtHt.text().isEmpty(), "Please enter  Amount", &txtHt},
                   {txtDue.text().isEmpty(), "Please enter Amount Due", &txtDue},
                   {bills.cboVehNo.text().isEmpty(), "Please enter Patient No", &bills.cboVehNo},
                   {cboClinic.text().isEmpty(), "Please Specify Entry type", &cboClinic},
                   {dtDate.isEmpty(), "Please enter date", &dtDate},
                   {cboCat.text().isEmpty(), "Please enter Remarks", &cboCat},
                   // The entry type makes the sign: a negative amount would turn a discount into a charge. A line of 0
                   // is none.
                   {amount() <= 0, "Please enter  Amount", &txtHt}});
}

bool frmBillDiscount::isBillOpen() {
    Connection connection = program.openBilling();
    return passes({{isBillProcessed(connection, m_bill.consultID), refusalText(Refusal::BillProcessed)}});
}

BillDiscount frmBillDiscount::entered() const {
    return {.billNo = m_bill.consultID,
            .pno = m_bill.pno,
            .date = dtDate.date(),
            .name = cboCat.text(),
            .amount = amount(),
            .isDiscount = cboClinic.text() == "DISCOUNT"};
}

void frmBillDiscount::OKButton_Click() {
    save<Saved>({.button = OKButton,
                 .action = "DISCOUNT",
                 .allowed = [this] { return isComplete() && isBillOpen(); },
                 .question = "Are you sure to save?",
                 .title = "About to save",
                 .detail =
                     [this] {
                         return aboutLines({m_bill.patient, "Bill " + m_bill.consultID,
                                            cboClinic.text() + ' ' + nairaText(amount())});
                     },
                 .step = [this](Books& books) { return addBillDiscount(books, entered()); },
                 .follow =
                     [this](const Saved&) {
                         clearFields();
                         program.box("Record Succesfully saved");
                         bills.cboVehNo.setFocus();
                     }});
}

void frmBillDiscount::clearFields() {
    for (ComboBox* box : {&bills.cboVehNo, &cboClinic, &cboCat})
        box->setListIndex(-1);
    txtHt.clear();
    txtDue.clear();
    for (Label* label : {&Label5, &lblBill, &lblAmt})
        label->clear();
    m_bill = {};
}

} // namespace orvane
