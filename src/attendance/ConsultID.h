#pragma once

#include "data/rows/Connection.h"

namespace orvane {

/// The next consultation id of a hospital: its three-character code, "OFL" and a serial of seven digits. Goes on from
/// the highest serial in use, or from the ids of the older form without a hospital code. An id that a deleted visit
/// has left on items or a bill is passed over, or the new visit would take over its charges. Nothing is reserved:
/// called inside the transaction that writes the visit, whose gate keeps other workstations out. Raises DataError.
QString genConsultID(Connection& connection, const QString& hospital);

} // namespace orvane
