#pragma once

#include "books/ClientMaster.h"
#include "forms/MasterButtons.h"
#include "session/AccountPicker.h"

namespace orvane {

/// "Client Information": the companies, HMOs and schemes whose patients are billed on account.
class frmRetainership : public Screen {
public:
    explicit frmRetainership(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return master.isEntering() ? &master.OKButton : nullptr; }
    Button* cancelButton() override { return &master.CancelButton; }

private:
    void fillGrid();
    void txtSearch_Change();
    void cboClient_Click();
    QString accountOf(const QString& retainID);
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDel_Click();
    void cmdRefresh_Click();
    void cmdCancel_Click();
    void OKButton_Click();
    bool isComplete();
    ClientEntry entered() const;
    void afterSave(const QString& message, const QString& action);
    void clearFields();
    void openEntry(bool entering); ///< fields and buttons: an entry, or the list alone

    using Me = frmRetainership;
    TextBox txtSearch{*this, "txtSearch", &Me::txtSearch_Change};
    Grid grdData{*this, "grdData", &Me::cmdEdit_Click};
    TextBox txtName{*this, "txtName"};
    TextBox txtContact{*this, "txtContact"};
    TextBox txtPhone{*this, "txtPhone"};
    TextBox txtAddress{*this, "txtAddress"};
    TextBox txtEmail{*this, "txtEmail"};
    ComboBox cboClient{*this, "cboClient", ComboBox::ListOnly, &Me::cboClient_Click};
    ComboBox cboYes{*this, "cboYes", ComboBox::ListOnly};
    ComboBox cboNum{*this, "cboNum", ComboBox::ListOnly};
    AccountPicker account{*this, program};
    MasterButtons master{*this,
                         &Me::cmdAdd_Click,
                         &Me::cmdEdit_Click,
                         &Me::cmdDel_Click,
                         &Me::cmdRefresh_Click,
                         &Me::cmdCancel_Click,
                         &Me::OKButton_Click};

    bool bEditing = false;
    QString sRetainID;   ///< of the client under edit
    QString sClientType; ///< picked last
};

} // namespace orvane
