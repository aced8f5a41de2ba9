#pragma once

#include "data/Catalog.h"
#include "data/Physical.h"
#include "data/Recordset.h"
#include "data/Rows.h"

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
