#pragma once

#include <QString>

namespace orvane {

/// What stands for the n-th value in a statement's form: one of these marks and three digits. A text's is a character
/// that Unicode keeps free of any meaning; a number's is a number, for a number is what the rules must see; any other
/// value's is a name that no schema has.
inline constexpr QStringView textMark = u"\uFDD0";
inline constexpr QStringView numberMark = u"7301946528";
inline constexpr QStringView valueMark = u"@orvane_";
inline constexpr qsizetype firstStandIn = 100;
inline constexpr qsizetype mostStandIns = 900;
inline constexpr qsizetype standInDigits = 3;

inline QString standIn(QStringView mark, qsizetype n) {
    return mark.toString() + QString::number(firstStandIn + n);
}

inline bool isAsciiDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// Whether a text holds what could be taken for a stand-in.
inline bool holdsStandIn(QStringView text) {
    return text.contains(textMark) || text.contains(numberMark) ||
           (text.contains(valueMark.front()) && text.contains(valueMark, Qt::CaseInsensitive));
}

} // namespace orvane
