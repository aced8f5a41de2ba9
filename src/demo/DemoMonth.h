#pragma once

#include "play/QuietUi.h"
#include "session/Program.h"

namespace orvane {

/// The billing officer's close of a month, on the program's own screens: the batch is reviewed, its lines get their
/// headings, and all its clients are invoiced. Raises DataError when a step does not go as it must.
void closeMonth(Program& program, QuietUi& ui, QDate month);

} // namespace orvane
