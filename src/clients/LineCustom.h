#pragma once

#include "forms/Grid.h"
#include "session/Program.h"

namespace orvane {

/// How a grid of bill lines looks.
void prepareLines(Grid& lines);

/// Opens the current line of a grid to be changed before its bill is processed, and returns when that screen has
/// closed. Says so when there is no line, or its bill is processed: false.
bool customiseCurrentLine(Program& program, const Grid& lines);

} // namespace orvane
