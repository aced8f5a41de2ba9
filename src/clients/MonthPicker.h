#pragma once

#include "forms/Controls.h"
#include "forms/Layout.h"
#include "session/Session.h"

namespace orvane {

/// The month and the year that a batch is picked by.
class MonthPicker {
public:
    MonthPicker(Form& form, Session& session);

    ComboBox cboMonth, cboYear;

    /// An empty entry, then the months and the years of all batches; shows the month of `today`.
    void fill(QDate today);
    static void fillYears(ComboBox& years);
    bool isPicked() const { return !cboMonth.text().isEmpty() && !cboYear.text().isEmpty(); }
    QString batchNo() const; ///< of the year shown and of the month that was picked last, "2026/03"
    Layout layout() const;

private:
    Session& m_session;
    QString m_monthCode; ///< a text that is no month leaves it as it was
};

} // namespace orvane
