#pragma once

class QMenu;

namespace orvane {

class GridBinding;

/// What a right click on a list offers: its rows to copy, find in and export, its columns to show and hide.
QMenu* makeGridMenu(GridBinding& grid);

} // namespace orvane
