#include "desktop/ListFind.h"

#include "desktop/GridModel.h"
#include "desktop/TableView.h"

#include <algorithm>

namespace orvane {

ListFind::ListFind(TableView& table, QWidget* parent)
    : FindLine(QStringLiteral("list"), table, parent), m_table(table) {
    connect(&table, &TableView::findWanted, this, &FindLine::begin);
}

void ListFind::go(bool forward) {
    const int at = m_table.currentIndex().row();
    const QModelIndex hit = forward ? next(at) : previous(at);
    if (!hit.isValid()) {
        say("Not found");
        return;
    }
    if (forward ? hit.row() <= at : hit.row() >= at)
        say(hit.row() == at ? "Only here" : forward ? "From the top again" : "From the end again");
    m_table.pick(hit);
}

/// In a list that is still being read, only what is not among the rows read so far needs all of them.
QModelIndex ListFind::next(int at) const {
    const int read = m_table.table()->rowCount();
    QModelIndex hit = firstIn(at + 1, read);
    if (!hit.isValid()) {
        m_table.table()->readAll();
        hit = firstIn(std::max(at + 1, read), m_table.table()->rowCount());
    }
    return hit.isValid() ? hit : firstIn(0, at + 1);
}

QModelIndex ListFind::previous(int at) const {
    const QModelIndex hit = firstIn(at - 1, -1);
    if (hit.isValid())
        return hit;
    m_table.table()->readAll();
    return firstIn(m_table.table()->rowCount() - 1, std::max(at, 0) - 1);
}

/// Of the rows from `from` on, in the direction of `to`, which is not among them.
QModelIndex ListFind::firstIn(int from, int to) const {
    const int step = from <= to ? 1 : -1;
    for (int row = from; row != to && row >= 0; row += step)
        if (const QModelIndex hit = hitIn(row); hit.isValid())
            return hit;
    return {};
}

QModelIndex ListFind::hitIn(int row) const {
    const TableModel& model = *m_table.table();
    for (int column = 0; column < model.columnCount(); ++column) {
        const QModelIndex cell = model.index(row, column);
        if (!model.isColumnHidden(column) && cell.data().toString().contains(text(), Qt::CaseInsensitive))
            return cell;
    }
    return {};
}

} // namespace orvane
