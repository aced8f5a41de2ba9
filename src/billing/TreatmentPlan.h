#pragma once

#include "data/rows/Recordset.h"

namespace orvane {

/// What the doctors wrote about a visit, one block a consultation in the order of the rows of
/// vwhConsultingDetailsForBillingAlt; "N/A" without a row.
QString treatmentPlan(const Recordset& consultations);

} // namespace orvane
