#include "accounts/frmExpensePay.h"

#include "data/words/Money.h"

namespace orvane {

frmExpensePay::frmExpensePay(Program& owner) : Screen(owner, "frmExpensePay", "Payment Voucher") {
    OrderGrid.setHead(
        "-----------------ItemName----------------|----------Description-----------|------------Qty------------|"
        "------------Price------------|------------Amount----------|----------Debit-----------|"
        "----------Credit-----------|---------ChequeNo----------|---------ValueDate----------|"
        "---------ItemCode----------|---------ExpID----------");
    OrderGrid.setMoney({2, 3, 4});
    OrderGrid.onClick = [this] { OrderGrid_Click(); };
    OrderGrid.onDelete = OrderGrid.onClick;
    for (TextBox* number : {&txtQty, &txtPrice})
        number->numeric();
    for (TextBox* shown : {&txtVouch, &txtDrug})
        shown->setLocked(true);
    grdData.setToolTip("Double Click each Item to display below");
    grdData.hide({"ExpID"});
    for (Grid* grid : {&grdData, &grdDataPay})
        grid->setFormat("Amount", "#,###.00");
    grdData.setFormat("Price", "#,###.00");
}

Layout frmExpensePay::layout() const {
    using namespace orvane::layout;
    return column(
        {row({field("Date", dtDate), field("Select Recipient", cboCat, 44), field("Voucher No", txtVouch, 10),
              stretch(), field("Amount Apprvd", lblAmount), field("Amount Paid", lblPaid)}),
         row({field("Description", txtRem, 60), stretch(), field("No of Items:", lblItem)}),
         group("Approved Expense for Payment: Double Click each Item to display below", {growing(cell(grdData))}),
         flow({field("Voucher Item", cboDrug, 26), cell(cmdCon), field("Code", txtDrug, 8), field("Qty", txtQty, 6),
               field("Price", txtPrice, 10), field("SubTotal", lblSub), stretch()}),
         flow({field("Description", txtDesc, 34), field("Cash/Cheque", cboPay, 10),
               field("Expense Acct", cboExpense, 44)}),
         flow({field("Paying Acct", cboBank, 44), field("Cheque/No", txtCheque, 12), field("Value Date", dtValue),
               cell(cmdGrid), stretch(), field("Total", lblTotal)}),
         growing(cell(OrderGrid)), growing(cell(grdDataPay)),
         buttons({&cmdAdd, &cmdRefresh, &cmdPost}, {&cmdCancel, &CancelButton, &OKButton})});
}

void frmExpensePay::Form_Load() {
    dtDate.setDate(session.gServerDate);
    cboPay.addItems({"CASH", "CHEQUE"});
    fillExpenseAccounts();
    cmdCancel_Click();
}

void frmExpensePay::fillExpenseAccounts() {
    Connection connection = program.openBilling();
    Recordset account(connection, Sql("select SNo,AccountNo,AccountName from vwAccountsInfo where groupID like '5%'  "
                                      "order by AccountName "));
    for (; !account.eof(); account.moveNext())
        cboExpense.addItem(account.text("AccountName") + '[' + account.text("AccountNo") + ']',
                           account.text("AccountNo"));
}

void frmExpensePay::fillVouchers() {
    cboCat.clear();
    Connection connection = program.openBilling();
    Recordset voucher(connection, Sql("select distinct Date,ReceivedBy,VouchNo from vwhExpenseApprvFinalHeader where "
                                      "isPaid=0 and  Suppres=0 order by ReceivedBy"));
    for (; !voucher.eof(); voucher.moveNext())
        cboCat.addItem(voucher.text("ReceivedBy") + " @" + voucher.date("Date").toString("dd/MM/yyyy") + " [" +
                           voucher.text("VouchNo") + ']',
                       QStringList{voucher.text("VouchNo"), voucher.text("ReceivedBy")});
}

/// The payments of the day.
void frmExpensePay::fillGrid() {
    Connection connection = program.openBilling();
    grdDataPay.load(
        Recordset(connection, Sql("select distinct  Date, Time, Amount,Posted, Recipient,Description,VouchNo, "
                                  "PaidBy,ApprvBy as FinalApprvBy FROM vwhExpensePay where  date='")
                                  << dtDate.date() << "' order by Time desc"));
}

void frmExpensePay::cmdAdd_Click() {
    clearFields();
    fillVouchers();
    openEntry(true);
    cboCat.setFocus();
}

void frmExpensePay::cmdCancel_Click() {
    clearFields();
    openEntry(false);
}

void frmExpensePay::cmdRefresh_Click() {
    fillGrid();
}

void frmExpensePay::cboCat_Click() {
    const QStringList voucher = cboCat.picked<QStringList>().value_or(QStringList());
    txtVouch.setText(voucher.value(0));
    sRecipient = voucher.value(1);
    OrderGrid.clear();
    showTotal();
    clearItem();
    showVoucher();
    showItems();
}

void frmExpensePay::showVoucher() {
    Connection connection = program.openBilling();
    const Recordset voucher(connection, Sql("select distinct vouchNo,Amount,AmountPaid,(isnull(Amount,0)-"
                                            "isnull(AmountPaid,0)) as bal  from hExpenseApprvFinal where vouchNo='")
                                            << txtVouch.text() << "'");
    lblAmount.setText(voucher.eof() ? QString() : formatTwoDecimals(voucher.number("Amount")));
    lblPaid.setText(voucher.eof() ? QString() : formatTwoDecimals(voucher.number("AmountPaid")));
    lblPaid.setToolTip(voucher.eof() ? QString() : "Balance " + formatTwoDecimals(voucher.number("bal")));
}

void frmExpensePay::showItems() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, Sql("select distinct ExpID,ItemName,Qty,Price,SubTotal as Amount,Description,"
                                           "ItemCode from vwhExpenseApprvFinal where vouchNo='")
                                           << txtVouch.text() << "'"));
    cboDrug.clear();
    for (int row = 0; row < grdData.rowCount(); ++row)
        cboDrug.addItem(grdData.cellText(row, grdData.columnIndex("ItemName")), row);
    const int count = grdData.rowCount();
    lblItem.setText(count == 0 ? "None" : QString::number(count) + " Approved Items");
}

void frmExpensePay::clearFields() {
    cboCat.clear();
    txtVouch.clear();
    txtRem.clear();
    sRecipient.clear();
    for (Label* fact : {&lblAmount, &lblPaid, &lblItem})
        fact->clear();
    grdData.clear();
    cboDrug.clear();
    OrderGrid.clear();
    showTotal();
    clearItem();
}

void frmExpensePay::openEntry(bool entering) {
    for (Control* field : std::initializer_list<Control*>{&cboCat, &txtRem, &cmdCon, &cboDrug, &txtQty, &txtPrice,
                                                          &txtDesc, &cboPay, &cboExpense, &cboBank, &cmdGrid})
        field->setEnabled(entering);
    for (Button* button : {&OKButton, &cmdCancel})
        button->setVisible(entering);
    cmdAdd.setVisible(!entering);
}

VoucherPayment frmExpensePay::entered() {
    VoucherPayment payment{.voucher = txtVouch.text().trimmed(),
                           .recipient = sRecipient,
                           .description = txtRem.text().trimmed(),
                           .date = dtDate.date(),
                           .time = ui().now().time(),
                           .items = {}};
    for (int row = 1; row < OrderGrid.rows() - 1; ++row)
        payment.items << itemIn(row);
    return payment;
}

void frmExpensePay::OKButton_Click() {
    save<Saved>(
        {.button = OKButton,
         .action = "VOUCHER PAYMENT",
         .allowed =
             [this] {
                 return passes(
                     {{txtVouch.text().trimmed().isEmpty(), "Invalid  Recipient Name! Voucher No Required ", &cboCat},
                      {dtDate.isEmpty(), "Please enter Payment Date ", &dtDate},
                      {OrderGrid.rows() < 3, "Please add the Items that are paid to the Grid", &grdData}});
             },
         .question = "Are you sure to save?",
         .title = "About to save",
         .detail =
             [this] {
                 return aboutLines({sRecipient, "Voucher " + txtVouch.text(), nairaText(entered().total())});
             },
         .step = [this](Books& books) { return payVoucher(books, entered()); },
         .follow =
             [this](const Saved&) {
                 program.box("Record Succesfully saved");
                 const VoucherPayment paid = entered();
                 program.writeAuditTrail({.action = "Voucher Payment to: " + paid.recipient,
                                          .document = paid.voucher,
                                          .remarks = formatTwoDecimals(paid.total())});
                 postToAccounts(paid);
                 cmdCancel_Click();
                 fillGrid();
                 cmdAdd.setFocus();
             },
         .trailRows = 1});
}

} // namespace orvane
