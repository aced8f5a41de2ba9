#include "receipts/AmountInWords.h"

#include "books/Words.h"
#include "data/words/Money.h"

#include <cmath>

namespace orvane {

void showAmountInWords(const TextBox& amount, TextBox& words) {
    if (amount.text().isEmpty())
        return;
    const std::optional<double> naira = parseAmount(amount.text());
    words.setText(naira ? getValInWord(std::abs(*naira)) : QString());
}

} // namespace orvane
