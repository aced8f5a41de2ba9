#include "attendance/Forms.h"

#include "attendance/frmRecordsOffline.h"

namespace orvane {

void registerAttendanceForms(Program& program) {
    program.registerForm("frmRecordsOffline",
                         [](Program& owner) { return std::make_unique<frmRecordsOffline>(owner); });
}

} // namespace orvane
