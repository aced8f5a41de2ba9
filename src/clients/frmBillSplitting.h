#pragma once

#include "books/BillSplit.h"
#include "clients/TickList.h"
#include "clients/WorkBar.h"
#include "forms/RangePicker.h"
#include "session/Screen.h"

namespace orvane {

/// "Split Bill": moves ticked lines of a bill to a new bill that the private client pays. It opens on the bill in hand.
class frmBillSplitting : public Screen {
public:
    explicit frmBillSplitting(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    void afterFault() override { bar.hide(); }
    Button* defaultButton() override { return &cmdProcess; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cmdList_Click();
    void cboVehNo_Click();
    void cmdAll_Click();
    void cmdDeSelect_Click();
    void cmdRefresh_Click() { cboVehNo_Click(); }
    void cmdProcess_Click();
    void showTicked();
    void fillPayers();
    void takeBillInHand();
    void addBill(const Recordset& row, const QString& name, const QString& bill, const QString& date);
    bool isTicked();
    BillSplit split() const;
    QString aboutSplit() const;
    void showSplit();

    using Me = frmBillSplitting;
    RangePicker range;
    Label Label1{*this, "Label1", "Tick to Select Items to Shift for this Patient"};
    TickList items{*this, &Me::cmdAll_Click, &Me::cmdDeSelect_Click};
    Label lblDisplay{*this, "lblDisplay"};
    ComboBox cboPeriod{*this, "cboPeriod", ComboBox::ListOnly};
    WorkBar bar{*this};
    Button cmdRefresh{*this, "cmdRefresh", "&Refresh", &Me::cmdRefresh_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button cmdProcess{*this, "cmdProcess", "S&plit Bill", &Me::cmdProcess_Click};
};

} // namespace orvane
