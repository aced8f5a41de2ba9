#include "clients/MonthPicker.h"

#include "books/Batch.h"

namespace orvane {

MonthPicker::MonthPicker(Form& form)
    : cboMonth(form, "cboMonth", ComboBox::ListOnly), cboYear(form, "cboYear", ComboBox::ListOnly) {
    cboMonth.onClick = [this] {
        if (const QString code = monthCode(cboMonth.text()); !code.isEmpty())
            m_monthCode = code;
        if (onPick)
            onPick();
    };
    cboYear.onClick = [this] {
        if (onPick)
            onPick();
    };
}

void MonthPicker::fillYears(ComboBox& years) {
    years.addItem("");
    for (int year = firstBatchYear; year <= lastBatchYear; ++year)
        years.addItem(QString::number(year));
}

void MonthPicker::fill(QDate today) {
    cboMonth.addItem("");
    for (int month = 1; month <= 12; ++month)
        cboMonth.addItem(monthName(month));
    fillYears(cboYear);
    cboMonth.setText(monthName(today.month()));
    cboYear.setText(QString::number(today.year()));
}

QString MonthPicker::batchNo() const {
    return batchNumber(cboYear.text(), m_monthCode);
}

Layout MonthPicker::layout() const {
    using namespace orvane::layout;
    return row({field("Month", cboMonth, 12), field("Year", cboYear, 6)});
}

} // namespace orvane
