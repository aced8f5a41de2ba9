#include "Damage.h"

#include <QRandomGenerator>

namespace orvane {

namespace {

void damage(const QByteArray& content, int step, int flipped, const std::function<void(const QByteArray&)>& use) {
    for (int length = 0; length < std::min<int>(int(content.size()), 4096); length += step)
        use(content.left(length));
    QRandomGenerator random(20260314);
    for (int i = 0; i < flipped; ++i) {
        QByteArray copy = content;
        for (int bits = 1 + random.bounded(4); bits > 0; --bits) {
            const int at = random.bounded(int(copy.size()));
            copy[at] = char(copy.at(at) ^ (1 << random.bounded(8)));
        }
        use(copy);
    }
}

} // namespace

int flippedCopies() {
    return qEnvironmentVariableIsSet("ORVANE_FILES_COUNT") ? qEnvironmentVariableIntValue("ORVANE_FILES_COUNT") : 10000;
}

void eachDamage(const QByteArray& content, int flipped, const std::function<void(const QByteArray&)>& use) {
    damage(content, 1, flipped, use);
}

void someDamage(const QByteArray& content, int flipped, const std::function<void(const QByteArray&)>& use) {
    damage(content, std::max(1, int(content.size()) / 20), flipped, use);
}

QString unclear(const QString& text) {
    if (text.isEmpty() || text.size() > 400)
        return QStringLiteral("%1 characters").arg(text.size());
    for (const QChar character : text)
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\t'))
            return QStringLiteral("a character U+%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
    for (const char* words : {"qsql", "constraint", "syntax error", "sqlstate", "libpq", "near \"", "near line", "::"})
        if (text.contains(QLatin1String(words), Qt::CaseInsensitive))
            return "the words " + QLatin1String(words);
    return {};
}

} // namespace orvane
