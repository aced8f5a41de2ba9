#pragma once

#include "data/dialect/Catalog.h"
#include "data/engine/Physical.h"
#include "data/engine/Rows.h"
#include "data/rows/Recordset.h"

#include <QMap>

namespace orvane {

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
