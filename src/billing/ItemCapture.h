#pragma once

#include "books/ItemEntry.h"
#include "books/Tariff.h"
#include "session/Screen.h"

namespace orvane {

/// Captures the items of one visit (session.gConsultID) beside the doctor's treatment plan, prices them by the tariff
/// and saves the new lines.
class ItemCapture : public Screen {
public:
    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdAdd; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    /// What the screens that derive from it differ in.
    struct Kind {
        const TariffPolicy& tariff;
        bool asksRevenueType; ///< and then an item is not priced before a patient is loaded, and the private tariff is
                              ///< announced in a box too, not only in lblInfo
        QString dateRefusal;  ///< what a save without a date is answered with
        QString action;       ///< name of the save in SavedActions
        Given<Saved> (*save)(Books&, const EnteredItems&);
    };
    ItemCapture(Program& owner, const QString& name, const QString& caption, const Kind& kind);

private:
    enum Column {
        Item,
        Category,
        Price,
        Units,
        SubTotal,
        Usage,
        Capitated,
        EntryType,
        Status,
        BillTo,
        CoyName,
        RevenueType
    };

    // The visit and its items so far, and the save (ItemCapture.cpp).
    Layout entryLayout() const;
    void fillRevenueTypes();
    void loadPatient();
    void showPatient(const Recordset& visit);
    void fillBillTo(Connection& connection);
    void preProcessing();
    void prevEntries(Connection& connection);
    void showFigures();
    void rereadEntries();
    void cmdCancel_Click();
    void cmdUpd_Click();
    bool isBillOpen();
    bool areLinesReady();
    void OKButton_Click();
    EnteredItems entered() const; ///< the visit with its new lines
    QString cellText(int row, Column column) const { return OrderGridDrug.cell(row, column); }
    double amountIn(int row, Column column) const; ///< naira, or a quantity
    TariffVisit visit() const;

    // The entry line and the grid (ItemCaptureEntry.cpp).
    void cboCat_Click();
    void onItemPicked();
    void takeTariff();
    void showTariff(const TariffAnswer& answer);
    void showRevenueType(const QString& revType);
    void resetTariffFields();
    void cboPat_Click();
    void priceOrQuantity_Change();
    void txtSub_Change();
    void cmdAdd_Click();
    void rememberChoice();
    bool isLineComplete();
    void writeLine();
    void resetEntryLine();
    void OrderGridDrug_DblClick();
    void calcTotal();

protected:
    Label lblClinic{*this, "lblClinic"};
    Label lblNo{*this, "lblNo"};
    Label lblBill{*this, "lblBill"};
    Label lblAge{*this, "lblAge"};
    Label lblPhy{*this, "lblPhy"};
    Label lblCoy{*this, "lblCoy"};
    Label lblClient{*this, "lblClient"};
    Label lblFFS{*this, "lblFFS"};
    ComboBox cboFFS{*this, "cboFFS", ComboBox::ListOnly};
    Button cmdUpd{*this, "cmdUpd", "OK", &ItemCapture::cmdUpd_Click};
    TextBox txtPresc{*this, "txtPresc"};
    Frame fraDrug{*this, "fraDrug"};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboCat{*this, "cboCat", ComboBox::ListOnly, &ItemCapture::cboCat_Click};
    ComboBox cboPat{*this, "cboPat", ComboBox::ListOnly, &ItemCapture::cboPat_Click};
    ComboBox cboDrug{*this, "cboDrug", ComboBox::FreeText, &ItemCapture::onItemPicked};
    std::optional<ComboBox> cboRev; ///< none on a screen without revenue types
    ComboBox cboFFS2{*this, "cboFFS2", ComboBox::ListOnly};
    TextBox txtPrice{*this, "txtPrice", &ItemCapture::priceOrQuantity_Change};
    TextBox txtQty{*this, "txtQty", &ItemCapture::priceOrQuantity_Change};
    TextBox txtSub{*this, "txtSub", &ItemCapture::txtSub_Change};
    Label lblStock{*this, "lblStock"};
    Label lblCat{*this, "lblCat"};
    Label lblInfo{*this, "lblInfo"};
    Button cmdAdd{*this, "cmdAdd", "Add to Grid", &ItemCapture::cmdAdd_Click};
    EntryGrid OrderGridDrug{*this, "OrderGridDrug", &ItemCapture::OrderGridDrug_DblClick};
    Label Label5{*this, "Label5"};
    Label lblGen{*this, "lblGen"};
    Label lblBilled{*this, "lblBilled"};
    Label lblPaid{*this, "lblPaid"};
    Label lblTotal{*this, "lblTotal", {}, &ItemCapture::calcTotal};
    Button cmdRefresh{*this, "cmdRefresh", "Refresh", &ItemCapture::rereadEntries};
    Button cmdCancel{*this, "cmdCancel", "Cancel", &ItemCapture::cmdCancel_Click};
    Button CancelButton{*this, "CancelButton", "Close", &ItemCapture::unload};
    Button OKButton{*this, "OKButton", "Save", &ItemCapture::OKButton_Click};

private:
    Kind m_kind;
    QString sRetainID; ///< the visit's client
    QString sRetainCode;
    double total = 0;   ///< naira, of the lines not yet saved
    double dMarkUp = 0; ///< pvalue of the client category; no item is priced from it
};

} // namespace orvane
