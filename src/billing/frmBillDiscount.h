#pragma once

#include "books/Discount.h"
#include "forms/RangePicker.h"
#include "session/ListedVisit.h"
#include "session/Screen.h"

namespace orvane {

/// "Discounts": adds to a saved bill a single line, a further charge or a discount.
class frmBillDiscount : public Screen {
public:
    explicit frmBillDiscount(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    void listBills(const Sql& which);
    void cboClinic_Click();
    void cmdInv_Click();
    void cboVehNo_Click();
    void OKButton_Click();
    bool isComplete();
    bool isBillOpen();
    BillDiscount entered() const;
    double amount() const; ///< naira in whole kobo, 0 where the field holds no number
    void clearFields();

    using Me = frmBillDiscount;
    RangePicker bills{*this,
                      {"Bills between", "cmdInv", "&Get Patients"},
                      &Me::cmdInv_Click,
                      ComboBox::ListOnly,
                      &Me::cboVehNo_Click};
    Label Label5{*this, "Label5"};
    Label lblBill{*this, "lblBill"};
    Label lblAmt{*this, "lblAmt"};
    TextBox txtDue{*this, "txtDue"};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboClinic{*this, "cboClinic", ComboBox::ListOnly, &Me::cboClinic_Click};
    ComboBox cboCat{*this, "cboCat"};
    TextBox txtHt{*this, "txtHt"};
    ComboBox cboPay{*this, "cboPay", ComboBox::ListOnly};
    Button cmdCancel{*this, "cmdCancel", "C&lear", &Me::clearFields};
    Button OKButton{*this, "OKButton", "&Save", &Me::OKButton_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};

    ListedVisit m_bill; ///< in hand; empty without one
};

} // namespace orvane
