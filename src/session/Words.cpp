#include "session/Words.h"

#include "data/words/FigToWrd.h"
#include "session/Program.h"

namespace orvane {

QString getValInWord(double amount) {
    return figToWrd().amountToWords(amount).toUpper();
}

void Program::amountToUpperWords() {
    session.sAmountWords = getValInWord(session.dBillTotal);
}

} // namespace orvane
