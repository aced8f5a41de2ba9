#include "billing/Forms.h"

#include "billing/frmApprvCode.h"
#include "billing/frmBillDiscount.h"
#include "billing/frmBillPat.h"
#include "billing/frmBillPatAdjust.h"
#include "billing/frmBillingVerify.h"
#include "billing/frmDecide.h"
#include "billing/frmExistBill.h"
#include "billing/frmPriceAdjust.h"
#include "billing/frmPriceAdjustCustom.h"
#include "billing/frmPriceAdjustSplit.h"
#include "billing/frmPriceAdjustVerify.h"
#include "billing/frmTreatment.h"

namespace orvane {

namespace {

template <typename FormClass>
std::unique_ptr<Form> make(Program& program) {
    return std::make_unique<FormClass>(program);
}

} // namespace

void registerBillingForms(Program& program) {
    program.registerForm("frmApprvCode", make<frmApprvCode>);
    program.registerForm("frmBillDiscount", make<frmBillDiscount>);
    program.registerForm("frmBillPat", make<frmBillPat>);
    program.registerForm("frmBillPatAdjust", make<frmBillPatAdjust>);
    program.registerForm("frmBillingVerify", make<frmBillingVerify>);
    program.registerForm("frmDecide", make<frmDecide>);
    program.registerForm("frmExistBill", make<frmExistBill>);
    program.registerForm("frmPriceAdjust", make<frmPriceAdjust>);
    program.registerForm("frmPriceAdjustCustom", make<frmPriceAdjustCustom>);
    program.registerForm("frmPriceAdjustSplit", make<frmPriceAdjustSplit>);
    program.registerForm("frmPriceAdjustVerify", make<frmPriceAdjustVerify>);
    program.registerForm("frmTreatment", make<frmTreatment>);
}

} // namespace orvane
