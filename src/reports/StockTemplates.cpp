#include "reports/StockTemplates.h"

#include "data/DataError.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace orvane {

namespace {

const QString source = QStringLiteral(":/reports");

QByteArray read(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw DataError(QStringLiteral("The file %1 cannot be read: %2").arg(path, file.errorString()));
    return file.readAll();
}

void write(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        throw DataError(QStringLiteral("The file %1 cannot be written: %2").arg(path, file.errorString()));
}

/// An editor may have changed the line ends alone.
bool isUnedited(QByteArray content) {
    content.replace("\r\n", "\n");
    const qsizetype mark = content.lastIndexOf("# stock ");
    return mark >= 0 && content.mid(mark) == templateMark(content.left(mark));
}

} // namespace

QByteArray templateMark(const QByteArray& text) {
    return "# stock " + QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex().left(16) +
           ", without this line or changed this template is the hospital's own\n";
}

QStringList renewStockTemplates(const QString& folder) {
    QStringList written;
    for (const QString& name : QDir(source).entryList({"*.rpt"}, QDir::Files, QDir::Name)) {
        const QByteArray text = read(source + '/' + name), content = text + templateMark(text);
        const QString path = QDir(folder).filePath(name);
        const bool isThere = QFile::exists(path);
        const QByteArray old = isThere ? read(path) : QByteArray();
        if (isThere && (old == content || !isUnedited(old)))
            continue;
        write(path, content);
        written << name;
    }
    return written;
}

} // namespace orvane
