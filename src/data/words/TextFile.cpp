#include "data/words/TextFile.h"

#include "data/DataError.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace orvane {

namespace {

constexpr qint64 longestLine = 64 * 1024;

QString decode(const QByteArray& line) {
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = utf8(line);
    return utf8.hasError() ? QString::fromLatin1(line) : text;
}

bool isText(const QString& line) {
    return std::none_of(
        line.begin(), line.end(), [](QChar c) { return c.category() == QChar::Other_Control && c != u'\t'; });
}

} // namespace

QStringList readTextLines(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw DataError(QStringLiteral("The file %1 cannot be read: %2").arg(name, file.errorString()));
    QStringList lines;
    while (!file.atEnd()) {
        QByteArray line = file.readLine(longestLine + 8); // its end and a byte order mark do not count
        if (line.isEmpty())
            throw DataError(QStringLiteral("The file %1 cannot be read: %2").arg(name, file.errorString()));
        if (line.endsWith('\n'))
            line.chop(line.endsWith("\r\n") ? 2 : 1);
        if (line.size() > longestLine)
            throw DataError(QStringLiteral("The file %1 has a line of more than 64 KB.").arg(name));
        if (lines.isEmpty() && line.startsWith("\xEF\xBB\xBF"))
            line.remove(0, 3);
        lines << decode(line);
        if (!isText(lines.last()))
            throw DataError(QStringLiteral("The file %1 is not a text file: see line %2.").arg(name).arg(lines.size()));
    }
    return lines;
}

} // namespace orvane
