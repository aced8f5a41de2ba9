#pragma once

#include "data/rows/Recordset.h"

#include <QVector>

namespace orvane {

/// A column by which rows are ordered.
struct RowKey {
    int column;
    bool descending = false;
};

/// The places of the rows in the order of the keys; equal ones stay as they came. Texts compare without regard to case,
/// null stands first. Empty: the rows come in this order already. Reads the rows whole.
QVector<int> rowOrder(Recordset& rows, const QVector<RowKey>& keys);

} // namespace orvane
