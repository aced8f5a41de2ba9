#include "billing/frmExistBill.h"

namespace orvane {

frmExistBill::frmExistBill(Program& owner) : Screen(owner, "frmExistBill", "Prepare Private Bill") {}

Layout frmExistBill::layout() const {
    using namespace orvane::layout;
    return column({cell(OptNew), cell(OptExist), buttons({}, {&CancelButton})});
}

} // namespace orvane
