#pragma once

#include "demo/DemoParts.h"
#include "play/Hand.h"
#include "play/QuietUi.h"
#include "session/Program.h"

namespace orvane {

/// What somebody asks an outlet for.
struct OutletOrder {
    QString kind, item; ///< as the screen offers them
    QString quantity;
};

// What a cashier enters at an outlet, up to the press of "OKButton", which saves.

Hand enterOutletRequest(Program& program, const QString& surname, const QString& firstName,
                        const QVector<OutletOrder>& orders, const QString& outlet = {});
/// The bill of a visit that was saved, of whatever day (empty: the one on the screen); with `paid` (naira, typed) a
/// receipt. Without it the customer owes it.
Hand enterOutletBill(Program& program, const QString& consultID, const QString& paid, const QString& payFor);

/// The outlets' customers of one day: each is taken down and his bill collated and, mostly, paid. What the laboratory
/// finds is entered as its own program would. Raises DataError when a step is refused.
void serveOutlets(Program& program, QuietUi& ui, const DemoHospital& hospital, QDate day, DemoRandom& random);

} // namespace orvane
