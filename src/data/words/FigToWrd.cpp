#include "data/words/FigToWrd.h"

#include "data/words/Money.h"

#include <cmath>

namespace orvane {

namespace {

const char* const units[] = {"",      "One",  "Two", "Three",  "Four",   "Five",     "Six",      "Seven",
                             "Eight", "Nine", "Ten", "Eleven", "Twelve", "Thirteen", "Fourteen", "Fifteen"};
const char* const tens[] = {"", "", "Twenty", "Thirty", "Fourty", "Fifty", "Sixty", "Seventy", "Eighty", "Ninety"};
const char* const delimiters[] = {", ", " ", "-"};
const char* const paddings[] = {"", "*", "***"};

QString unit(int n) {
    return QLatin1String(units[n]);
}

QString twoDigitWords(int n) {
    if (n <= 15)
        return unit(n);
    if (n < 20)
        return unit(n - 10) + QLatin1String("teen");
    const QString ten = QLatin1String(tens[n / 10]);
    return n % 10 > 0 ? ten + QLatin1Char(' ') + unit(n % 10) : ten;
}

QString threeDigitWords(int n) {
    QString words;
    if (n >= 100)
        words = unit(n / 100) + QLatin1String(" Hundred");
    if (n % 100 > 0)
        words += (words.isEmpty() ? QString() : " And ") + twoDigitWords(n % 100);
    return words;
}

} // namespace

QString figToWrd::amountToWords(double amount) const {
    if (!(amount <= 999999999999.99))
        return "***";
    // Kobo are whole: the binary rest of an amount such as 0.29 is not.
    const qlonglong kobo = amount <= 0 ? 0 : std::llround(round2(amount) * 100);
    qlonglong rest = kobo / 100;
    const QString between = QLatin1String(delimiters[m_delimiter]);

    QString words;
    const struct {
        qlonglong size;
        const char* name;
    } groups[] = {{1000000000, " Billion"}, {1000000, " Million"}, {1000, " Thousand"}};
    for (const auto& group : groups) {
        const int count = int(rest / group.size);
        rest %= group.size;
        if (count > 0)
            words += threeDigitWords(count) + QLatin1String(group.name) + between;
    }
    words += threeDigitWords(int(rest));

    const int fraction = int(kobo % 100);
    if (fraction > 0) {
        words += " Naira and " + twoDigitWords(fraction) + " kobo only";
    } else {
        if (words.endsWith(QLatin1String(", ")))
            words.chop(2);
        words += " Naira";
    }
    if (m_case != 0)
        words = m_case == 1 ? words.toUpper() : words.toLower();
    const QString pad = QLatin1String(paddings[m_padding]);
    return pad + words + pad;
}

} // namespace orvane
