#include "stock/Forms.h"

#include "stock/frmDrugPrice.h"

namespace orvane {

namespace {

template <typename FormClass>
std::unique_ptr<Form> make(Program& program) {
    return std::make_unique<FormClass>(program);
}

} // namespace

void registerStockForms(Program& program) {
    program.registerForm("frmDrugPrice", make<frmDrugPrice>);
}

} // namespace orvane
