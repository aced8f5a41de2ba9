#include "session/StartFiles.h"

#include "data/words/ShownText.h"
#include "data/words/TextFile.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace orvane {

bool readMadeSys(Program& program) {
    const QString path = QDir(program.homeFolder()).filePath("made.sys");
    if (!QFile::exists(path)) {
        program.box("A System inifile bAccum required for this Application is MISSING");
        return false;
    }
    for (const QString& line : readTextLines(path)) {
        // The fourth character separates name and value and may be anything.
        if (line.startsWith(QLatin1String("SVR")))
            program.session.gServerName = line.mid(4);
        else if (line.startsWith(QLatin1String("HNO")))
            program.session.gHospID = line.mid(4);
    }
    return true;
}

bool readSysDoc(Program& program) {
    const QString path = QDir(program.homeFolder()).filePath("sysdoc.sys");
    if (!QFile::exists(path)) {
        program.box("A System file UName required for this Application is MISSING");
        return false;
    }
    for (const QString& line : readTextLines(path))
        program.session.gUsername = line;
    return true;
}

namespace {

/// One "key = value" of orvane.ini; the value is empty where the line has none.
struct IniLine {
    QString key, value;
    QString place; ///< file and line, for what is said of it
};

/// The lines of one section. None without the file.
QVector<IniLine> linesOf(const QString& homeFolder, const QString& section) {
    QVector<IniLine> lines;
    const QString path = QDir(homeFolder).filePath("orvane.ini");
    if (!QFile::exists(path))
        return lines;
    static const QRegularExpression comment("[;#].*");
    bool inside = false;
    int number = 0;
    for (QString line : readTextLines(path)) {
        line = line.remove(comment).trimmed();
        ++number;
        if (line.startsWith(QLatin1Char('[')))
            inside = line.mid(1, line.size() - 2).trimmed().compare(section, Qt::CaseInsensitive) == 0;
        else if (inside && !line.isEmpty())
            lines.append({line.section(QLatin1Char('='), 0, 0).trimmed(), line.section(QLatin1Char('='), 1).trimmed(),
                          QStringLiteral("%1, line %2").arg(path).arg(number)});
    }
    return lines;
}

} // namespace

QSet<QString> readMenuEntriesTurnedOn(const QString& homeFolder) {
    QSet<QString> turnedOn;
    for (const IniLine& line : linesOf(homeFolder, "menu"))
        if (line.value == QLatin1String("1"))
            turnedOn.insert(line.key.toLower());
    return turnedOn;
}

bool readRollPaper(const QString& homeFolder) {
    bool roll = false;
    for (const IniLine& line : linesOf(homeFolder, "print")) {
        if (line.key.compare(QLatin1String("paper"), Qt::CaseInsensitive) != 0)
            throw DataError(QStringLiteral("%1: the key \"%2\" is not known; [print] has paper = A4 or 80mm.")
                                .arg(line.place, shownText(line.key)));
        roll = line.value.compare(QLatin1String("80mm"), Qt::CaseInsensitive) == 0;
        if (!roll && line.value.compare(QLatin1String("A4"), Qt::CaseInsensitive) != 0)
            throw DataError(QStringLiteral("%1: the paper \"%2\" is not known; it is A4 or 80mm.")
                                .arg(line.place, shownText(line.value)));
    }
    return roll;
}

QString readJournalFolder(const QString& homeFolder) {
    QString folder = "journal";
    for (const IniLine& line : linesOf(homeFolder, "journal")) {
        if (line.key.compare(QLatin1String("folder"), Qt::CaseInsensitive) != 0)
            throw DataError(QStringLiteral("%1: the key \"%2\" is not known; [journal] has folder = NAME.")
                                .arg(line.place, shownText(line.key)));
        folder = line.value;
    }
    return QDir(homeFolder).filePath(folder);
}

} // namespace orvane
