#pragma once

#include "billing/ItemAdjustment.h"

namespace orvane {

/// "Bill Adjustment": changes or removes the one item of a bill that session.lWorkSNo names.
class frmPriceAdjustVerify : public Screen {
public:
    explicit frmPriceAdjustVerify(Program& program);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdSave; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void connectHandlers();
    void fillRevenueTypes(Connection& connection);
    bool readItem(Connection& connection);
    void workOutSubTotal();
    void chkAll_Click();

    // Saving.
    void cmdSave_Click();
    bool checkFields();
    bool save(); ///< false: the bill was processed meanwhile
    void saveItem(Connection& connection, const ItemChange& change);
    void addLine(Connection& connection, const ItemChange& change);
    void changeLine(Connection& connection, Recordset& line, const ItemChange& change);
    void requestTariff();
    void rememberChoice();
    ItemChange change() const;
    bool isProcessed();
    void audit(const QString& action, const QString& detail);

    // Removing.
    void cmdCancel_Click();
    bool remove(); ///< false: the bill was processed meanwhile

    qlonglong m_sno = 0;
    QString m_billNo, m_pno, m_oldItem, m_category, m_retainID, m_referal;
    QString m_billTo, m_coyName, m_dosage;
    QDate m_date;
    double dPrice = 0, dQty = 0; ///< as they were: naira, units
    double m_oldAmount = 0;      ///< naira, as the row held it

    TextBox txtDrug{*this, "txtDrug"};
    TextBox txtQty{*this, "txtQty"};
    TextBox txtPrice{*this, "txtPrice"};
    Label lblSub{*this, "lblSub"};
    ComboBox cboCap{*this, "cboCap", ComboBox::ListOnly};
    ComboBox cboAttend{*this, "cboAttend", ComboBox::ListOnly};
    ComboBox cboRev{*this, "cboRev", ComboBox::ListOnly};
    ComboBox cboPat{*this, "cboPat", ComboBox::ListOnly};
    CheckBox chkAll{*this, "chkAll", "&Lock the Item"};
    CheckBox chkRct{*this, "chkRct", "&Request to Adjust this Price in Tariff"};
    Button cmdCancel{*this, "cmdCancel", "Re&move Item"};
    Button CancelButton{*this, "CancelButton", "&Close"};
    Button cmdSave{*this, "cmdSave", "&Save"};
};

} // namespace orvane
