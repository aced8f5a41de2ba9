#include "session/Words.h"

#include "data/FigToWrd.h"
#include "session/Program.h"

namespace orvane {

QString getValInWord(double amount) {
    return figToWrd().amountToWords(amount).toUpper();
}

void Program::amountToUpperWords() {
    session.sAmountWords = getValInWord(session.dBillTotal);
}

} // namespace orvane
