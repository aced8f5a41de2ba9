#pragma once

#include "data/Catalog.h"
#include "data/Physical.h"
#include "data/Recordset.h"

#include <QMap>
#include <vector>

namespace orvane {

/// What a statement gave: values in rows, typed the same on every engine.
struct Rows {
    QStringList columns;
    std::vector<QVariant> values; ///< row after row

    qsizetype count() const { return columns.isEmpty() ? 0 : static_cast<qsizetype>(values.size()) / columns.size(); }
    int indexOf(const QString& column) const; ///< without regard to case; -1 when there is none
    const QVariant& at(qsizetype row, qsizetype column) const {
        return values[static_cast<std::size_t>(row * columns.size() + column)];
    }
    QVariant& at(qsizetype row, qsizetype column) {
        return values[static_cast<std::size_t>(row * columns.size() + column)];
    }
};

/// Reads a query to its end. Dates become QDate and QDateTime, flags and whole numbers qlonglong, all other numbers
/// double.
Rows readRows(QSqlQuery& query, Engine engine);

struct Recordset::Private {
    Rows rows;
    int row = 0;
    const Table* table = nullptr; ///< the table that rows are written to; null when the statement names none or several
    std::weak_ptr<PhysicalConnection> physical;
    qint64 lease = 0;
    bool adding = false;
    QMap<int, QVariant> changes; ///< by column, until update

    void dropChanges();
    void write();

private:
    std::shared_ptr<PhysicalConnection> connection() const;
    void insert(PhysicalConnection& target);
    void change(PhysicalConnection& target);
};

} // namespace orvane
