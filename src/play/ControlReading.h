#pragma once

#include "forms/Form.h"

#include <QStringList>

namespace orvane {

// What the commands of a script write of a control.

/// "visible" or "hidden", "enabled" or "disabled", then "locked" where it is. A frame's flags reach its controls, a
/// menu's its entries.
QString stateOf(const Control& control);
/// The entries of a list, drop-down or tree, the panels of a status bar, the entries of a menu by name; empty optional:
/// it has none.
std::optional<QStringList> itemsOf(const Control& control);
/// The rows of a grid as they are shown: cells apart by tabs, the head first, hidden columns left out; empty optional:
/// it is no grid.
std::optional<QStringList> rowsOf(const Control& control);
/// All rows of a query as rowsOf gives those of a grid; nothing when the statement gives no columns.
QStringList rowsOf(Recordset rows);

} // namespace orvane
