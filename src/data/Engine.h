#pragma once

namespace orvane {

/// The database engines that the program speaks to.
enum class Engine { Sqlite, Postgresql, SqlServer };

} // namespace orvane
