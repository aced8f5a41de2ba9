#include "receipts/Forms.h"

#include "receipts/frmCashReceipt.h"
#include "receipts/frmDebtInfo.h"
#include "receipts/frmReceiptDeposit.h"
#include "receipts/frmReceiptManual.h"
#include "receipts/frmReceiptTemp.h"

namespace orvane {

namespace {

template <typename FormClass>
std::unique_ptr<Form> make(Program& program) {
    return std::make_unique<FormClass>(program);
}

} // namespace

void registerReceiptForms(Program& program) {
    program.registerForm("frmCashReceipt", make<frmCashReceipt>);
    program.registerForm("frmDebtInfo", make<frmDebtInfo>);
    program.registerForm("frmReceiptDeposit", make<frmReceiptDeposit>);
    program.registerForm("frmReceiptManual", make<frmReceiptManual>);
    program.registerForm("frmReceiptTemp", make<frmReceiptTemp>);
}

} // namespace orvane
