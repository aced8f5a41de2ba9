#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Service/Drug Cost Extract from Billing Manual": keeps the base private cost of each drug and service. The billing
/// manual states what a client type pays; the client type's mark-up is undone to find the base. It adds no drug.
class frmDrugPrice : public Screen {
public:
    explicit frmDrugPrice(Program& program);

    TextBox txtSearch{*this, "txtSearch"};
    Grid grdData{*this, "grdData"};
    TextBox txtDrug{*this, "txtDrug"};
    TextBox txtCat{*this, "txtCat"};
    TextBox txtDosage{*this, "txtDosage"};
    ComboBox cboClient{*this, "cboClient"};
    TextBox txtCost{*this, "txtCost"};
    Label lblPrice{*this, "lblPrice"};
    Label lblWord{*this, "lblWord"};
    Button cmdEdit{*this, "cmdEdit", "&Edit"};
    Button cmdDel{*this, "cmdDel", "&Delete"};
    Button cmdRefresh{*this, "cmdRefresh", "&Refresh"};
    Button cmdLab{*this, "cmdLab", "For &Lab info"};
    Button cmdCancel{*this, "cmdCancel", "C&lear"};
    Button CancelButton{*this, "CancelButton", "&Close"};
    Button OKButton{*this, "OKButton", "&Save"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void loadGrid();
    void clearFields();
    void cmdEdit_Click();
    void cmdDel_Click();
    void cmdLab_Click();
    void OKButton_Click();
    bool txtCost_LostFocus(); ///< shows the base cost; false: the user was told why there is none
    void lblPrice_Change();
    bool checkFields();
    bool saveDrug(); ///< false: there is no drug of this name
};

} // namespace orvane
