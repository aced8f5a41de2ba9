#pragma once

#include "printouts/ReportScreen.h"

namespace orvane {

/// "Bill Incurred by Clients": what was billed to a client or to all of them in some days, line by line under its
/// bills, or one of these bills.
class FrmRptBillsByClient : public ReportScreen {
public:
    explicit FrmRptBillsByClient(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdDisplay; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cmdList_Click();
    void cboCust_Click();
    void cmdDisplay_Click();
    bool isReady();
    Sql chosenLines() const;

    using Me = FrmRptBillsByClient;
    DatePicker DTPicker1{*this, "DTPicker1"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    Button cmdList{*this, "cmdList", "&Get Client List", &Me::cmdList_Click};
    ComboBox cboCust{*this, "cboCust", ComboBox::ListOnly, &Me::cboCust_Click};
    ComboBox cboBill{*this, "cboBill", ComboBox::ListOnly};
    Button CancelButton{*this, "CancelButton", "C&lose", &Me::unload};
    Button cmdDisplay{*this, "cmdDisplay", "&Display", &Me::cmdDisplay_Click};

    QDate m_first, m_last; ///< of the days that the lists are of
};

} // namespace orvane
