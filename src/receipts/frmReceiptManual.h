#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Entries from Manual Receipt": enters afterwards a receipt that was written by hand. The cashier states the amount
/// billed too, so the bill is made or enlarged, and the number is the paper's.
class frmReceiptManual : public Screen {
public:
    explicit frmReceiptManual(Program& program);

    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdList{*this, "cmdList", "Get Patient &List"};
    ComboBox cboVehNo{*this, "cboVehNo"};
    Label lblBill{*this, "lblBill"};
    Label lblCoy{*this, "lblCoy"};
    Label lblDate{*this, "lblDate"};
    TextBox txtRct{*this, "txtRct"};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboCat{*this, "cboCat"};
    ComboBox cboReceived{*this, "cboReceived"};
    ComboBox cboPay{*this, "cboPay"};
    ComboBox cboClinic{*this, "cboClinic"};
    TextBox txtBill{*this, "txtBill"};
    TextBox txtDebt{*this, "txtDebt"};
    TextBox txtEmp{*this, "txtEmp"};
    TextBox txtHt{*this, "txtHt"};
    TextBox txtDuty{*this, "txtDuty"};
    Grid grdData{*this, "grdData"};
    Label lblTotal{*this, "lblTotal"};
    Button cmdRefresh{*this, "cmdRefresh", "Refresh &Grid"};
    Button cmdPrint{*this, "cmdPrint", "&Print Receipt"};
    Button cmdAdd{*this, "cmdAdd", "&Add"};
    Button CancelButton{*this, "CancelButton", "E&xit"};
    Button OKButton{*this, "OKButton", "&Save"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return OKButton.isEnabled() ? &OKButton : nullptr; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void connectHandlers();
    void loadLists();
    void listVisits(const Sql& sql);
    void cmdList_Click();
    void cmdAdd_Click();
    void cboVehNo_Click();
    void workOutDue();
    void refreshGrid();
    void cmdPrint_Click();
    void OKButton_Click();
    bool checkFields();
    bool save();
    void afterSave();
    /// Adds the bill or enlarges it; all in naira. Gives the bill's new total.
    double writeBill(Recordset& bill, double addedBill, double addedPayment);
    void writePayment(Connection& connection, double billed, double paid);
    void resetFields();
    void clearPatient();
    void setEntry(bool entering);

    QString m_pno;
};

} // namespace orvane
