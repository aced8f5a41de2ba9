#pragma once

#include "books/StockEntry.h"
#include "session/Screen.h"

namespace orvane {

/// "Retail Stock Entry [In Flow]": goods that come into the retail store raise its stock and the drug's base cost; an
/// entry that was wrong is changed, never deleted.
class frmStockEntry : public Screen {
public:
    explicit frmStockEntry(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OKButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    /// The entry under edit, as it was read.
    struct Edited {
        qlonglong entryID;
        double qty;
    };

    void fillLists();
    void fillItems();
    void cboVehNo_Click();
    void showItem();
    void showEntries();
    void txtQty_LostFocus();
    void lblREtail_Change();
    void clearFields();
    void beginEntry();
    void cmdEdit_Click();
    void cmdDel_Click();
    void cmdRefresh_Click();
    bool isComplete();
    void OKButton_Click();
    void showSaved();
    StockEntry entered();

    using Me = frmStockEntry;
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::ListOnly, &Me::cboVehNo_Click};
    Label lblName{*this, "lblName"};
    Label lblStock{*this, "lblStock"};
    Label lblUnit{*this, "lblUnit"};
    Label lblCost{*this, "lblCost"};
    Label lblREtail{*this, "lblREtail", {}, &Me::lblREtail_Change};
    Label lblWord{*this, "lblWord"};
    TextBox txtQty{*this, "txtFields(0)"};
    ComboBox cboDriver{*this, "cboDriver", ComboBox::ListOnly};
    ComboBox cboCust{*this, "cboCust", ComboBox::ListOnly};
    DatePicker dtDate{*this, "dtDate"};
    DatePicker dtInvDate{*this, "dtInvDate"};
    TextBox txtBatch{*this, "txtFields(2)"};
    TextBox txtExpiry{*this, "txtFields(3)"};
    TextBox txtComments{*this, "txtFields(1)"};
    Grid grdData{*this, "grdData", &Me::cmdEdit_Click};
    Button cmdAdd{*this, "cmdAdd", "&Add", &Me::beginEntry};
    Button cmdEdit{*this, "cmdEdit", "&Edit", &Me::cmdEdit_Click};
    Button cmdDel{*this, "cmdDel", "&Delete", &Me::cmdDel_Click};
    Button cmdRefresh{*this, "cmdRefresh", "&Refresh", &Me::cmdRefresh_Click};
    Button cmdCancel{*this, "cmdCancel", "Ca&ncel", &Me::beginEntry};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button OKButton{*this, "OKButton", "&Save", &Me::OKButton_Click};

    std::optional<Edited> m_edited; ///< none: a new entry
};

} // namespace orvane
