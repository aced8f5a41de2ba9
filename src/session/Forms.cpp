#include "session/Forms.h"

namespace orvane {

void registerSessionForms(Program&) {}

} // namespace orvane
