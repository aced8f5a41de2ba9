#pragma once

#include "desktop/FindLine.h"

#include <QModelIndex>

namespace orvane {

class TableView;

/// Finds a text in what the cells of a list show.
class ListFind : public FindLine {
    Q_OBJECT

public:
    ListFind(TableView& table, QWidget* parent);

protected:
    void go(bool forward) override;

private:
    QModelIndex next(int at) const;
    QModelIndex previous(int at) const;
    QModelIndex firstIn(int from, int to) const;
    QModelIndex hitIn(int row) const;

    TableView& m_table;
};

} // namespace orvane
