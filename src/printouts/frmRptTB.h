#pragma once

#include "printouts/ReportScreen.h"

namespace orvane {

/// The reports of the ledger, by session.sRptKind as it is when the screen is made: "TB" the trial balance at the end
/// of a day, "TB2" what each account moved in some days, "GL" the entries of the accounts in these days between their
/// opening and closing balances.
class frmRptTB : public ReportScreen {
public:
    explicit frmRptTB(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return isLedger() ? &cmdGL : &cmdDisplay; }
    Button* cancelButton() override { return &CancelButton; }

private:
    bool isLedger() const { return m_kind == "GL"; }
    bool isOfDays() const { return m_kind == "TB2"; }
    void cmdDisplay_Click();
    void cmdGL_Click();
    void fillAccounts();
    bool isReady();
    void showTrialBalance(Connection& ledger);
    void showMovements(Connection& ledger);
    Sql accountSums(const Sql& columns, const Sql& sum) const;
    Sql entries(QDate first) const;
    Sql ofAccount() const;

    using Me = frmRptTB;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    ComboBox cboAcct{*this, "cboAcct", ComboBox::ListOnly};
    Button cmdDisplay{*this, "cmdDisplay", "&Display", &Me::cmdDisplay_Click};
    Button cmdGL{*this, "cmdGL", "&Display", &Me::cmdGL_Click};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};

    QString m_kind;
};

} // namespace orvane
