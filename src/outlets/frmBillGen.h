#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Income and Collated Bill": the bills of some days with the money that came in, as they stand now, and the items of
/// one of them. Changes nothing.
class frmBillGen : public Screen {
public:
    explicit frmBillGen(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdLoad; }
    Button* cancelButton() override { return &CancelButton; }

private:
    bool hasDates();
    void cmdLoad_Click();
    void tmrLoad_Timer();
    void load();
    void showIncome(Connection& connection);
    void fillBills(Connection& connection);
    void cboVehNo_Click();
    void showItems();

    using Me = frmBillGen;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdLoad{*this, "cmdLoad", "&Display", &Me::cmdLoad_Click};
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::ListOnly, &Me::cboVehNo_Click};
    Button cmdShow{*this, "cmdShow", "Show &Bill", &Me::showItems};
    Label lblCount{*this, "lblCount"};
    Label lblAmt{*this, "lblAmt"};
    Grid grdData{*this, "grdData"};
    Label lblHead{*this, "lblHead"};
    Grid grdData2{*this, "grdData2"};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};
    Timer tmrLoad{*this, "tmrLoad", 30000, true, &Me::tmrLoad_Timer};
};

} // namespace orvane
