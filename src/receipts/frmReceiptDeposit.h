#pragma once

#include "books/ReceiptNumber.h"
#include "forms/RangePicker.h"
#include "session/Screen.h"

namespace orvane {

/// "Advance Payment / Deposit": takes money before any bill exists; it opens the Billing row and stands on the running
/// account.
class frmReceiptDeposit : public Screen {
public:
    explicit frmReceiptDeposit(Program& program);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return OKButton.isEnabled() ? &OKButton : nullptr; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    void listVisits(const Sql& which);
    void cmdInv_Click();
    void cmdAdd_Click();
    void cmdCancel_Click();
    void cboVehNo_Click();
    void cboClinic_Click();
    void txtHt_Change();
    void OKButton_Click();
    void sendToReceiptEntry();
    void clearPatient();
    void loadPatient(Connection& connection);
    void loadAccount(Connection& connection);
    void showAdmission(Connection& connection);
    bool isComplete();
    Given<QString> saveEntry(Books& books) const;
    void showSaved(const QString& receiptNo);
    void refuse(Refusal refusal);
    void resetFields();
    void setEntry(bool entering);

    using Me = frmReceiptDeposit;
    RangePicker visits{*this,
                       {"Attendance between", "cmdInv", "&Get Patients"},
                       &Me::cmdInv_Click,
                       ComboBox::FreeText,
                       &Me::cboVehNo_Click};
    ComboBox cboPay{*this, "cboPay"};
    Label Label5{*this, "Label5"};
    Label lblRct{*this, "lblRct"};
    Label lblBill{*this, "lblBill"};
    Label lblClinic2{*this, "lblClinic2"};
    Label lblAdm{*this, "lblAdm"};
    Label lblBF{*this, "lblBF"};
    Label lblAmt{*this, "lblAmt"};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboClinic{*this, "cboClinic", ComboBox::FreeText, &Me::cboClinic_Click};
    ComboBox cboPayFor{*this, "cboPayFor"};
    TextBox txtDue{*this, "txtDue"};
    TextBox txtHt{*this, "txtHt", &Me::txtHt_Change};
    TextBox txtDuty{*this, "txtDuty"};
    TextBox txtDiag{*this, "txtDiag"};
    Button cmdPrint{*this, "cmdPrint", "&Refresh", &Me::cmdInv_Click};
    Button cmdAdd{*this, "cmdAdd", "&Add", &Me::cmdAdd_Click};
    Button cmdCancel{*this, "cmdCancel", "&Cancel", &Me::cmdCancel_Click};
    Button CancelButton{*this, "CancelButton", "E&xit", &Me::unload};
    Button OKButton{*this, "OKButton", "&Save", &Me::OKButton_Click};

    QString m_pno;
    QString m_clientID;
    double m_debtBF = 0; ///< naira, minus is owed
};

} // namespace orvane
