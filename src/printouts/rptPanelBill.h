#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Print Bill": one bill at a time, line by line or by charge heads. Opened for a patient (session.sPrintBillNo) it
/// offers his bills, else those of some days, of all payers or one.
class rptPanelBill : public Screen {
public:
    explicit rptPanelBill(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    void cmdInv_Click();
    void OKButton_Click();
    void cmdHeads_Click();
    void listBills(const Sql& which);
    std::optional<QString> pickedBill();

    using Me = rptPanelBill;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    ComboBox cboClient{*this, "cboClient", ComboBox::ListOnly};
    Button cmdInv{*this, "cmdInv", "&Get Patient List", &Me::cmdInv_Click};
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::ListOnly};
    Button CancelButton{*this, "CancelButton", "E&xit", &Me::unload};
    Button cmdHeads{*this, "cmdHeads", "By Charge &Heads", &Me::cmdHeads_Click};
    Button OKButton{*this, "OKButton", "&Display Bill", &Me::OKButton_Click};
};

} // namespace orvane
