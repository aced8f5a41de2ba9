#include "desktop/TotalsLine.h"

#include "data/words/Money.h"
#include "desktop/GridModel.h"

namespace orvane {

namespace {

/// A price and a number of units come to nothing in sum.
bool isSummed(const QString& head) {
    static const QStringList never = {"UnitPrice", "Price", "No Of Units", "Qty"};
    return !never.contains(head, Qt::CaseInsensitive);
}

} // namespace

TotalsLine::TotalsLine(TableModel& model, QWidget* parent) : QLabel(parent), m_model(model) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setAccessibleName("Totals");
    connect(&model, &QAbstractItemModel::modelReset, this, &TotalsLine::sumUp);
    connect(&model, &QAbstractItemModel::rowsInserted, this, &TotalsLine::sumUp);
    sumUp();
}

void TotalsLine::sumUp() {
    QStringList totals;
    for (int column = 0; column < m_model.columnCount(); ++column) {
        const QString head = m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        if (m_model.isColumnHidden(column) || !isSummed(head))
            continue;
        if (const std::optional<double> total = m_model.total(column))
            totals << head + ' ' + formatTwoDecimals(*total);
    }
    const bool any = !totals.isEmpty() && m_model.rowCount() > 0;
    setText(any ? QStringLiteral("Total of all %L1 rows:   %2").arg(m_model.rowCount()).arg(totals.join("     "))
                : QString());
    setVisible(any);
}

} // namespace orvane
