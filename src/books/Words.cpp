#include "books/Words.h"

#include "data/words/FigToWrd.h"

namespace orvane {

QString getValInWord(double amount) {
    return figToWrd().amountToWords(amount).toUpper();
}

} // namespace orvane
