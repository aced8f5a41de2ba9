#pragma once

struct sqlite3;

namespace orvane {

/// Replaces sum() on a connection of the embedded engine: amounts that are whole ten-thousandths of a naira are added
/// as such, so that debits and credits that balance make exactly 0, as they do in a server's money column. Numbers that
/// are not, and whole numbers, are added as the engine would.
void installExactSum(sqlite3* handle);

} // namespace orvane
