#include "accounts/frmExpensePay.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

/// The columns of OrderGrid.
enum Column { ItemName, Description, Qty, Price, Amount, Debit, Credit, ChequeNo, ValueDate, ItemCode, ExpID };

const QString dateFormat = "dd/MM/yyyy";

} // namespace

/// Picks the item of the list's row, as if it were picked in the box.
void frmExpensePay::cmdCon_Click() {
    if (!cboDrug.isUsable() || grdData.currentRow() < 0)
        return;
    if (!passes({{grdData.text("ItemName").isEmpty(), "Item Name cannor be Empty", &grdData}}))
        return;
    cboDrug.setListIndex(grdData.currentRow());
    cboPay.setFocus();
}

void frmExpensePay::cboDrug_Click() {
    const std::optional<int> row = cboDrug.picked<int>();
    if (!row)
        return;
    grdData.selectRow(*row);
    sExpID = grdData.text("ExpID");
    txtDrug.setText(grdData.text("ItemCode"));
    txtQty.setText(grdData.text("Qty"));
    txtPrice.setText(grdData.text("Price"));
    txtDesc.setText(grdData.text("Description"));
}

void frmExpensePay::showSubTotal() {
    const double qty = parseAmount(txtQty.text()).value_or(0), price = parseAmount(txtPrice.text()).value_or(0);
    lblSub.setText(formatTwoDecimals(round2(qty * price)));
}

void frmExpensePay::cboPay_Click() {
    const bool byCheque = cboPay.text() == "CHEQUE";
    txtCheque.setEnabled(byCheque);
    dtValue.setEnabled(byCheque);
    cboBank.clear();
    sAcctCredit.clear();
    if (cboPay.text().isEmpty())
        return;
    Connection connection = program.openBilling();
    Recordset account(
        connection, byCheque
                        ? Sql("select SNo,AccountNo,AccountName from vwAccountsInfo where groupID='1220000'  order by "
                              "AccountName ")
                        : Sql("select SNo,AccountNo,AccountName from vwAccountsInfo where groupID='1210000'  order by "
                              "AccountName "));
    for (; !account.eof(); account.moveNext())
        cboBank.addItem(account.text("AccountName") + '[' + account.text("AccountNo") + ']', account.text("AccountNo"));
}

void frmExpensePay::cboExpense_Click() {
    sAcctDebit = cboExpense.picked<QString>().value_or(QString());
}

void frmExpensePay::cboBank_Click() {
    sAcctCredit = cboBank.picked<QString>().value_or(QString());
}

bool frmExpensePay::isInGrid() {
    for (int row = 1; row < OrderGrid.rows() - 1; ++row)
        if (!sExpID.isEmpty() && OrderGrid.cell(row, ExpID) == sExpID)
            return true;
    return false;
}

bool frmExpensePay::isItemComplete() {
    const bool byCheque = cboPay.text() == "CHEQUE";
    const std::optional<double> qty = parseAmount(txtQty.text()), price = parseAmount(txtPrice.text());
    return passes({{isInGrid(), "Duplicate Item Entry not allowed", &cboDrug},
                   {cboPay.text().isEmpty(), "Please enter Pay Type ", &cboPay},
                   {byCheque && dtValue.isEmpty(), "Please enter Value Date", &dtValue},
                   {byCheque && txtCheque.text().trimmed().isEmpty(), " Cheque No Required ", &txtCheque},
                   {cboExpense.text().isEmpty(), "Please enter Expense Acct Name (Acct to Debit) ", &cboExpense},
                   {cboBank.text().isEmpty(), "Please enter paying Acct Name (Acct to Credit)", &cboBank},
                   {cboCat.text().isEmpty(), "Please enter Recipient Name ", &cboCat},
                   {qty.value_or(0) <= 0, "Please specify Quantity Needed in Figures ", &txtQty},
                   {!price, "Please specify Unit Price  in Figures ", &txtPrice},
                   {price.value_or(1) <= 0, "Please specify Unit Price  above zero", &txtPrice},
                   {cboDrug.text().isEmpty(), "Please specify Drug/Service used ", &cboDrug}});
}

void frmExpensePay::cmdGrid_Click() {
    if (!isItemComplete())
        return;
    addToGrid();
    showTotal();
    clearItem();
    cboDrug.setFocus();
}

void frmExpensePay::addToGrid() {
    const bool byCheque = cboPay.text() == "CHEQUE";
    const double qty = *parseAmount(txtQty.text()), price = *parseAmount(txtPrice.text());
    const QStringList cells = {cboDrug.text(),
                               txtDesc.text().trimmed(),
                               txtQty.text().trimmed(),
                               txtPrice.text().trimmed(),
                               formatTwoDecimals(round2(qty * price)),
                               sAcctDebit,
                               sAcctCredit,
                               byCheque ? txtCheque.text().trimmed() : QString(),
                               byCheque ? dtValue.date().toString(dateFormat) : QString(),
                               txtDrug.text(),
                               sExpID};
    const int line = OrderGrid.rows() - 1;
    for (int column = 0; column < cells.size(); ++column)
        OrderGrid.setCell(line, column, cells.at(column));
    OrderGrid.addRow();
}

void frmExpensePay::OrderGrid_Click() {
    const int row = OrderGrid.currentRow();
    if (row < 1 || row >= OrderGrid.rows() - 1) {
        program.box(" Blank Row cannot be deleted");
        return;
    }
    if (!program.question("Are you sure to Delete?", "Check before Delete", Consent::Destroys,
                          aboutLines({OrderGrid.cell(row, ItemName), nairaText(itemIn(row).amount)})))
        return;
    OrderGrid.removeRow(row);
    showTotal();
    program.box("Item Removed");
}

void frmExpensePay::showTotal() {
    double total = 0;
    for (int row = 1; row < OrderGrid.rows() - 1; ++row)
        total += itemIn(row).amount;
    lblTotal.setText(formatTwoDecimals(round2(total)));
}

VoucherItem frmExpensePay::itemIn(int row) const {
    return {.expID = OrderGrid.cell(row, ExpID),
            .name = OrderGrid.cell(row, ItemName),
            .description = OrderGrid.cell(row, Description),
            .qty = parseAmount(OrderGrid.cell(row, Qty)).value_or(0),
            .price = parseAmount(OrderGrid.cell(row, Price)).value_or(0),
            .amount = parseAmount(OrderGrid.cell(row, Amount)).value_or(0),
            .debit = OrderGrid.cell(row, Debit),
            .credit = OrderGrid.cell(row, Credit),
            .chequeNo = OrderGrid.cell(row, ChequeNo),
            .valueDate = QDate::fromString(OrderGrid.cell(row, ValueDate), dateFormat),
            .itemCode = OrderGrid.cell(row, ItemCode)};
}

void frmExpensePay::clearItem() {
    sExpID.clear();
    for (ComboBox* box : {&cboDrug, &cboPay, &cboExpense, &cboBank})
        box->setListIndex(-1);
    for (TextBox* box : {&txtDrug, &txtQty, &txtPrice, &txtDesc, &txtCheque})
        box->clear();
    dtValue.clear();
    lblSub.clear();
}

} // namespace orvane
