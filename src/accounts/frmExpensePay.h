#pragma once

#include "books/Voucher.h"
#include "session/Screen.h"

namespace orvane {

/// "Payment Voucher": the cashier pays an approved voucher, item by item, in cash or by cheque.
class frmExpensePay : public Screen {
public:
    explicit frmExpensePay(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    // The voucher (frmExpensePay.cpp).
    void fillExpenseAccounts();
    void fillVouchers();
    void fillGrid();
    void dtDate_Change() { fillGrid(); }
    void cmdAdd_Click();
    void cmdCancel_Click();
    void cmdRefresh_Click();
    void cboCat_Click();
    void showVoucher();
    void showItems();
    void clearFields();
    void openEntry(bool entering); ///< fields and buttons: an entry, or the payments alone
    void OKButton_Click();
    VoucherPayment entered();

    // Its way into the accounts (frmExpensePayPost.cpp).
    void postToAccounts(const VoucherPayment& paid);
    void cmdPost_Click();
    QString postToJournal(const Recordset& item, const QString& folder);
    static QString itemLines(const QStringList& items);

    // Its items (frmExpensePayItems.cpp).
    void cboDrug_Click();
    void cmdCon_Click();
    void showSubTotal();
    void cboPay_Click();
    void cboExpense_Click();
    void cboBank_Click();
    void cmdGrid_Click();
    bool isItemComplete();
    bool isInGrid();
    void addToGrid();
    void OrderGrid_Click();
    void showTotal();
    VoucherItem itemIn(int row) const;
    void clearItem();

    using Me = frmExpensePay;
    DatePicker dtDate{*this, "dtDate", &Me::dtDate_Change};
    ComboBox cboCat{*this, "cboCat", ComboBox::ListOnly, &Me::cboCat_Click};
    TextBox txtVouch{*this, "txtVouch"};
    TextBox txtRem{*this, "txtRem"};
    Label lblAmount{*this, "lblAmount"};
    Label lblPaid{*this, "lblPaid"};
    Label lblItem{*this, "lblItem"};
    Grid grdData{*this, "grdData", &Me::cmdCon_Click};
    Button cmdCon{*this, "cmdCon", "&Take Item", &Me::cmdCon_Click};
    ComboBox cboDrug{*this, "cboDrug", ComboBox::ListOnly, &Me::cboDrug_Click};
    TextBox txtDrug{*this, "txtDrug"}; ///< the item's code
    TextBox txtQty{*this, "txtQty", &Me::showSubTotal};
    TextBox txtPrice{*this, "txtPrice", &Me::showSubTotal};
    Label lblSub{*this, "lblSub"};
    TextBox txtDesc{*this, "txtDesc"};
    ComboBox cboPay{*this, "cboPay", ComboBox::ListOnly, &Me::cboPay_Click};
    ComboBox cboExpense{*this, "cboExpense", ComboBox::ListOnly, &Me::cboExpense_Click};
    ComboBox cboBank{*this, "cboBank", ComboBox::ListOnly, &Me::cboBank_Click};
    TextBox txtCheque{*this, "txtCheque"};
    DatePicker dtValue{*this, "dtValue"};
    Button cmdGrid{*this, "cmdGrid", "Add to &Grid", &Me::cmdGrid_Click};
    EntryGrid OrderGrid{*this, "OrderGrid"};
    Label lblTotal{*this, "lblTotal"};
    Grid grdDataPay{*this, "grdDataPay"};
    Button cmdAdd{*this, "cmdAdd", "&Add", &Me::cmdAdd_Click};
    Button cmdRefresh{*this, "cmdRefresh", "&Refresh", &Me::cmdRefresh_Click};
    Button cmdPost{*this, "cmdPost", "&Post to Accounts", &Me::cmdPost_Click};
    Button cmdCancel{*this, "cmdCancel", "Ca&ncel", &Me::cmdCancel_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button OKButton{*this, "OKButton", "&Save", &Me::OKButton_Click};

    QString sRecipient;              ///< of the voucher in hand
    QString sExpID;                  ///< of the item in hand
    QString sAcctDebit, sAcctCredit; ///< picked
};

} // namespace orvane
