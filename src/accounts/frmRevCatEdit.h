#pragma once

#include "books/RevenueType.h"
#include "session/Screen.h"

namespace orvane {

/// "Revenue from Collated Bills": the billed lines of some days by client or client type; here the accountant corrects
/// the revenue type of a line and who rendered it, and prints the revenue.
class frmRevCatEdit : public Screen {
public:
    explicit frmRevCatEdit(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdList; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void fillTypes();
    void fillConsultants();
    void fillGroups();
    void cboGroup_Click();
    void cboCon_Click();
    bool isRangeGiven(const QString& noGroup);
    Sql ofGroup() const;
    void cmdList_Click();
    void clearLine();
    void grdData_Click();
    void OKButton_Click();
    bool isComplete();
    RevenueCorrection correction() const;
    void printLines(const QString& mode);
    void cmdView_Click() { printLines("SUMMARY"); }
    void cmdDetails_Click() { printLines("DETAIL"); }
    void cmdRevCons_Click() { printLines("CONS-DETAIL"); }
    void cmdCash_Click();
    void print(const QString& mode, const Sql& rows);
    void cmdExport_Click();

    using Me = frmRevCatEdit;
    OptionButton radCoy{*this, "radCoy", "By Clien&t"};
    OptionButton radCat{*this, "radCat", "By Client Cate&gory"};
    ComboBox cboGroup{*this, "cboGroup", ComboBox::ListOnly, &Me::cboGroup_Click};
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    CheckBox ChkOnly{*this, "ChkOnly", "S&how OTHERS Only"};
    Button cmdList{*this, "cmdList", "Displa&y", &Me::cmdList_Click};
    Grid grdData{*this, "grdData"};
    TextBox txtItem{*this, "txtItem"};
    ComboBox cboRev{*this, "cboRev", ComboBox::ListOnly};
    ComboBox cboCon{*this, "cboCon", ComboBox::ListOnly, &Me::cboCon_Click};
    CheckBox chkIgnore{*this, "chkIgnore", "&Ignore"};
    Button OKButton{*this, "OKButton", "&Update", &Me::OKButton_Click};
    Button cmdView{*this, "cmdView", "View Revenue &Summary by Date", &Me::cmdView_Click};
    Button cmdDetails{*this, "cmdDetails", "View Revenue &Details by Date", &Me::cmdDetails_Click};
    Button cmdRevCons{*this, "cmdRevCons", "View Revenue &by Consultant", &Me::cmdRevCons_Click};
    Button cmdCash{*this, "cmdCash", "View C&ash Distribution", &Me::cmdCash_Click};
    Button cmdExport{*this, "cmdExport", "&Export Displayed Records to Excel", &Me::cmdExport_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};

    QString sGroupKind, sGroupValue; ///< "CLIENT" or "GROUP"; a client's code, a client type, or "(ALL)"
    QString sConsultant;             ///< number of the employee picked
    struct Line {
        qlonglong sno = 0;
        QString billNo, billType, revType;
    } m_line;               ///< in hand
    qlonglong m_edited = 0; ///< SNo of the line corrected last, found again in a list that is filled anew
};

} // namespace orvane
