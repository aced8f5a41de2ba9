#pragma once

#include "session/Screen.h"

namespace orvane {

/// " Prompt": the billing officer's worklist of visits that doctors have sent to billing. A double click hands a visit
/// to the collation screen; the second tab shows the attendance history of the patient of the selected row.
class frmFlash : public Screen {
public:
    explicit frmFlash(Program& program);

    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdPat{*this, "cmdPat", "&Patients from Doctor"};
    Button cmdExpected{*this, "cmdExpected", "View Patient Attendance &History"};
    Button cmdDoc{*this, "cmdDoc", "&View Patient Attendance History"};
    Button cmdCPC{*this, "cmdCPC", "&Overdrawn System Drugs"};
    Button cmdPrint{*this, "cmdPrint", "P&rint"};
    Button cmdClose{*this, "cmdClose", "&Close"};
    Label lblShow{*this, "lblShow"};
    TabStrip SSTab1{*this, "SSTab1"};
    Grid dGexp{*this, "dGexp"};
    Grid grdData{*this, "grdData"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdPat; }
    Button* cancelButton() override { return &cmdClose; }

private:
    void cmdPat_Click();
    void cmdCPC_Click();
    void showList(const Sql& sql, const QString& caption);
    void dGexp_DblClick();
    void SSTab1_Click();
    void cmdExpected_Click();
    void showHistory();
    void cmdPrint_Click();

    QString sHistoryPno;
    Sql m_list; ///< what dGexp shows, for its printout
    QString m_listCaption;
};

} // namespace orvane
