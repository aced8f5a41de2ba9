#include "data/ShownText.h"

namespace orvane {

QString onOneLine(const QString& text) {
    QString line;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n') {
            continue;
        }
        if (character == u'\n' || character == u'\r') {
            line += QStringLiteral("\\n");
        } else if (character.category() == QChar::Other_Control && character != u'\t') {
            line += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        } else {
            line += character;
        }
    }
    return line;
}

QString shownText(const QString& text) {
    constexpr qsizetype longest = 40;
    if (text.size() <= longest) {
        return onOneLine(text);
    }
    // Not in the middle of a character that takes two.
    const bool splits = text.at(longest - 1).isHighSurrogate();
    return onOneLine(text.left(splits ? longest - 1 : longest)) + QStringLiteral("...");
}

} // namespace orvane
