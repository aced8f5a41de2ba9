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
    QVector<DemoOrder> injections; ///< with dressings; they wait for the pharmacist, and the visit with them
};

/// The row of hconsulting that the doctor leaves, finished.
RowValues consultationRow(const DemoVisit& visit, const DemoEmployee& doctor, QDateTime at, DemoHospital& hospital);

} // namespace orvane
