#pragma once

#include "forms/RangePicker.h"
#include "session/Screen.h"

namespace orvane {

/// "Entries from Manual Receipt": enters afterwards a receipt that was written by hand. The cashier states the amount
/// billed too, so the bill is made or enlarged, and the number is the paper's.
class frmReceiptManual : public Screen {
public:
    explicit frmReceiptManual(Program& program);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return OKButton.isEnabled() ? &OKButton : nullptr; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    void listVisits(const Sql& which);
    void loadLists();
    void cmdList_Click();
    void cmdAdd_Click();
    void cboVehNo_Click();
    void workOutDue();
    void txtHt_Change();
    void refreshGrid();
    void cmdPrint_Click();
    QString receiver() const; ///< the picked officer's number
    bool isComplete();
    bool isBillOpen();
    void OKButton_Click();
    Given<QString> saveEntry(Books& books) const;
    void showSaved(const QString& receiptNo);
    void selectNewest(const QString& receiptNo);
    void resetFields();
    void clearPatient();
    void setEntry(bool entering);

    using Me = frmReceiptManual;
    RangePicker visits{*this,
                       {"Attendance between", "cmdList", "Get Patient &List"},
                       &Me::cmdList_Click,
                       ComboBox::FreeText,
                       &Me::cboVehNo_Click};
    Label lblBill{*this, "lblBill"};
    Label lblCoy{*this, "lblCoy"};
    Label lblDate{*this, "lblDate"};
    TextBox txtRct{*this, "txtRct"};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboCat{*this, "cboCat"};
    ComboBox cboReceived{*this, "cboReceived"};
    ComboBox cboPay{*this, "cboPay"};
    ComboBox cboClinic{*this, "cboClinic"};
    TextBox txtBill{*this, "txtBill", &Me::workOutDue};
    TextBox txtDebt{*this, "txtDebt", &Me::workOutDue};
    TextBox txtEmp{*this, "txtEmp"};
    TextBox txtHt{*this, "txtHt", &Me::txtHt_Change};
    TextBox txtDuty{*this, "txtDuty"};
    Grid grdData{*this, "grdData"};
    Label lblTotal{*this, "lblTotal"};
    Button cmdRefresh{*this, "cmdRefresh", "Refresh &Grid", &Me::refreshGrid};
    Button cmdPrint{*this, "cmdPrint", "&Print Receipt", &Me::cmdPrint_Click};
    Button cmdAdd{*this, "cmdAdd", "&Add", &Me::cmdAdd_Click};
    Button CancelButton{*this, "CancelButton", "E&xit", &Me::unload};
    Button OKButton{*this, "OKButton", "&Save", &Me::OKButton_Click};

    QString m_pno;
};

} // namespace orvane
