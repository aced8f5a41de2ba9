#include "receipts/frmCashReceipt.h"

#include "data/Money.h"

namespace orvane {

namespace {

/// Every hospital receipt bears the heading of this row; outlets have rows of their own.
const QString hospitalCode = "00";

} // namespace

frmCashReceipt::Copy::Copy(Form& form, const QString& fieldSuffix, const QString& headSuffix)
    : Image1(form, "Image1" + headSuffix), lblHead(form, "lblHead" + headSuffix),
      lblHead2(form, "lblHead2" + headSuffix), lblHead3(form, "lblHead3" + headSuffix),
      lblHead4(form, "lblHead4" + headSuffix), txtReceiptNo(form, "txtReceiptNo" + fieldSuffix),
      txtDate(form, "txtDate" + fieldSuffix), txtRecFrom(form, "txtRecFrom" + fieldSuffix),
      txtSumOf(form, "txtSumOf" + fieldSuffix), txtBeingPayFor(form, "txtBeingPayFor" + fieldSuffix),
      txtBill(form, "txtBill" + fieldSuffix), txtAmount(form, "txtAmount" + fieldSuffix),
      txtBal(form, "txtBal" + fieldSuffix), txtChequeNo(form, "txtChequeNo" + fieldSuffix),
      lblName(form, "lblName" + fieldSuffix) {
    for (TextBox* box : {&txtReceiptNo, &txtDate, &txtRecFrom, &txtSumOf, &txtBeingPayFor, &txtBill, &txtAmount,
                         &txtBal, &txtChequeNo})
        box->setLocked(true);
    for (TextBox* box : {&txtBill, &txtAmount, &txtBal})
        box->numeric();
}

void frmCashReceipt::Copy::fill(const Recordset& receipt) {
    const double billed = receipt.number("Amountbilled");
    const double paid = receipt.number("AmountPaid");
    txtReceiptNo.setText(receipt.text("ReceiptNo"));
    txtDate.setText(receipt.date("ReceiptDate").toString("dd/MM/yyyy"));
    txtRecFrom.setText(receipt.text("fullName"));
    txtSumOf.setText(receipt.text("AmountInWord"));
    txtBeingPayFor.setText(receipt.text("PaymentFor"));
    txtAmount.setText(formatTwoDecimals(paid));
    txtChequeNo.setText(receipt.text("PayType"));
    txtBill.setText(formatTwoDecimals(billed));
    txtBal.setText(formatTwoDecimals(billed - paid));
    lblName.setText(receipt.text("ReceivedBy"));
}

void frmCashReceipt::Copy::fillHeading(const Session& session) {
    lblHead.setText(session.sRctLine1);
    lblHead2.setText(session.sRctLine2);
    lblHead3.setText(session.sRctLine3);
    lblHead4.setText(session.sRctLine4);
    Image1.setFile(session.sRctLine5);
}

Layout frmCashReceipt::Copy::layout(const QString& heading) const {
    using namespace orvane::layout;
    return group(heading,
                 {row({cell(Image1), growing(column({cell(lblHead), cell(lblHead2), cell(lblHead3), cell(lblHead4)}))}),
                  row({field("Receipt No", txtReceiptNo), field("Date", txtDate)}), field("Received from", txtRecFrom),
                  field("The sum of", txtSumOf), field("Being payment for", txtBeingPayFor),
                  field("Pay type", txtChequeNo),
                  row({field("Bill", txtBill), field("Amount paid", txtAmount), field("Balance", txtBal)}),
                  field("Received by", lblName)});
}

ReceiptText frmCashReceipt::Copy::text(const QString& copyName) const {
    ReceiptText text;
    text.copyName = copyName;
    text.headings = {lblHead.text(), lblHead2.text(), lblHead3.text(), lblHead4.text()};
    text.picture = Image1.file();
    text.receiptNo = txtReceiptNo.text();
    text.date = txtDate.text();
    text.receivedFrom = txtRecFrom.text();
    text.sumOf = txtSumOf.text();
    text.paymentFor = txtBeingPayFor.text();
    text.payType = txtChequeNo.text();
    text.receivedBy = lblName.text();
    text.bill = txtBill.text();
    text.amount = txtAmount.text();
    text.balance = txtBal.text();
    return text;
}

frmCashReceipt::frmCashReceipt(Program& owner) : Screen(owner, "frmCashReceipt", "Cash Receipt") {
    cmdPrint.onClick = [this] { cmdPrint_Click(); };
}

void frmCashReceipt::Form_Load() {
    Connection connection = program.openBilling();
    const Recordset receipt(connection, Sql("select * from qryhBillingReceipt where receiptNo='")
                                            << session.sPrintBillNo << "'");
    if (receipt.eof()) {
        program.box("No Receipt to Generate!");
        unload();
        return;
    }
    customer.fill(receipt);
    office.fill(receipt);
    loadHeading(connection);
    customer.fillHeading(session);
    office.fillHeading(session);
    session.sPrintBillNo.clear();
}

/// The four heading lines and the picture; a row that is missing leaves them empty.
void frmCashReceipt::loadHeading(Connection& connection) {
    const Recordset heading(connection, Sql("select * from appSettings where IDValCode='") << hospitalCode << "'");
    const auto line = [&](const char* column) {
        return heading.eof() ? QString() : heading.text(QString::fromLatin1(column));
    };
    session.sRctLine1 = line("idval");
    session.sRctLine2 = line("idval2");
    session.sRctLine3 = line("idval3");
    session.sRctLine4 = line("idval4");
    const QString picture = line("idvalPix");
    session.sRctLine5 = picture.isEmpty() ? QString() : program.homeFolder() + QLatin1Char('/') + picture;
}

Layout frmCashReceipt::layout() const {
    using namespace orvane::layout;
    return column({row({customer.layout("Customer's copy"), office.layout("Office copy")}), buttons({}, {&cmdPrint})});
}

std::optional<Page> frmCashReceipt::page() const {
    return receiptPage(customer.text("Customer's copy"), office.text("Office copy"));
}

/// The page is what the screen shows, so the button must not stand on it.
void frmCashReceipt::cmdPrint_Click() {
    cmdPrint.setVisible(false);
    ui().printForm(*this);
    cmdPrint.setVisible(true);
}

void showCashReceipt(Program& program, const QString& receiptNo) {
    const QString name = "frmCashReceipt";
    if (Form* shown = program.loadedForm(name))
        shown->unload();
    program.session.sPrintBillNo = receiptNo;
    program.open(name);
}

} // namespace orvane
