#pragma once

namespace orvane {

/// The number that a database's schema must bear to be opened by this program. Each change of the schema raises it and
/// brings its step (rows/SchemaSteps.h).
inline constexpr int kSchemaVersion = 6;

} // namespace orvane
