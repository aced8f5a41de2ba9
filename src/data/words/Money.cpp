#include "data/words/Money.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

/// The fifteen digits that a double holds for sure, as a plain decimal; so 1.005 is 1.005 and not 1.00499999999999989.
QString decimalText(double magnitude) {
    const int wholeDigits = magnitude < 1 ? 1 : int(std::floor(std::log10(magnitude))) + 1;
    return QString::number(magnitude, 'f', std::clamp(15 - wholeDigits, 0, 15));
}

/// Adds one to the last digit of a text of digits.
QString plusOne(QString digits) {
    for (auto i = digits.size() - 1; i >= 0; --i) {
        if (digits.at(i) != QLatin1Char('9')) {
            digits[i] = QChar(digits.at(i).unicode() + 1);
            return digits;
        }
        digits[i] = QLatin1Char('0');
    }
    return QLatin1Char('1') + digits;
}

/// The magnitude with exactly `decimals` decimals, half rounded up.
QString roundedText(double magnitude, int decimals) {
    const QString text = decimalText(magnitude);
    const auto point = text.indexOf(QLatin1Char('.'));
    QString whole = point < 0 ? text : text.left(point);
    const QString fraction = point < 0 ? QString() : text.mid(point + 1);
    QString digits = whole + fraction.left(decimals).leftJustified(decimals, QLatin1Char('0'));
    if (fraction.size() > decimals && fraction.at(decimals) >= QLatin1Char('5'))
        digits = plusOne(digits);
    return decimals == 0 ? digits : digits.left(digits.size() - decimals) + QLatin1Char('.') + digits.right(decimals);
}

QString grouped(QString whole) {
    for (auto i = whole.size() - 3; i > 0; i -= 3)
        whole.insert(i, QLatin1Char(','));
    return whole;
}

} // namespace

QString formatNumber(double value, const QString& format) {
    const auto sections = QStringView(format).split(QLatin1Char(';'));
    const bool ownNegative = value < 0 && sections.size() > 1;
    const QStringView section = ownNegative ? sections.at(1) : sections.at(0);
    const auto point = section.indexOf(QLatin1Char('.'));
    const QStringView wholePart = point < 0 ? section : section.left(point);
    const int decimals = point < 0 ? 0 : int(section.mid(point + 1).count(QLatin1Char('0')));

    const QString text = roundedText(std::abs(value), decimals);
    QString whole = decimals == 0 ? text : text.left(text.size() - decimals - 1);
    const bool isZero =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c == QLatin1Char('0') || c == QLatin1Char('.'); });
    if (whole == QLatin1String("0") && !wholePart.contains(QLatin1Char('0')))
        whole.clear();
    if (wholePart.contains(QLatin1Char(',')))
        whole = grouped(whole);
    QString result = decimals == 0 ? whole : whole + text.right(decimals + 1);
    if (section.startsWith(QLatin1Char('(')))
        return QLatin1Char('(') + result + QLatin1Char(')');
    return value < 0 && !isZero ? QLatin1Char('-') + result : result;
}

std::optional<double> parseAmount(const QString& text) {
    static const QRegularExpression plain(QStringLiteral(R"(^[+-]?(\d{1,3}(,\d{3})+|\d+)?(\.\d*)?$)"));
    QString trimmed = text.trimmed();
    const bool hasDigit = std::any_of(trimmed.begin(), trimmed.end(),
                                      [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
    if (!hasDigit || !plain.match(trimmed).hasMatch())
        return std::nullopt;
    bool ok = false;
    const double value = trimmed.remove(QLatin1Char(',')).toDouble(&ok);
    constexpr double halfKobo = 0.005;
    if (!ok || !std::isfinite(value) || (value != 0 && std::abs(value) < halfKobo))
        return std::nullopt;
    return value;
}

double roundTo(double value, int decimals) {
    const double magnitude = roundedText(std::abs(value), decimals).toDouble();
    return value < 0 ? -magnitude : magnitude;
}

double round2(double value) {
    return roundTo(value, 2);
}

} // namespace orvane
