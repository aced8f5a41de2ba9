#include "receipts/MoneyFields.h"

#include "books/Words.h"
#include "data/words/Money.h"

#include <cmath>

namespace orvane {

double nairaIn(const TextBox& field) {
    return round2(parseAmount(field.text()).value_or(0));
}

bool statesNaira(const TextBox& field) {
    return parseAmount(field.text()).value_or(-1) >= 0;
}

void showAmountInWords(const TextBox& amount, TextBox& words) {
    if (amount.text().isEmpty())
        return;
    const std::optional<double> naira = parseAmount(amount.text());
    words.setText(naira ? getValInWord(std::abs(*naira)) : QString());
}

} // namespace orvane
