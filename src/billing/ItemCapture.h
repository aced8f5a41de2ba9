#pragma once

#include "billing/TariffEntry.h"
#include "session/Screen.h"

namespace orvane {

/// Captures the items of one visit (session.gConsultID) beside the doctor's treatment plan, prices them by the tariff
/// and saves the new lines. The screens that derive from it say how a line is saved.
class ItemCapture : public Screen {
public:
    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdAdd; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    /// `dateRefusal`: what a save without a date is answered with.
    ItemCapture(Program& owner, const QString& name, const QString& caption, const TariffPolicy& tariff,
                const QString& dateRefusal);

    /// Writes one new line of the grid, inside the save's transaction.
    virtual void saveLine(Connection& connection, int row) = 0;

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

    void addRevenueTypes(); ///< for the constructor of a screen that asks for them

    // What saveLine is made of (ItemCaptureSave.cpp).
    void setItemColumns(Recordset& item, int row) const;
    void setVisitColumns(Recordset& item, int row) const;
    void setLineColumns(Recordset& line, int row, qlonglong sno) const;
    qlonglong addedItem(Connection& connection, int row) const;
    void charge(Connection& connection, int row, const QString& remarks);
    void audit(const QString& action, int row);
    QString cellText(int row, Column column) const { return OrderGridDrug.cell(row, column); }

private:
    // The visit and its items so far (ItemCapture.cpp).
    Layout entryLayout() const;
    void fillRevenueTypes();
    void loadPatient();
    void showPatient(const Recordset& visit);
    void fillBillTo(Connection& connection);
    void preProcessing(Connection& connection);
    void prevEntries(Connection& connection);
    void rereadEntries();
    void cmdUpd_Click();
    TariffVisit visit() const;

    // The entry line and the grid (ItemCaptureEntry.cpp).
    void cboCat_Click();
    void cboDrug_Click();
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
    TariffFields tariffFields();

    // Saving (ItemCaptureSave.cpp).
    void OKButton_Click();
    QString saveLines();
    void refreshBill(Connection& connection);
    double amountIn(int row, Column column) const; ///< naira, or a quantity

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
    Button cmdUpd{*this, "cmdUpd", "OK"};
    TextBox txtPresc{*this, "txtPresc"};
    Frame fraDrug{*this, "fraDrug"};
    DatePicker dtDate{*this, "dtDate"};
    ComboBox cboCat{*this, "cboCat", ComboBox::ListOnly};
    ComboBox cboPat{*this, "cboPat", ComboBox::ListOnly};
    ComboBox cboDrug{*this, "cboDrug"};
    std::optional<ComboBox> cboRev; ///< none on a screen without revenue types
    ComboBox cboFFS2{*this, "cboFFS2", ComboBox::ListOnly};
    TextBox txtPrice{*this, "txtPrice"};
    TextBox txtQty{*this, "txtQty"};
    TextBox txtSub{*this, "txtSub"};
    Label lblStock{*this, "lblStock"};
    Label lblCat{*this, "lblCat"};
    Label lblInfo{*this, "lblInfo"};
    Button cmdAdd{*this, "cmdAdd", "Add to Grid"};
    EntryGrid OrderGridDrug{*this, "OrderGridDrug"};
    Label Label5{*this, "Label5"};
    Label lblGen{*this, "lblGen"};
    Label lblBilled{*this, "lblBilled"};
    Label lblPaid{*this, "lblPaid"};
    Label lblTotal{*this, "lblTotal"};
    Button cmdRefresh{*this, "cmdRefresh", "Refresh"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
    Button CancelButton{*this, "CancelButton", "Close"};
    Button OKButton{*this, "OKButton", "Save"};

private:
    const TariffPolicy& m_tariff;
    QString m_dateRefusal;
    QString sRetainID; ///< the visit's client
    QString sRetainCode;
    double total = 0;   ///< naira, of the lines not yet saved
    double dMarkUp = 0; ///< pvalue of the client category; no item is priced from it
};

} // namespace orvane
