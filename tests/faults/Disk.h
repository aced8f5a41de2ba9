#pragma once

namespace orvane {

/// From now on the embedded engine's writes to its files, or to those whose path contains `of`, fail with this error of
/// the system; 0: they succeed again.
void failWrites(int error, const char* of = "");

} // namespace orvane
