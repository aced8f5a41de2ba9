#pragma once

#include "forms/Controls.h"
#include "forms/Layout.h"

namespace orvane {

/// The month and the year that a batch is picked by.
class MonthPicker {
public:
    explicit MonthPicker(Form& form);

    ComboBox cboMonth, cboYear;
    std::function<void()> onPick; ///< another month or year was picked

    /// An empty entry, then the months and the years of all batches; shows the month of `today`.
    void fill(QDate today);
    static void fillYears(ComboBox& years);
    bool isPicked() const { return !cboMonth.text().isEmpty() && !cboYear.text().isEmpty(); }
    QString batchNo() const; ///< of the year shown and of the month that was picked last, "2026/03"
    Layout layout() const;

private:
    QString m_monthCode; ///< a text that is no month leaves it as it was
};

} // namespace orvane
