#pragma once

#include "demo/DemoParts.h"

#include <functional>

namespace orvane {

/// A hospital for benchmarks on the settings, price lists, clients and staff of the demonstration hospital: its
/// patients and the visits, bills, receipts and account entries of its days, row for row what the screens would have
/// left, written in bulk. `hospital.options.bills` bills have five lines each on average; 300 visits of the last ten
/// days wait with 20 items each, and 12 of the last day with nothing but their consultation. `audit`: the connection
/// that holds the audit trail; the billing one itself, where it is there. The indexes must be away meanwhile, or it
/// takes long. Raises DataError.
void makeBulkHospital(DemoHospital& hospital, Connection& billing, Connection& audit,
                      const std::function<void(const QString&)>& progress);

} // namespace orvane
