#include "receipts/Forms.h"

#include "receipts/frmCashReceipt.h"
#include "receipts/frmCashReceiptLab.h"
#include "receipts/frmDebtInfo.h"
#include "receipts/frmReceiptDeposit.h"
#include "receipts/frmReceiptManual.h"
#include "receipts/frmReceiptTemp.h"
#include "receipts/rptPanelSummary.h"

namespace orvane {

namespace {

template <typename FormClass>
std::unique_ptr<Form> make(Program& program) {
    return std::make_unique<FormClass>(program);
}

} // namespace

void registerReceiptForms(Program& program) {
    program.registerForm("frmCashReceipt", make<frmCashReceipt>);
    program.registerForm("frmCashReceiptLab", make<frmCashReceiptLab>);
    program.registerForm("frmDebtInfo", make<frmDebtInfo>);
    program.registerForm("frmReceiptDeposit", make<frmReceiptDeposit>);
    program.registerForm("frmReceiptManual", make<frmReceiptManual>);
    program.registerForm("frmReceiptTemp", make<frmReceiptTemp>);
    program.registerForm("rptPanelSummary", make<rptPanelSummary>);
}

} // namespace orvane
