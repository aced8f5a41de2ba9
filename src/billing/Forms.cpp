#include "billing/Forms.h"

namespace orvane {

void registerBillingForms(Program&) {}

} // namespace orvane
