#pragma once

#include "data/rows/Recordset.h"

namespace orvane {

// Both read on the caller's connection and raise DataError.

/// The clinic of a visit; "" when it has none.
QString clinicOfVisit(Connection& connection, const QString& consultID);

/// The diagnoses of a visit, joined by " ; ".
QString diagnosisOfVisit(Connection& connection, const QString& consultID);

} // namespace orvane
