#include "attendance/Forms.h"

#include "attendance/frmCoyUpdate.h"
#include "attendance/frmFind.h"
#include "attendance/frmFlash.h"
#include "attendance/frmPatList.h"
#include "attendance/frmPatientInfo.h"
#include "attendance/frmRecordsOffline.h"
#include "attendance/frmReminder.h"

namespace orvane {

namespace {

template <typename FormClass>
std::unique_ptr<Form> make(Program& program) {
    return std::make_unique<FormClass>(program);
}

} // namespace

void registerAttendanceForms(Program& program) {
    program.registerForm("frmCoyUpdate", make<frmCoyUpdate>);
    program.registerForm("frmFind", make<frmFind>);
    program.registerForm("frmFlash", make<frmFlash>);
    program.registerForm("frmPatList", make<frmPatList>);
    program.registerForm("frmPatientInfo", make<frmPatientInfo>);
    program.registerForm("frmRecordsOffline", make<frmRecordsOffline>);
    program.registerForm("frmReminder", make<frmReminder>);
}

} // namespace orvane
