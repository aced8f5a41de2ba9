#pragma once

#include "receipts/ReceiptNumber.h"

namespace orvane {

/// "Advance Payment / Deposit": takes money before any bill exists; it opens the Billing row and stands on the running
/// account.
class frmReceiptDeposit : public Screen {
public:
    explicit frmReceiptDeposit(Program& program);

    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdInv{*this, "cmdInv", "&Get Patients"};
    ComboBox cboPay{*this, "cboPay"};
    ComboBox cboVehNo{*this, "cboVehNo"};
    Label Label5{*this, "Label5"};
    Label lblRct{*this, "lblRct"};
    Label lblBill{*this, "lblBill"};
    Label lblClinic2{*this, "lblClinic2"};
    Label lblAdm{*this, "lblAdm"};
    Label lblBF{*this, "lblBF"};
    Label lblAmt{*this, "lblAmt"};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboClinic{*this, "cboClinic"};
    ComboBox cboPayFor{*this, "cboPayFor"};
    TextBox txtDue{*this, "txtDue"};
    TextBox txtHt{*this, "txtHt"};
    TextBox txtDuty{*this, "txtDuty"};
    TextBox txtDiag{*this, "txtDiag"};
    Button cmdPrint{*this, "cmdPrint", "&Refresh"};
    Button cmdAdd{*this, "cmdAdd", "&Add"};
    Button cmdCancel{*this, "cmdCancel", "&Cancel"};
    Button CancelButton{*this, "CancelButton", "E&xit"};
    Button OKButton{*this, "OKButton", "&Save"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return OKButton.isEnabled() ? &OKButton : nullptr; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cmdInv_Click();
    void cmdAdd_Click();
    void cmdCancel_Click();
    void cboVehNo_Click();
    void cboClinic_Click();
    bool billExists(Connection& connection) const;
    void sendToReceiptEntry();
    void clearPatient();
    QString nextReceiptNumber(Connection& connection);
    void loadAccount(Connection& connection);
    void showAdmission(Connection& connection);
    void OKButton_Click();
    double receiptAmount() const;
    bool checkFields();
    bool save(); ///< false: the bill exists or no number could be formed, and nothing was saved
    void afterSave();
    void writeBill(Connection& connection);
    void writePayment(Connection& connection, const QString& receiptNo);
    void resetFields();
    void setEntry(bool entering);

    QString m_pno;
    QString m_clientID;
    QString m_clinicID;
    double m_debtBF = 0;       ///< naira, minus is owed
    bool m_billExists = false; ///< why the save under way was refused
    ReceiptNumber m_receipt;   ///< of the save under way
};

} // namespace orvane
