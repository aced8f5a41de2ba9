#include "data/dialect/Sql.h"

#include "data/DataError.h"

#include <QLocale>
#include <cmath>

namespace orvane {

namespace {

bool hasLoneSurrogate(const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate()) {
            if (i + 1 >= text.size() || !text.at(i + 1).isLowSurrogate())
                return true;
            ++i;
        } else if (text.at(i).isLowSurrogate()) {
            return true;
        }
    }
    return false;
}

} // namespace

QString sqlQuotedText(const QString& value, const QString& what) {
    if (value.contains(QChar(u'\0')))
        throw DataError(QStringLiteral("%1 holds a character that cannot be stored (U+0000).").arg(what));
    if (hasLoneSurrogate(value))
        throw DataError(QStringLiteral("%1 holds half of a character, which cannot be stored.").arg(what));
    QString quoted = value;
    return quoted.replace(u'\'', "''");
}

QString sqlNumber(double value, const QString& what) {
    if (!std::isfinite(value))
        throw DataError(QStringLiteral("%1 is not a number that can be stored.").arg(what));
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

} // namespace orvane
