#pragma once

#include "books/ApprovalCode.h"
#include "forms/RangePicker.h"
#include "session/ListedVisit.h"
#include "session/Screen.h"

namespace orvane {

/// "HMO/NHIS": records the codes by which a scheme approves a treatment.
class frmApprvCode : public Screen {
public:
    explicit frmApprvCode(Program& owner) : Screen(owner, "frmApprvCode", "HMO/NHIS") {}

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    void listVisits(const Sql& which);
    void cmdInv_Click();
    void cboVehNo_Click();
    void showVisit(const Recordset& visit);
    void fillGrid();
    bool isComplete();
    void OKButton_Click();
    void afterSave();
    void cmdEdit_Click();
    void cmdDel_Click();
    void clearCode();
    void resetFields();

    using Me = frmApprvCode;
    RangePicker visits{*this,
                       {"Attendance between", "cmdInv", "&Get Patients"},
                       &Me::cmdInv_Click,
                       ComboBox::ListOnly,
                       &Me::cboVehNo_Click};
    Label lblDetails{*this, "lblDetails"};
    Label lblCoy{*this, "lblCoy"};
    Label lblBill{*this, "lblBill"};
    Label lblNo{*this, "lblNo"};
    Label lblSex{*this, "lblSex"};
    Label lblAge{*this, "lblAge"};
    Label lblRef{*this, "lblRef"};
    DatePicker dtDate{*this, "dtDate"};
    TextBox txtApprv{*this, "txtApprv"};
    ComboBox cboBill{*this, "cboBill", ComboBox::ListOnly};
    TextBox txtRem{*this, "txtRem"};
    Grid grdData{*this, "grdData"};
    Button cmdEdit{*this, "cmdEdit", "&Edit", &Me::cmdEdit_Click};
    Button cmdDel{*this, "cmdDel", "&Delete", &Me::cmdDel_Click};
    Button cmdCancel{*this, "cmdCancel", "C&lear", &Me::resetFields};
    Button OKButton{*this, "OKButton", "&Save", &Me::OKButton_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};

    ListedVisit m_visit; ///< in hand; empty without one
    bool bEditing = false;
};

} // namespace orvane
