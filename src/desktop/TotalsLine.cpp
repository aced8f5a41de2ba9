#include "desktop/TotalsLine.h"

#include "data/words/Money.h"
#include "desktop/GridModel.h"
#include "desktop/TableView.h"

#include <numeric>

namespace orvane {

TotalsLine::TotalsLine(TableView& table, QWidget* parent) : QLabel(parent), m_table(table) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setWordWrap(true);
    setAccessibleName("Totals");
    connect(table.table(), &QAbstractItemModel::rowsInserted, this, &TotalsLine::sumUpAll);
    connect(&table.columns(), &GridColumns::arranged, this, &TotalsLine::sumUpAll);
    connect(&table, &TableView::markedChanged, this, &TotalsLine::sumUpMarked);
    sumUpAll();
}

/// "Bill 7,500.00     AmountPaid 900.00" for what is seen; empty without a column of amounts.
QString TotalsLine::sums(const QVector<int>& rows) const {
    const TableModel& model = *m_table.table();
    QStringList sums;
    for (int column = 0; column < model.columnCount(); ++column) {
        if (model.isColumnHidden(column) || !model.isSummed(column))
            continue;
        const double sum = std::accumulate(rows.cbegin(), rows.cend(), 0.0,
                                           [&](double so, int row) { return so + model.amount(row, column); });
        sums << model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString() + ' ' +
                    formatTwoDecimals(round2(sum));
    }
    return sums.join("     ");
}

void TotalsLine::sumUpAll() {
    const TableModel& model = *m_table.table();
    m_all.clear();
    if (model.hasMore() && !sums({}).isEmpty()) {
        m_all = QStringLiteral("%L1 rows so far; the total comes when all are read").arg(model.rowCount());
    } else if (model.rowCount() > 0) {
        QVector<int> rows(model.rowCount());
        std::iota(rows.begin(), rows.end(), 0);
        m_all = sums(rows);
        if (!m_all.isEmpty())
            m_all.prepend(QStringLiteral("Total of all %L1 rows:   ").arg(model.rowCount()));
    }
    sumUpMarked();
}

void TotalsLine::sumUpMarked() {
    const QVector<int> rows = m_all.isEmpty() ? QVector<int>() : m_table.markedRows();
    QString text = m_all;
    if (rows.size() > 1)
        text.prepend(QStringLiteral("%L1 marked:   %2     |     ").arg(rows.size()).arg(sums(rows)));
    setText(text);
    setVisible(!text.isEmpty());
}

} // namespace orvane
