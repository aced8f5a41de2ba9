#pragma once

#include "billing/PriceAdjustScreen.h"

namespace orvane {

/// "Bill Adjustment": changes or removes the one item of a bill that session.lWorkSNo names.
class frmPriceAdjustVerify : public PriceAdjustScreen {
public:
    explicit frmPriceAdjustVerify(Program& owner)
        : PriceAdjustScreen(owner, "frmPriceAdjustVerify", "Bill Adjustment") {}

    Layout layout() const override;
    void Form_Load() override;

private:
    void fillRevenueTypes(Connection& connection);
    void readVisit(Connection& connection);
    void showItem(Connection& connection, const Recordset& item);
    QString payerNow(Connection& connection, const Recordset& item) const;
    void chkAll_Click();

    Recordset openRow(Connection& connection) const override;
    bool isComplete() override;
    QString action() const override { return "BILL ADJUST"; }
    Given<Saved> write(Books& books) override;
    void afterSave() override;
    void rememberChoice(Books& books, const QString& item);
    void cmdCancel_Click();
    void afterRemoval(const ItemChange& gone);

    QString m_category, m_retainID, m_referal;
    QString m_coyName, m_itemCategory;
    double m_oldAmount = 0; ///< naira, as the row held it

    using Me = frmPriceAdjustVerify;
    ComboBox cboCap{*this, "cboCap", ComboBox::ListOnly};
    ComboBox cboAttend{*this, "cboAttend", ComboBox::ListOnly};
    ComboBox cboRev{*this, "cboRev", ComboBox::ListOnly};
    ComboBox cboPat{*this, "cboPat", ComboBox::ListOnly};
    CheckBox chkAll{*this, "chkAll", "&Lock the Item", &Me::chkAll_Click};
    CheckBox chkRct{*this, "chkRct", "&Request to Adjust this Price in Tariff"};
    Button cmdCancel{*this, "cmdCancel", "Re&move Item", &Me::cmdCancel_Click};
};

} // namespace orvane
