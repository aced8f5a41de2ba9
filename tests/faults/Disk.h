#pragma once

namespace orvane {

/// From now on the embedded engine's writes to its files fail with this error of the system; 0: they succeed again.
void failWrites(int error);

} // namespace orvane
