#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Debt Info": the running account of a patient. Opened with session.sDebtMode "AUTO", which is taken once, it shows
/// the account of the patient in hand; else, in mode "SEARCH", it finds patients first.
class frmDebtInfo : public Screen {
public:
    explicit frmDebtInfo(Program& program);

    Layout layout() const override;
    void Form_Load() override;
    void Form_Activate() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    void showPatientInHand();
    void beginSearch();
    void search();
    void showPatients(const Sql& sql);
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

    using Me = frmDebtInfo;
    ComboBox cboGroup{*this, "cboGroup", ComboBox::ListOnly};
    TextBox txtName{*this, "txtName"};
    Button OKButton{*this, "OKButton", "&OK", &Me::search};
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdList{*this, "cmdList", "&Get Info", &Me::cmdList_Click};
    CheckBox chkAll{*this, "chkAll", "Show &All"};
    Label Label5{*this, "Label5", "Debt Information"};
    Grid grdData{*this, "grdData", &Me::grdData_DblClick};
    CheckBox chkDebt{*this, "chkDebt", "Order by &Largest Amount"};
    Button cmdRpt{*this, "cmdRpt", "&View Debt Summary for all Patients", &Me::cmdRpt_Click};
    Button cmdDebtOnly{*this, "cmdDebtOnly", "View &Debt ONLY", &Me::cmdDebtOnly_Click};
    Button cmdExport{*this, "cmdExport", "&Export to Excel", &Me::cmdExport_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};

    bool m_isAuto = false; ///< the mode; false: "SEARCH"
    QString m_pno;         ///< whose statement is shown
};

} // namespace orvane
