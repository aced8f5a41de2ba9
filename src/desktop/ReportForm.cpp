#include "desktop/ReportForm.h"

#include "data/words/Money.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr int sampledRows = 20;

/// Numbers that may have a fraction are amounts; counts and serial numbers are whole.
bool isAmount(const Grid& grid, int column) {
    bool amount = false;
    for (int row = 0; row < std::min(grid.rowCount(), sampledRows); ++row) {
        const QVariant cell = grid.value(row, column);
        if (cell.isNull())
            continue;
        if (cell.typeId() != QMetaType::Double)
            return false;
        amount = true;
    }
    return amount;
}

} // namespace

ReportForm::ReportForm(Ui& ui, const QString& file, const QString& title, const Recordset& rows, const QString& sums)
    : Form(ui, file, title) {
    grdRows.load(rows);
    for (int column = 0; column < grdRows.columnCount(); ++column)
        if (isAmount(grdRows, column))
            grdRows.setFormat(grdRows.columnName(column), "#,##0.00");
    lblSums.setText(sums);
    lblSums.setVisible(!sums.isEmpty());
    lblCount.setText(grdRows.rowCount() == 1 ? "1 row" : QStringLiteral("%L1 rows").arg(grdRows.rowCount()));
    cmdPrint.onClick = [this] { this->ui().printForm(*this); };
    cmdClose.onClick = [this] { unload(); };
}

QString ReportForm::sums() const {
    QStringList sums;
    for (int column = 0; column < grdRows.columnCount(); ++column) {
        if (!grdRows.isSummed(column))
            continue;
        double sum = 0;
        for (int row = 0; row < grdRows.rowCount(); ++row)
            sum += grdRows.value(row, column).toDouble();
        sums << grdRows.columnHead(column) + ' ' + formatTwoDecimals(round2(sum));
    }
    return (sums + QStringList{lblSums.text()}).join("   ").trimmed();
}

Layout ReportForm::layout() const {
    using namespace orvane::layout;
    return column({growing(cell(grdRows)), cell(lblSums), buttons({&lblCount}, {&cmdPrint, &cmdClose})});
}

} // namespace orvane
