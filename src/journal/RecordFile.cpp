#include "journal/RecordFile.h"

#include "data/words/TextFile.h"

#include <QFile>
#include <QSaveFile>

namespace orvane {

namespace {

const QLatin1Char between('\t');

/// A field holds no tab and no end of a line.
QByteArray lineOf(const QStringList& fields) {
    QStringList plain;
    for (const QString& field : fields)
        plain << field.simplified();
    return plain.join(between).toUtf8() + '\n';
}

} // namespace

std::optional<QVector<QStringList>> readRecords(const QString& path, const QStringList& columns) {
    if (!QFile::exists(path))
        return {};
    QVector<QStringList> records;
    for (const QString& line : readTextLines(path).mid(1)) {
        if (line.trimmed().isEmpty())
            continue;
        QStringList fields = line.split(between);
        while (fields.size() < columns.size())
            fields << QString();
        records << fields;
    }
    return records;
}

bool replaceRecords(const QString& path, const QStringList& columns, const QVector<QStringList>& records) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QByteArray text = lineOf(columns);
    for (const QStringList& record : records)
        text += lineOf(record);
    return file.write(text) == text.size() && file.commit();
}

} // namespace orvane
