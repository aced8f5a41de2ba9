#include "receipts/Forms.h"

namespace orvane {

void registerReceiptForms(Program&) {}

} // namespace orvane
