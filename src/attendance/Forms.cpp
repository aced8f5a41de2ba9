#include "attendance/Forms.h"

namespace orvane {

void registerAttendanceForms(Program&) {}

} // namespace orvane
