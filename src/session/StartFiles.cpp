#include "session/StartFiles.h"

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

QSet<QString> readMenuEntriesTurnedOn(const QString& homeFolder) {
    QSet<QString> turnedOn;
    const QString path = QDir(homeFolder).filePath("orvane.ini");
    if (!QFile::exists(path))
        return turnedOn;
    bool inMenu = false;
    static const QRegularExpression comment("[;#].*");
    for (QString line : readTextLines(path)) {
        line = line.remove(comment).trimmed();
        if (line.startsWith(QLatin1Char('[')))
            inMenu = line.compare(QLatin1String("[menu]"), Qt::CaseInsensitive) == 0;
        else if (inMenu && line.section(QLatin1Char('='), 1).trimmed() == QLatin1String("1"))
            turnedOn.insert(line.section(QLatin1Char('='), 0, 0).trimmed().toLower());
    }
    return turnedOn;
}

} // namespace orvane
