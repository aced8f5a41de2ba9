#pragma once

#include "receipts/ReceiptNumber.h"
#include "session/Screen.h"

namespace orvane {

/// " Receipt Entry": takes money from a private patient against an existing bill and issues a receipt; reverses a
/// receipt.
class frmReceiptTemp : public Screen {
public:
    explicit frmReceiptTemp(Program& program);

    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdInv{*this, "cmdInv", "&Get Patients"};
    ComboBox cboVehNo{*this, "cboVehNo"};
    Label Label5{*this, "Label5", "Receipt Information"};
    TextBox txtBill{*this, "txtBill"};
    Label lblDate{*this, "lblDate"};
    Label lblClinic{*this, "lblClinic", "Clinic Type"};
    Label lblClinic2{*this, "lblClinic2"};
    Label lblRct{*this, "lblRct"};
    Label lblCurr{*this, "lblCurr"};
    Label lblDep{*this, "lblDep"};
    TextBox txtEmp{*this, "txtEmp"};
    TextBox txtHt{*this, "txtHt"};
    Label lblDuty{*this, "lblDuty", "Amount Paid in Words"};
    TextBox txtDuty{*this, "txtDuty"};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboCat{*this, "cboCat"};
    ComboBox cboPay{*this, "cboPay"};
    TextBox txtDiag{*this, "txtDiag"};
    CheckBox chkRev{*this, "chkRev", "&Reverse Entry"};
    Grid grdData{*this, "grdData"};
    Button cmdRev{*this, "cmdRev", "&Mgt"};
    Button cmdPrint{*this, "cmdPrint", "&Print Receipt"};
    Button cmdAdd{*this, "cmdAdd", "&Add"};
    Button cmdCancel{*this, "cmdCancel", "&Cancel"};
    Button CancelButton{*this, "CancelButton", "E&xit"};
    Button OKButton{*this, "OKButton", "&Save"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return OKButton.isEnabled() ? &OKButton : nullptr; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void connectHandlers();
    void cmdInv_Click();
    void cboVehNo_Click();
    void loadBillFigures();
    void clearBill();
    void loadGrid(bool all);
    void chkRev_Click();
    void cmdAdd_Click();
    void cmdCancel_Click();
    void cmdPrint_Click();
    void cmdRev_Click();
    bool mayReverse();
    void fillReversal();
    void resetFields();
    void setEntry(bool entering); ///< enables the fields and Save, or Add

    // Saving (frmReceiptTempSave.cpp).
    void OKButton_Click();
    bool checkFields();
    bool isCustomerPicked() const;
    bool save(); ///< false: no number could be formed, and nothing was saved
    void afterSave();
    void writePayment(Connection& connection, const QString& receiptNo, double amount);
    void settleBill(Connection& connection, double amount);

    QString m_billNo; ///< of the bill in hand; empty: none. Other screens change session.gConsultID meanwhile
    QString m_pno;
    QString m_reversedNo; ///< the receipt under reversal
    bool m_reversal = false;
    FormedNumber m_receipt; ///< of the save under way
};

} // namespace orvane
