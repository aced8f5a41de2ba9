#pragma once

#include "billing/PriceAdjustScreen.h"

namespace orvane {

/// "Bill Adjustment": changes or removes the one item of a bill that session.lWorkSNo names.
class frmPriceAdjustVerify : public PriceAdjustScreen {
public:
    explicit frmPriceAdjustVerify(Program& program);

    Layout layout() const override;
    void Form_Load() override;

private:
    void fillRevenueTypes(Connection& connection);
    void readVisit(Connection& connection);
    void showItem(Connection& connection, const Recordset& item);
    void chkAll_Click();

    // Saving.
    Recordset openRow(Connection& connection) const override;
    std::vector<Check> checks() override;
    void saveRow(Connection& connection, Recordset& row) override;
    void afterSave() override;
    void saveItem(Recordset& item, const ItemChange& change);
    void addLine(Connection& connection, const ItemChange& change);
    void changeLine(Connection& connection, Recordset& line, const ItemChange& change);
    void post(Connection& connection, double amount, const QString& billTo, const QString& remarks);
    void requestTariff();
    void rememberChoice();
    QString newBillTo() const;
    void audit(const QString& action, const QString& detail);

    // Removing.
    void cmdCancel_Click();
    void remove(Connection& connection);

    QString m_pno, m_category, m_retainID, m_referal;
    QString m_billTo, m_coyName, m_itemCategory;
    QDate m_date;
    double m_oldAmount = 0; ///< naira, as the row held it

    ComboBox cboCap{*this, "cboCap", ComboBox::ListOnly};
    ComboBox cboAttend{*this, "cboAttend", ComboBox::ListOnly};
    ComboBox cboRev{*this, "cboRev", ComboBox::ListOnly};
    ComboBox cboPat{*this, "cboPat", ComboBox::ListOnly};
    CheckBox chkAll{*this, "chkAll", "&Lock the Item"};
    CheckBox chkRct{*this, "chkRct", "&Request to Adjust this Price in Tariff"};
    Button cmdCancel{*this, "cmdCancel", "Re&move Item"};
};

} // namespace orvane
