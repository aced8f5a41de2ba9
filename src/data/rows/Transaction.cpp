#include "data/rows/Transaction.h"

#include "data/Assert.h"
#include "data/engine/Physical.h"

namespace orvane {

struct Transaction::Private {
    std::shared_ptr<PhysicalConnection> physical; ///< null once it has ended
};

Transaction::Transaction(Connection& connection) : d(std::make_unique<Private>()) {
    ORVANE_ASSERT(!connection.inTransaction());
    connection.d->begin();
    d->physical = connection.d;
}

Transaction::~Transaction() {
    rollback();
}

void Transaction::commit() {
    ORVANE_ASSERT(d->physical);
    const std::shared_ptr<PhysicalConnection> physical = std::move(d->physical);
    physical->commit();
}

void Transaction::rollback() {
    const std::shared_ptr<PhysicalConnection> physical = std::move(d->physical);
    if (physical && physical->inTransaction)
        physical->rollback();
}

} // namespace orvane
