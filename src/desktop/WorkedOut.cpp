#include "desktop/WorkedOut.h"

#include "data/words/Money.h"

#include <QRegularExpression>
#include <cmath>

namespace orvane {

namespace {

/// A product or quotient of plain numbers.
std::optional<double> product(const QString& text) {
    static const QRegularExpression factor("([*/]?)([0-9.,]+)");
    double result = 0;
    qsizetype end = 0;
    for (auto matches = factor.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const std::optional<double> number = parseAmount(match.captured(2));
        if (!number || match.capturedStart() != end || (end == 0) != match.captured(1).isEmpty())
            return std::nullopt;
        result = end == 0 ? *number : match.captured(1) == QLatin1String("*") ? result * *number : result / *number;
        end = match.capturedEnd();
    }
    return end == text.size() && end > 0 ? std::optional(result) : std::nullopt;
}

} // namespace

std::optional<double> workedOut(const QString& text) {
    static const QRegularExpression sign("(?=[+-])"), apart("\\s*([-+*/])\\s*");
    const QString sum = text.trimmed().replace(apart, "\\1");
    if (parseAmount(sum))
        return std::nullopt;
    double result = 0;
    for (const QString& part : sum.split(sign, Qt::SkipEmptyParts)) {
        const bool isSigned = part.startsWith(QLatin1Char('-')) || part.startsWith(QLatin1Char('+'));
        const std::optional<double> value = product(isSigned ? part.mid(1) : part);
        if (!value)
            return std::nullopt;
        result += part.startsWith(QLatin1Char('-')) ? -*value : *value;
    }
    return sum.isEmpty() || !std::isfinite(result) ? std::nullopt : std::optional(round2(result));
}

} // namespace orvane
