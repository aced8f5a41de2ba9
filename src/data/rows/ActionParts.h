#pragma once

#include "data/rows/Transaction.h"

namespace orvane {

/// Receipts, bills, their lines and discounts that are not what the parts of all saves make, by kind and document:
/// what is there less what was saved. Empty in a hospital in which only the program's saves have changed them.
QVector<SavedPart> moneyBesideSaves(Connection& billing);

/// Notes as a save of its own, OPENING, what rows came by no save of the program: a history that was made or loaded.
void noteOpening(Connection& billing);

} // namespace orvane
