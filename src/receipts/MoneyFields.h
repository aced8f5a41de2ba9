#pragma once

#include "forms/Controls.h"

namespace orvane {

/// The naira that a field states, in whole kobo, as they are printed and stored; 0 where it states no number.
double nairaIn(const TextBox& field);

/// Whether a field states an amount of naira that is not below 0.
bool statesNaira(const TextBox& field);

/// Shows the naira that stand in `amount` as upper-case words in `words`; a minus reads like a plus, so that the words
/// of a reversal are those of its receipt. An empty amount leaves the words, a text that is no amount empties them.
void showAmountInWords(const TextBox& amount, TextBox& words);

} // namespace orvane
