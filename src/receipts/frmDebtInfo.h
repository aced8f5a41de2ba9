#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Debt Info": the running account of a patient. Opened for the patient in hand (session.sBillPatName set) it shows
/// his account in mode "AUTO"; opened from the menu, in mode "SEARCH", it finds patients first.
class frmDebtInfo : public Screen {
public:
    explicit frmDebtInfo(Program& program);

    ComboBox cboGroup{*this, "cboGroup", ComboBox::ListOnly};
    TextBox txtName{*this, "txtName"};
    Button OKButton{*this, "OKButton", "&OK"};
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdList{*this, "cmdList", "&Get Info"};
    CheckBox chkAll{*this, "chkAll", "Show &All"};
    Label Label5{*this, "Label5", "Debt Information"};
    Grid grdData{*this, "grdData"};
    CheckBox chkDebt{*this, "chkDebt", "Order by &Largest Amount"};
    Button cmdRpt{*this, "cmdRpt", "&View Debt Summary for all Patients"};
    Button cmdDebtOnly{*this, "cmdDebtOnly", "View &Debt ONLY"};
    Button cmdExport{*this, "cmdExport", "&Export to Excel"};
    Button CancelButton{*this, "CancelButton", "&Close"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void search();
    void grdData_DblClick();
    void cmdList_Click();
    bool showsPatients() const;
    void loadStatement();
    void showSummary(const Sql& sql);
    void cmdRpt_Click();
    void cmdDebtOnly_Click();
    void cmdExport_Click();
    Sql autoStatement() const;
    Sql searchStatement() const;

    QString m_pno; ///< whose statement is shown
};

} // namespace orvane
