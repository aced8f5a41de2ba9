#pragma once

namespace orvane {

/// The version that a database must bear to be opened by this program.
inline constexpr int kSchemaVersion = 1;

} // namespace orvane
