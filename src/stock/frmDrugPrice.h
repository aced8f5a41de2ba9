#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Service/Drug Cost Extract from Billing Manual": keeps the base private cost of each drug and service. The billing
/// manual states what a client type pays; the client type's mark-up is undone to find the base. It adds no drug.
class frmDrugPrice : public Screen {
public:
    explicit frmDrugPrice(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void loadGrid();
    void clearFields();
    void cmdEdit_Click();
    void cmdDel_Click();
    void cmdRefresh_Click();
    void cmdLab_Click();
    void OKButton_Click();
    void forgetPrice() { lblPrice.clear(); }
    void txtCost_LostFocus();
    bool workPrice(); ///< shows the base cost; false: the user was told why there is none
    void lblPrice_Change();
    bool isComplete();

    using Me = frmDrugPrice;
    TextBox txtSearch{*this, "txtSearch", &Me::loadGrid};
    Grid grdData{*this, "grdData"};
    TextBox txtDrug{*this, "txtDrug"};
    TextBox txtCat{*this, "txtCat"};
    TextBox txtDosage{*this, "txtDosage"};
    ComboBox cboClient{*this, "cboClient", ComboBox::FreeText, &Me::forgetPrice};
    TextBox txtCost{*this, "txtCost", &Me::forgetPrice};
    Label lblPrice{*this, "lblPrice", {}, &Me::lblPrice_Change};
    Label lblWord{*this, "lblWord"};
    Button cmdEdit{*this, "cmdEdit", "&Edit", &Me::cmdEdit_Click};
    Button cmdDel{*this, "cmdDel", "&Delete", &Me::cmdDel_Click};
    Button cmdRefresh{*this, "cmdRefresh", "&Refresh", &Me::cmdRefresh_Click};
    Button cmdLab{*this, "cmdLab", "For &Lab info", &Me::cmdLab_Click};
    Button cmdCancel{*this, "cmdCancel", "C&lear", &Me::clearFields};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button OKButton{*this, "OKButton", "&Save", &Me::OKButton_Click};
};

} // namespace orvane
