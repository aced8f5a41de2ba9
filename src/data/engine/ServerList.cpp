#include "data/engine/ServerList.h"

#include "data/DataError.h"
#include "data/words/ShownText.h"
#include "data/words/TextFile.h"

#include <QDir>
#include <QFile>
#include <QStringList>

namespace orvane {

namespace {

const QHash<QString, Engine>& engineNames() {
    static const QHash<QString, Engine> names = {
        {"sqlite", Engine::Sqlite}, {"postgresql", Engine::Postgresql}, {"sqlserver", Engine::SqlServer}};
    return names;
}

QString withoutComment(const QString& line) {
    qsizetype end = line.size();
    for (const QChar mark : {QChar(u';'), QChar(u'#')}) {
        const qsizetype at = line.indexOf(mark);
        end = at >= 0 ? std::min(end, at) : end;
    }
    return line.left(end).trimmed();
}

} // namespace

ConnectionTarget parseConnectionString(const QString& connectionString) {
    QHash<QString, QString> values;
    for (const QString& part : connectionString.split(u';', Qt::SkipEmptyParts))
        values.insert(part.section(u'=', 0, 0).trimmed().toLower(), part.section(u'=', 1).trimmed());
    ConnectionTarget target{values.value("server"), values.value("database"), values.value("uid"), values.value("pwd")};
    if (target.server.isEmpty() || target.database.isEmpty())
        throw DataError("The connection string names no server or no database.");
    return target;
}

QString withDatabase(const QString& connectionString, const QString& database) {
    QStringList parts = connectionString.split(u';');
    for (QString& part : parts)
        if (part.trimmed().startsWith("database=", Qt::CaseInsensitive))
            part = "Database=" + database;
    return parts.join(u';');
}

ServerList::ServerList(const QString& homeFolder) : m_homeFolder(homeFolder) {
    const QString path = QDir(homeFolder).filePath("orvane.ini");
    if (!QFile::exists(path))
        return;
    m_file = path;
    ServerEntry* entry = nullptr;
    bool elsewhere = false; // in a section that the program reads by itself
    int number = 0;
    for (const QString& raw : readTextLines(path)) {
        const QString line = withoutComment(raw);
        const QString place = QStringLiteral("%1, line %2").arg(path).arg(++number);
        if (line.isEmpty())
            continue;
        if (line.startsWith(u'[')) {
            const QString name = line.mid(1, line.size() - 2).trimmed();
            elsewhere =
                name.compare("menu", Qt::CaseInsensitive) == 0 || name.compare("print", Qt::CaseInsensitive) == 0;
            if (elsewhere)
                continue;
            if (!line.endsWith(u']') || !name.startsWith("server ", Qt::CaseInsensitive))
                throw DataError(QStringLiteral("%1: a section is written [server NAME].").arg(place));
            entry = &m_entries[name.mid(7).trimmed().toLower()];
            m_names += name.mid(7).trimmed();
        } else if (elsewhere) {
            continue;
        } else if (!entry || !line.contains(u'=')) {
            throw DataError(QStringLiteral("%1: \"key = value\" below a [server NAME] is expected.").arg(place));
        } else {
            set(*entry, line.section(u'=', 0, 0).trimmed().toLower(), line.section(u'=', 1).trimmed(), place);
        }
    }
}

void ServerList::set(ServerEntry& entry, const QString& key, const QString& value, const QString& place) const {
    if (key == "engine") {
        if (!engineNames().contains(value.toLower())) {
            throw DataError(QStringLiteral("%1: the engine \"%2\" is not known; it is sqlite, postgresql or sqlserver.")
                                .arg(place, shownText(value)));
        }
        entry.engine = engineNames().value(value.toLower());
    } else if (key == "port") {
        bool ok = false;
        entry.port = value.toInt(&ok);
        if (!ok || entry.port < 1 || entry.port > 65535)
            throw DataError(QStringLiteral("%1: \"%2\" is no port.").arg(place, shownText(value)));
    } else if (key == "folder") {
        entry.folder = value;
    } else if (key == "host") {
        entry.host = value;
    } else if (key == "prefix") {
        entry.prefix = value;
    } else if (key == "driver") {
        entry.driver = value;
    } else {
        throw DataError(QStringLiteral("%1: the key \"%2\" is not known.").arg(place, shownText(key)));
    }
}

ServerEntry ServerList::entry(const QString& server) const {
    if (!m_file.isEmpty() && !m_entries.contains(server.toLower())) {
        const QString known = m_names.isEmpty() ? "no [server ...]" : "[server " + m_names.join("], [server ") + ']';
        throw DataError(QStringLiteral("The server \"%1\", which made.sys names, is not in %2, which has %3.")
                            .arg(shownText(server), m_file, known));
    }
    ServerEntry entry = m_entries.value(server.toLower());
    entry.folder = QDir::cleanPath(QDir(m_homeFolder).absoluteFilePath(entry.folder));
    return entry;
}

} // namespace orvane
