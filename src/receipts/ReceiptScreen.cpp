#include "receipts/ReceiptScreen.h"

#include "data/words/Money.h"

namespace orvane {

ReceiptScreen::Copy::Copy(Form& form, const QString& fieldSuffix, const QString& headSuffix)
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

void ReceiptScreen::Copy::fill(const Recordset& receipt) {
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

void ReceiptScreen::Copy::fillHeading(const Session& session) {
    lblHead.setText(session.sRctLine1);
    lblHead2.setText(session.sRctLine2);
    lblHead3.setText(session.sRctLine3);
    lblHead4.setText(session.sRctLine4);
    Image1.setFile(session.sRctLine5);
}

Layout ReceiptScreen::Copy::layout(const QString& heading) const {
    using namespace orvane::layout;
    return group(heading,
                 {row({cell(Image1), growing(column({cell(lblHead), cell(lblHead2), cell(lblHead3), cell(lblHead4)}))}),
                  row({field("Receipt No", txtReceiptNo), field("Date", txtDate)}), field("Received from", txtRecFrom),
                  field("The sum of", txtSumOf), field("Being payment for", txtBeingPayFor),
                  field("Pay type", txtChequeNo),
                  row({field("Bill", txtBill), field("Amount paid", txtAmount), field("Balance", txtBal)}),
                  field("Received by", lblName)});
}

ReceiptText ReceiptScreen::Copy::text(const QString& copyName) const {
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

ReceiptScreen::ReceiptScreen(Program& owner, const QString& formName) : Screen(owner, formName, "Cash Receipt") {
    optA4.onClick = [this] { choosePaper(false); };
    optRoll.onClick = [this] { choosePaper(true); };
}

void ReceiptScreen::Form_Load() {
    Connection connection = program.openBilling();
    const Recordset receipt = readReceipt(connection);
    if (receipt.eof()) {
        refuse(missingText());
        return;
    }
    const QString code = headingCode(receipt);
    if (code.isEmpty()) {
        refuse("This Receipt has no ReceiptCode! See the DB Administrator to assign a Code");
        return;
    }
    loadHeading(connection, code);
    for (Copy* copy : {&customer, &office}) {
        copy->fill(receipt);
        copy->fillHeading(session);
    }
    m_patientNo = receipt.text("PNo");
    m_paid = {.sno = receipt.integer("SNo"),
              .receiptNo = receipt.text("ReceiptNo"),
              .billNo = receipt.text("BillNO"),
              .due = receipt.number("Amountbilled"),
              .paid = receipt.number("AmountPaid")};
    session.sPrintBillNo.clear();
    session.lWorkSNo = 0;
    (session.bRollPaper ? optRoll : optA4).setChecked(true);
}

/// The receipt that was picked; of several with its number the newest where no key was given.
Recordset ReceiptScreen::readReceipt(Connection& connection) const {
    Sql sql = receiptsByNumber();
    sql << session.sPrintBillNo << "'";
    if (session.lWorkSNo != 0)
        sql << " and SNo=" << session.lWorkSNo;
    return Recordset(connection, sql << " order by SNo desc");
}

void ReceiptScreen::refuse(const QString& reason) {
    program.box(reason);
    unload();
}

/// The four heading lines and the picture; a row that is missing leaves them empty.
void ReceiptScreen::loadHeading(Connection& connection, const QString& code) {
    const Recordset heading(connection, Sql("select * from appSettings where IDValCode='") << code << "'");
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

Layout ReceiptScreen::layout() const {
    using namespace orvane::layout;
    return column({row({customer.layout("Customer's copy"), office.layout("Office copy")}),
                   buttons({&optA4, &optRoll}, {&cmdPrint})});
}

std::optional<Page> ReceiptScreen::page() const {
    if (optRoll.isChecked())
        return receiptRoll(customer.text("Customer's copy"), rollText());
    return receiptPage(customer.text("Customer's copy"), office.text("Office copy"));
}

void ReceiptScreen::choosePaper(bool roll) {
    if (roll && m_lines.isEmpty()) {
        Connection connection = program.openBilling();
        m_lines = linesPaidFor(connection, m_paid);
    }
    session.bRollPaper = roll;
}

RollText ReceiptScreen::rollText() const {
    RollText roll{.patientNo = m_patientNo, .billNo = m_paid.billNo, .lines = {}, .credit = {}};
    for (const PaidLine& line : m_lines)
        roll.lines.append({line.item, formatTwoDecimals(line.amount)});
    if (const double credit = overpaid(m_paid); credit > 0)
        roll.credit = formatTwoDecimals(credit);
    return roll;
}

QString ReceiptScreen::documentName() const {
    return "Receipt " + customer.txtReceiptNo.text() + ' ' + customer.txtRecFrom.text();
}

/// The page is what the screen shows, so the button must not stand on it.
void ReceiptScreen::cmdPrint_Click() {
    cmdPrint.setVisible(false);
    ui().printForm(*this);
    cmdPrint.setVisible(true);
}

void showReceipt(Program& program, const QString& form, const QString& receiptNo, qlonglong sno) {
    if (Form* shown = program.loadedForm(form))
        shown->unload();
    program.session.sPrintBillNo = receiptNo;
    program.session.lWorkSNo = sno;
    program.open(form);
}

} // namespace orvane
