#include "screens/Screens.h"

#include "attendance/Forms.h"
#include "billing/Forms.h"
#include "receipts/Forms.h"
#include "session/Forms.h"
#include "stock/Forms.h"

namespace orvane {

void registerScreens(Program& program) {
    registerSessionForms(program);
    registerAttendanceForms(program);
    registerReceiptForms(program);
    registerBillingForms(program);
    registerStockForms(program);
}

} // namespace orvane
