#pragma once

#include "demo/DemoVisits.h"

namespace orvane {

/// What the laboratory, another program of the hospital, writes for the day's visits: a request a visit with the tests
/// that its doctor ordered, and what was found. On the last day two visits have findings of every kind.
void answerFromLaboratory(Connection& billing, const DemoHospital& hospital, QDate day,
                          const QVector<DemoVisit>& visits);

} // namespace orvane
