#pragma once

#include "books/OutletRequest.h"
#include "books/OutletTariff.h"
#include "session/Screen.h"

namespace orvane {

/// "External Patients": takes down somebody off the street and what he asks a service outlet for, for the collation of
/// his bill. An edited price or revenue type becomes that of the price list at once.
class frmInvestigatePublic : public Screen {
public:
    explicit frmInvestigatePublic(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdAdd; }
    Button* cancelButton() override { return &CancelButton; }

private:
    /// The columns of OrderGrid.
    enum Column { Item, Category, Price, Units, SubTotal, RevenueType, EntryType };

    Layout personLayout() const;
    Layout itemLayout() const;
    void fillOutlets(Connection& connection);
    void fillRevenueTypes(Connection& connection);
    void cmdNew_Click();
    void cmdRefresh_Click();
    void reset();
    void clearLines();
    QDate day() const; ///< of the visit; the workstation's where the date is empty

    // The entry line (frmInvestigatePublicItems.cpp).
    void cboCat_Click();
    void cboDrug_Click();
    void showSubTotal();
    void cmdAdd_Click();
    bool isInGrid();
    bool isLineComplete();
    bool isTariffEdited() const;
    void addLine();
    void clearItem();
    void OrderGrid_Click();
    void showTotal();
    QVector<OutletItem> entered() const;

    // Saving.
    bool isComplete();
    void OKButton_Click();
    OutletRequest request() const;
    void showSaved(const QString& number);
    void cmdBill_Click();

    using Me = frmInvestigatePublic;
    Button cmdNew{*this, "cmdNew", "Ser&vice", &Me::cmdNew_Click};
    Label lblHead{*this, "lblHead", "Services for External Patients"};
    Label lblBill{*this, "lblBill"};
    Label lblClient{*this, "lblClient"};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboRef{*this, "cboRef", ComboBox::ListOnly};
    TextBox txtLabNo{*this, "txtLabNo"};
    TextBox txtName{*this, "txtName"};
    TextBox txtFirst{*this, "txtFirst"};
    TextBox txtPhone{*this, "txtPhone"};
    ComboBox cboMat{*this, "cboMat", ComboBox::ListOnly};
    ComboBox txtSex{*this, "txtSex"};
    TextBox txtAge{*this, "txtAge"};
    TextBox txtPresc{*this, "txtPresc"};
    ComboBox cboCat{*this, "cboCat", ComboBox::ListOnly, &Me::cboCat_Click};
    ComboBox cboDrug{*this, "cboDrug", ComboBox::ListOnly, &Me::cboDrug_Click};
    Label lblCat{*this, "lblCat"};
    ComboBox cboRev{*this, "cboRev", ComboBox::ListOnly};
    TextBox txtPrice{*this, "txtPrice", &Me::showSubTotal};
    TextBox txtQty{*this, "txtQty", &Me::showSubTotal};
    Label lblSub{*this, "lblSub"};
    Button cmdAdd{*this, "cmdAdd", "&Add to Grid", &Me::cmdAdd_Click};
    EntryGrid OrderGrid{*this, "OrderGrid"};
    Label lblTotal{*this, "lblTotal"};
    Button cmdRefresh{*this, "cmdRefresh", "Re&fresh", &Me::cmdRefresh_Click};
    Button cmdBill{*this, "cmdBill", "&Bill Patient", &Me::cmdBill_Click};
    Button cmdCancel{*this, "cmdCancel", "&Cancel", &Me::reset};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};
    Button OKButton{*this, "OKButton", "&Save", &Me::OKButton_Click};

    OutletPrice m_tariff; ///< what the price list says of the item on the entry line
    QString m_saved;      ///< number of the visit that was saved last, until it is handed to the collation
};

} // namespace orvane
