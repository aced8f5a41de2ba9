#pragma once

#include "books/RevenueType.h"
#include "forms/MasterButtons.h"
#include "session/AccountPicker.h"

namespace orvane {

/// "Revenue Types": the headings of income, each with its account in the ledger.
class frmRevCat : public Screen {
public:
    explicit frmRevCat(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return master.isEntering() ? &master.OKButton : nullptr; }
    Button* cancelButton() override { return &master.CancelButton; }

private:
    void fillGrid();
    void fillCategories();
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDel_Click();
    void cmdRefresh_Click();
    void cmdCancel_Click();
    void OKButton_Click();
    bool isComplete();
    RevenueType entered() const;
    void openEntry(bool entering); ///< fields and buttons: an entry, or the list alone

    using Me = frmRevCat;
    Grid grdData{*this, "grdData", &Me::cmdEdit_Click};
    TextBox txtNAme{*this, "txtNAme"};
    ComboBox cboVehNo{*this, "cboVehNo"};
    AccountPicker account{*this, program};
    ComboBox cboYes{*this, "cboYes", ComboBox::ListOnly};
    MasterButtons master{*this,
                         &Me::cmdAdd_Click,
                         &Me::cmdEdit_Click,
                         &Me::cmdDel_Click,
                         &Me::cmdRefresh_Click,
                         &Me::cmdCancel_Click,
                         &Me::OKButton_Click};

    bool bEditing = false;
    QString sOldName; ///< of the type under edit
};

} // namespace orvane
