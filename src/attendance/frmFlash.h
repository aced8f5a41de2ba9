#pragma once

#include "session/Screen.h"

namespace orvane {

/// " Prompt": the billing officer's worklist of visits that doctors have sent to billing. A double click hands a visit
/// to the collation screen; the second tab shows the attendance history of the patient of the selected row.
class frmFlash : public Screen {
public:
    explicit frmFlash(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdPat; }
    Button* cancelButton() override { return &cmdClose; }

protected:
    PatientTaker patientTaker() override;

private:
    void cmdPat_Click();
    void cmdCPC_Click();
    void showList(const Sql& sql, const QString& caption);
    void dGexp_DblClick();
    void SSTab1_Click();
    void cmdExpected_Click();
    void showHistory();
    void cmdPrint_Click();

    using Me = frmFlash;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdPat{*this, "cmdPat", "&Patients from Doctor", &Me::cmdPat_Click};
    Button cmdExpected{*this, "cmdExpected", "View Patient Attendance &History", &Me::cmdExpected_Click};
    Button cmdDoc{*this, "cmdDoc", "&View Patient Attendance History", &Me::cmdExpected_Click};
    Button cmdCPC{*this, "cmdCPC", "&Overdrawn System Drugs", &Me::cmdCPC_Click};
    Button cmdPrint{*this, "cmdPrint", "P&rint", &Me::cmdPrint_Click};
    Button cmdClose{*this, "cmdClose", "&Close", &Me::unload};
    Label lblShow{*this, "lblShow"};
    TabStrip SSTab1{*this, "SSTab1", &Me::SSTab1_Click};
    Grid dGexp{*this, "dGexp"};
    Grid grdData{*this, "grdData"};

    QString sHistoryPno;
    Sql m_list; ///< what dGexp shows, for its printout
    QString m_listCaption;
};

} // namespace orvane
