#pragma once

#include "books/MonthRun.h"
#include "clients/MonthPicker.h"
#include "clients/TickList.h"
#include "clients/WorkBar.h"
#include "session/Screen.h"

namespace orvane {

/// "Bill Processing": the monthly run, which turns the bills of the ticked clients of a batch into one invoice each.
/// Its twin that posts the invoices is made of it.
class frmBillProcessing : public Screen {
public:
    explicit frmBillProcessing(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    void afterFault() override { bar.hide(); }
    Button* defaultButton() override { return &cmdProcess; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    /// `takesBillsWithoutLines`: the run of the twin, which posts too.
    frmBillProcessing(Program& owner, const QString& name, const QString& caption, bool takesBillsWithoutLines);
    virtual void cmdPost_Click() {} ///< invoices are posted on a screen of their own
    virtual bool prepareRun();
    const QString& listedBatch() const { return m_listed.batchNo; }
    void cmdRefresh_Click();
    void cmdView_Click();

private:
    void cmdGet_Click();
    void cmdAll_Click();
    void cmdDeSelect_Click();
    void cmdProcess_Click();
    void clearFields();
    bool isPeriodPicked();
    bool isBatchOpen();
    MonthRun run() const;
    void showStage(const RunStage& stage);
    void showProcessed(int clients);

    const bool m_takesBillsWithoutLines = false;
    MonthRun m_listed; ///< the batch whose clients are listed: what is run, whatever is picked afterwards

protected:
    using Me = frmBillProcessing;
    MonthPicker period{*this};
    Button cmdGet{*this, "cmdGet", "&Get List", &Me::cmdGet_Click};
    Label Label1{*this, "Label1", "Company List"};
    TickList clients{*this, &Me::cmdAll_Click, &Me::cmdDeSelect_Click};
    Button cmdRefresh{*this, "cmdRefresh", "&Refresh", &Me::cmdRefresh_Click};
    Button cmdView{*this, "cmdView", "&View Processed Info", &Me::cmdView_Click};
    Grid grdData{*this, "grdData"};
    WorkBar bar{*this};
    Button cmdPost{*this, "cmdPost", "Post to Accoun&ts", &Me::cmdPost_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button cmdProcess{*this, "cmdProcess", "&Process", &Me::cmdProcess_Click};
};

} // namespace orvane
