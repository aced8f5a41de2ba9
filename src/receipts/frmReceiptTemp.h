#pragma once

#include "forms/RangePicker.h"
#include "session/Screen.h"

namespace orvane {

/// "Receipt Entry": takes money from a private patient against an existing bill and issues a receipt; reverses a
/// receipt.
class frmReceiptTemp : public Screen {
public:
    explicit frmReceiptTemp(Program& program);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return OKButton.isEnabled() ? &OKButton : nullptr; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    void cmdInv_Click();
    void listBills(const Sql& which);
    void cboVehNo_Click();
    void loadBill(const QString& billNo);
    double refreshPaid(const QString& billNo);
    void clearBill();
    void loadGrid(const Sql& which);
    void loadToday();
    void chkRev_Click();
    void txtHt_Change();
    void cmdAdd_Click();
    void cmdCancel_Click();
    void cmdPrint_Click();
    void cmdRev_Click();
    bool mayReverse();
    void fillReversal();
    void resetFields();
    void setEntry(bool entering); ///< enables the fields and Save, or Add
    bool isReversal() const { return !m_reversedNo.isEmpty(); }
    bool isComplete();
    void OKButton_Click();
    Given<QString> saveEntry(Books& books) const;
    void showSaved(const QString& receiptNo);
    void refuse(Refusal refusal);

    using Me = frmReceiptTemp;
    RangePicker bills{*this,
                      {"Attendance Date between", "cmdInv", "&Get Patients"},
                      &Me::cmdInv_Click,
                      ComboBox::FreeText,
                      &Me::cboVehNo_Click};
    Label Label5{*this, "Label5", "Receipt Information"};
    TextBox txtBill{*this, "txtBill"};
    Label lblDate{*this, "lblDate"};
    Label lblClinic{*this, "lblClinic", "Clinic Type"};
    Label lblClinic2{*this, "lblClinic2"};
    Label lblRct{*this, "lblRct"};
    Label lblCurr{*this, "lblCurr"};
    Label lblDep{*this, "lblDep"};
    TextBox txtEmp{*this, "txtEmp"};
    TextBox txtHt{*this, "txtHt", &Me::txtHt_Change};
    Label lblDuty{*this, "lblDuty", "Amount Paid in Words"};
    TextBox txtDuty{*this, "txtDuty"};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboCat{*this, "cboCat"};
    ComboBox cboPay{*this, "cboPay"};
    TextBox txtDiag{*this, "txtDiag"};
    CheckBox chkRev{*this, "chkRev", "&Reverse Entry", &Me::chkRev_Click};
    Grid grdData{*this, "grdData"};
    Button cmdRev{*this, "cmdRev", "&Mgt", &Me::cmdRev_Click};
    Button cmdPrint{*this, "cmdPrint", "&Print Receipt", &Me::cmdPrint_Click};
    Button cmdAdd{*this, "cmdAdd", "&Add", &Me::cmdAdd_Click};
    Button cmdCancel{*this, "cmdCancel", "&Cancel", &Me::cmdCancel_Click};
    Button CancelButton{*this, "CancelButton", "E&xit", &Me::unload};
    Button OKButton{*this, "OKButton", "&Save", &Me::OKButton_Click};

    QString m_billNo; ///< of the bill in hand; empty: none. Other screens change session.gConsultID meanwhile
    QString m_pno;
    QString m_reversedNo; ///< the receipt under reversal; empty: a fresh receipt is entered
};

} // namespace orvane
