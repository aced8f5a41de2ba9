#include "data/words/ShownText.h"

namespace orvane {

QString onOneLine(const QString& text) {
    QString line;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n')
            continue;
        if (character == u'\n' || character == u'\r')
            line += "\\n";
        else if (character.category() == QChar::Other_Control && character != u'\t')
            line += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        else
            line += character;
    }
    return line;
}

QString shownText(const QString& text) {
    constexpr qsizetype longest = 40;
    QString part = text.left(longest);
    if (text.size() > longest && part.back().isHighSurrogate())
        part.chop(1); // half of a character
    const QString shown = onOneLine(part).replace(u'\t', "\\t");
    return part.size() < text.size() ? shown + "..." : shown;
}

} // namespace orvane
