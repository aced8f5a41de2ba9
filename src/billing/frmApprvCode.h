#pragma once

#include "session/Screen.h"

namespace orvane {

/// "HMO/NHIS": records the codes by which a scheme approves a treatment.
class frmApprvCode : public Screen {
public:
    explicit frmApprvCode(Program& program);

    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdInv{*this, "cmdInv", "&Get Patients"};
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::ListOnly};
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
    Button cmdEdit{*this, "cmdEdit", "&Edit"};
    Button cmdDel{*this, "cmdDel", "&Delete"};
    Button cmdCancel{*this, "cmdCancel", "C&lear"};
    Button OKButton{*this, "OKButton", "&Save"};
    Button CancelButton{*this, "CancelButton", "&Close"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cmdInv_Click();
    void cboVehNo_Click();
    void fillGrid();
    void OKButton_Click();
    void save();
    void cmdEdit_Click();
    void cmdDel_Click();
    void clearCode();
    void resetFields();

    QString m_consultID; ///< the visit in hand; empty without one
    QString m_patient;
    bool bEditing = false;
};

} // namespace orvane
