#pragma once

#include "forms/Controls.h"

namespace orvane {

/// Shows the naira that stand in `amount` as upper-case words in `words`; a minus reads like a plus, so that the words
/// of a reversal are those of its receipt. An empty amount leaves the words, a text that is no amount empties them.
void showAmountInWords(const TextBox& amount, TextBox& words);

} // namespace orvane
