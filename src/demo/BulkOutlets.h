#pragma once

#include "demo/DemoParts.h"

namespace orvane {

/// A customer at the laboratory for every tenth visit of the hospital, with one item, billed and paid in full on the
/// same day; in the open transaction. Raises DataError.
void makeBulkOutlets(Connection& billing, const DemoHospital& hospital);

} // namespace orvane
