#include "receipts/Forms.h"

#include "receipts/frmCashReceipt.h"

namespace orvane {

void registerReceiptForms(Program& program) {
    program.registerForm("frmCashReceipt", [](Program& owner) { return std::make_unique<frmCashReceipt>(owner); });
}

} // namespace orvane
