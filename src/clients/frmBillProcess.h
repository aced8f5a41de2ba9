#pragma once

#include "clients/MonthPicker.h"
#include "session/Screen.h"

namespace orvane {

/// "View Collated Bills": the review of a month's bills before they are processed. The billing officer sees every bill
/// of the batch, corrects its lines, adds approval codes and diagnoses, and settles the headings of the invoices.
class frmBillProcess : public Screen {
public:
    explicit frmBillProcess(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* cancelButton() override { return &CancelButton; }

private:
    // The list (frmBillProcess.cpp).
    bool takePeriod(); ///< sBatchNo of the month picked; says so when none is
    void cmdLoad_Click();
    void fillCompanies();
    void cboCoy_Click();
    void fillGrid();
    void cmdShow_Click();
    void txtSearch_Change();
    void showBills(const Sql& columns, const Sql& bills, const Sql& order);
    void clearDetails();
    void showTotal();
    void findBillAgain();
    void selectCurrentBill() { grdData.selectRow(grdData.currentRow()); }
    void grdData_Click();
    void fillGridBills();
    Sql mode1Bills() const;

    // The corrections (frmBillProcessCorrect.cpp).
    bool hasBill();
    void cmdOK_Click();
    void noteOnBill(Books& books);
    void afterNote();
    void cmDiag_Click();
    void cmdRpt_Click();
    void showLinesWithoutHeading();
    void cmdCust_Click();
    void cmdAdjust_Click();
    void afterRemoval(const QString& billNo, const QString& removed, const QString& patient);
    void cmdUpdate_Click();
    void chkBatch_Click();
    void cmdProcess_Click();
    // Kept for their places on the screen: reversal and bulk entry are done elsewhere.
    void cmdBatch_Click() {}
    void cmdAddBulk_Click() {}
    void cboVehNo_Click() {}
    void Timer1_Timer() {}

    using Me = frmBillProcess;
    MonthPicker period{*this};
    Button cmdLoad{*this, "cmdLoad", "Display Collated &Bills for Batch / Company", &Me::cmdLoad_Click};
    ComboBox cboCoy{*this, "cboCoy", ComboBox::ListOnly, &Me::cboCoy_Click};
    TextBox txtSearch{*this, "txtSearch", &Me::txtSearch_Change};
    Grid grdData{*this, "grdData"};
    Label lblCnt{*this, "lblCnt"};
    Label lblAmt{*this, "lblAmt"};
    Button cmdShow{*this, "cmdShow", "Sho&w", &Me::cmdShow_Click};
    Label lblDetails{*this, "lblDetails"};
    Grid grdData2{*this, "grdData2", &Me::cmdCust_Click};
    TextBox txtApprv{*this, "txtApprv"};
    TextBox txtDiag{*this, "txtDiag"};
    Button cmdOK{*this, "cmdOK", "&OK", &Me::cmdOK_Click};
    Button cmDiag{*this, "cmDiag", "Add Diagnosis to &entire Batch", &Me::cmDiag_Click};
    Button cmdRpt{*this, "cmdRpt", "Show Rpt &Heading for Entire Batch", &Me::cmdRpt_Click};
    CheckBox chkBatch{*this, "chkBatch", "Reverse &Last", &Me::chkBatch_Click};
    Frame fraBatch{*this, "fraBatch", "     Reverse Last Process"};
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::ListOnly, &Me::cboVehNo_Click};
    Button cmdBatch{*this, "cmdBatch", "Re&verse", &Me::cmdBatch_Click};
    Button cmdCust{*this, "cmdCust", "&Adjust/Customize Details", &Me::cmdCust_Click};
    Button cmdAdjust{*this, "cmdAdjust", "&Remove from Details", &Me::cmdAdjust_Click};
    Button cmdUpdate{*this, "cmdUpdate", "Add to &Details", &Me::cmdUpdate_Click};
    Button cmdAddBulk{*this, "cmdAddBulk", "Add B&ulk Consultation", &Me::cmdAddBulk_Click};
    Timer Timer1{*this, "Timer1", 1000, false, &Me::Timer1_Timer};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button cmdProcess{*this, "cmdProcess", "&Process Collated Bills", &Me::cmdProcess_Click};

    QString m_batchNo; ///< taken last
    QString lID;       ///< of the bill selected last, found again in a list that is filled anew
};

} // namespace orvane
