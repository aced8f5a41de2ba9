#include "desktop/TotalsLine.h"

#include "data/words/Money.h"
#include "desktop/GridModel.h"
#include "desktop/TableView.h"

#include <algorithm>
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

/// An entry list ends with the blank row of the entry that comes next, which is none.
int TotalsLine::rowsEntered() const {
    const TableModel& model = *m_table.table();
    const int last = model.rowCount() - 1;
    for (int column = 0; last >= 0 && column < model.columnCount(); ++column)
        if (!model.index(last, column).data().toString().isEmpty())
            return last + 1;
    return std::max(last, 0);
}

void TotalsLine::sumUpAll() {
    const TableModel& model = *m_table.table();
    const int count = rowsEntered();
    m_all.clear();
    if (model.hasMore() && !sums({}).isEmpty()) {
        m_all = QStringLiteral("%L1 rows so far; the total comes when all are read").arg(model.rowCount());
    } else if (count > 0) {
        QVector<int> rows(count);
        std::iota(rows.begin(), rows.end(), 0);
        m_all = sums(rows);
        if (!m_all.isEmpty())
            m_all.prepend(QStringLiteral("Total of all %L1 rows:   ").arg(count));
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
