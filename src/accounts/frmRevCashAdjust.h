#pragma once

#include "books/CashPosting.h"
#include "session/Screen.h"

namespace orvane {

/// "Cash Receipt Details ": the receipts that are not distributed over revenue types, or not wholly; here the
/// accountant adds what is missing.
class frmRevCashAdjust : public Screen {
public:
    explicit frmRevCashAdjust(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdList; }
    Button* cancelButton() override { return &CancelButton; }

private:
    enum Item { Undistributed = 1, Incomplete = 2 };

    void list();
    void showTotals(Connection& connection);
    bool isRangeGiven();
    Sql receipts(bool forReport) const;
    void grdData_DblClick();
    void OKButton_Click();
    void clearEntry();
    void cmdCash_Click();
    void cmdView_Click() { report("SUMMARY"); }
    void cmdDetails_Click() { report("DETAIL"); }
    void report(const QString& mode);
    void cmdExport_Click();

    using Me = frmRevCashAdjust;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    ComboBox cboGroup{*this, "cboGroup", ComboBox::ListOnly, &Me::list};
    Button cmdList{*this, "cmdList", "&Get List", &Me::list};
    Label lblRecvd{*this, "lblRecvd"};
    Label lblDist{*this, "lblDist"};
    Grid grdData{*this, "grdData", &Me::grdData_DblClick};
    TextBox txtItem{*this, "txtItem"};
    TextBox txtBillNo{*this, "txtBillNo"};
    TextBox txtDate{*this, "txtDate"};
    TextBox txtAmt{*this, "txtAmt"};
    ComboBox cboRev{*this, "cboRev", ComboBox::ListOnly};
    Button OKButton{*this, "OKButton", "&Update", &Me::OKButton_Click};
    Button cmdView{*this, "cmdView", "View Revenue &Summary by Date", &Me::cmdView_Click};
    Button cmdDetails{*this, "cmdDetails", "View Revenue &Details by Date", &Me::cmdDetails_Click};
    Button cmdCash{*this, "cmdCash", "View &Cash Distribution", &Me::cmdCash_Click};
    Button cmdExport{*this, "cmdExport", "&Export to Excel", &Me::cmdExport_Click};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};

    QDate m_date; ///< of the receipt in hand
};

} // namespace orvane
