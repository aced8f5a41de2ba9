#pragma once

#include "billing/TariffEntry.h"
#include "session/Program.h"

namespace orvane {

/// Bill generation: captures the items of one visit (session.gConsultID) beside the doctor's treatment plan, prices
/// them by the tariff and saves the new lines.
class frmBillPat : public Screen {
public:
    explicit frmBillPat(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdAdd; }
    Button* cancelButton() override { return &CancelButton; }

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

    // The visit and its items so far (frmBillPat.cpp).
    void fillRevenueTypes();
    void loadPatient();
    void showPatient(const Recordset& visit);
    void fillBillTo(Connection& connection);
    void preProcessing(Connection& connection);
    void prevEntries(Connection& connection);
    void rereadEntries();
    void cmdUpd_Click();
    TariffVisit visit() const;

    // The entry line and the grid (frmBillPatEntry.cpp).
    void cboCat_Click();
    void cboDrug_Click();
    void cboPat_Click();
    void priceOrQuantity_Change();
    void txtSub_Change();
    void cmdAdd_Click();
    bool isLineComplete();
    void writeLine();
    void resetEntryLine();
    void OrderGridDrug_DblClick();
    void calcTotal();
    TariffFields tariffFields();

    // Saving (frmBillPatSave.cpp).
    void OKButton_Click();
    void setItemColumns(Recordset& item, int row) const;
    void saveLine(Connection& connection, int row);
    void putOnBill(Connection& connection, int row);
    void refreshBill(Connection& connection);
    void audit(const QString& action, int row);
    double amountIn(int row, Column column) const; ///< naira, or a quantity

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
    ComboBox cboRev{*this, "cboRev", ComboBox::ListOnly};
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

    QString sRetainID; ///< the visit's client
    QString sRetainCode;
    QString sBillMode;  ///< "FFS", "CAP" or "BIL"
    double total = 0;   ///< naira, of the lines not yet saved
    double dMarkUp = 0; ///< pvalue of the client category; no item is priced from it
};

} // namespace orvane
