#pragma once

#include "demo/DemoParts.h"

namespace orvane {

/// What a doctor ordered for a visit.
struct DemoOrder {
    const DemoItem* item;
    int quantity;
};

struct DemoVisit {
    const DemoPatient* patient = nullptr;
    QString consultID;
    QString clinic;
    QVector<DemoOrder> orders;
};

} // namespace orvane
