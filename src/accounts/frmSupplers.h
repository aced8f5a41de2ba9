#pragma once

#include "books/Supplier.h"
#include "forms/MasterButtons.h"
#include "session/AccountPicker.h"

namespace orvane {

/// "Creditors": the suppliers, contractors and consultants that the hospital owes to.
class frmSupplers : public Screen {
public:
    explicit frmSupplers(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return master.isEntering() ? &master.OKButton : nullptr; }
    Button* cancelButton() override { return &master.CancelButton; }

private:
    void fillCategories();
    void fillGrid();
    void txtSearch_Change();
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDel_Click();
    void cmdRefresh_Click();
    void cmdCancel_Click();
    void OKButton_Click();
    bool isComplete();
    Supplier entered() const;
    void afterSave(const QString& message);
    void clearFields();
    void openEntry(bool entering); ///< fields and buttons: an entry, or the list alone

    using Me = frmSupplers;
    Label lblHead{*this, "lblHead", "Creditors (Suppliers/Contractors/Consultants)"};
    TextBox txtSearch{*this, "txtSearch", &Me::txtSearch_Change};
    Grid grdData{*this, "grdData", &Me::cmdEdit_Click};
    TextBox txtName{*this, "txtName"};
    TextBox txtContact{*this, "txtContact"};
    TextBox txtAddress{*this, "txtAddress"};
    TextBox txtEmail{*this, "txtEmail"};
    ComboBox cboClient{*this, "cboClient", ComboBox::ListOnly};
    TextBox txtPhone{*this, "txtPhone"};
    AccountPicker account{*this, program};
    MasterButtons master{*this,
                         &Me::cmdAdd_Click,
                         &Me::cmdEdit_Click,
                         &Me::cmdDel_Click,
                         &Me::cmdRefresh_Click,
                         &Me::cmdCancel_Click,
                         &Me::OKButton_Click};

    bool bEditing = false;
    QString sSupplierID; ///< of the creditor under edit
};

} // namespace orvane
