#pragma once

#include "clients/MonthBillsScreen.h"

namespace orvane {

/// "Bill Processing", the shift: sends bills that wait for the run to the batch of another month.
class frmBillProcessingShift : public MonthBillsScreen {
public:
    explicit frmBillProcessingShift(Program& owner);

    Layout layout() const override;
    void Form_Load() override;

private:
    Sql companies() const override;
    Sql waitingOf(const QString& code) const override;
    void listAll() override { range.cboVehNo.addItem("(ALL)"); }
    void cmdProcess_Click() override;
    void cboPeriod_Click();
    bool isPeriodGiven();
    std::optional<int> period() const; ///< in months
    std::optional<QDate> shiftedTo() const;
    QString warning() const; ///< empty: none ///< the first day of the month that the bills go to

    using Me = frmBillProcessingShift;
    ComboBox cboPeriod{*this, "cboPeriod", ComboBox::FreeText, &Me::cboPeriod_Click};
    Label lblDisplay{*this, "lblDisplay"};
};

} // namespace orvane
