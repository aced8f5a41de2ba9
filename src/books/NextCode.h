#pragma once

#include "data/rows/Recordset.h"

#include <optional>

namespace orvane {

/// The code behind the highest one in use, which stands in the column ID of `highest` (null: none is), as so many
/// digits with leading zeros; a digit too many is lost on the left. Nothing where there is no row, or no number in it.
std::optional<QString> nextCode(Connection& connection, const Sql& highest, int digits);

} // namespace orvane
