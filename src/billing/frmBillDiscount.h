#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Discounts": adds to a saved bill a single line, a further charge or a discount, and moves the Billing row with it.
/// The patient's running account keeps the charge as it was.
class frmBillDiscount : public Screen {
public:
    explicit frmBillDiscount(Program& program);

    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdInv{*this, "cmdInv", "&Get Patients"};
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::ListOnly};
    Label Label5{*this, "Label5"};
    Label lblBill{*this, "lblBill"};
    Label lblAmt{*this, "lblAmt"};
    TextBox txtDue{*this, "txtDue"};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboClinic{*this, "cboClinic", ComboBox::ListOnly};
    ComboBox cboCat{*this, "cboCat"};
    TextBox txtHt{*this, "txtHt"};
    ComboBox cboPay{*this, "cboPay", ComboBox::ListOnly};
    Button cmdCancel{*this, "cmdCancel", "C&lear"};
    Button OKButton{*this, "OKButton", "&Save"};
    Button CancelButton{*this, "CancelButton", "&Close"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cboClinic_Click();
    void cmdInv_Click();
    void cboVehNo_Click();
    void OKButton_Click();
    bool checkFields();
    bool save(double amount); ///< false: a batch holds the bill
    void addLine(Connection& connection, double amount);
    void addDiscount(Connection& connection, double amount);
    void moveBill(Connection& connection, double amount);
    void clearFields();
    bool isDiscount() const { return cboClinic.text() == QLatin1String("DISCOUNT"); }

    QString m_pno;
};

} // namespace orvane
