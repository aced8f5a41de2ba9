#include "bench/HomeCopy.h"

#include "bench/PgSession.h"
#include "play/QuietUi.h"
#include "session/Main.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace orvane {

namespace {

const QStringList databases = {"dunmarch", "accounting"};

void copyFile(const QString& from, const QString& to) {
    if (!QFile::copy(from, to))
        throw DataError(QStringLiteral("%1 cannot be copied to %2.").arg(from, to));
}

/// What orvane.ini says besides its servers.
QByteArray otherSections(const QString& path) {
    QFile file(path);
    QByteArray kept;
    bool ofServer = false;
    if (file.open(QIODevice::ReadOnly)) {
        while (!file.atEnd()) {
            const QByteArray line = file.readLine();
            if (line.startsWith('['))
                ofServer = line.startsWith("[server");
            if (!ofServer)
                kept += line;
        }
    }
    return kept;
}

} // namespace

HomeServer::HomeServer(const QString& homeFolder) {
    QuietUi ui;
    Program program(homeFolder, ui);
    if (!prepareServer(program))
        throw DataError(ui.takeBoxes().join(QLatin1Char('\n')));
    login = parseConnectionString(program.session.gConnStr);
    entry = ServerList(homeFolder).entry(login.server);
    if (entry.engine == Engine::SqlServer)
        throw DataError("The benchmarks know SQLite and PostgreSQL only.");
}

QString HomeServer::database(const QString& name) const {
    const QString logical = name.isEmpty() ? login.database : name;
    return entry.engine == Engine::Sqlite ? QDir(entry.folder).filePath(logical + ".db")
                                          : (entry.prefix + logical).toLower();
}

HomeCopy::HomeCopy(const QString& home, const QString& name) : m_server(home) {
    for (const QString& file : QDir(home).entryList({"*.sys", "*.JPG", "*.wav", "*.rpt"}, QDir::Files))
        copyFile(QDir(home).filePath(file), m_folder.filePath(file));
    if (engine() == Engine::Sqlite) {
        copyFiles();
    } else {
        m_prefix = QStringLiteral("bench%1_%2_").arg(QCoreApplication::applicationPid()).arg(name);
        copyDatabases();
    }
    writeIni(home);
}

HomeCopy::~HomeCopy() {
    if (engine() == Engine::Postgresql)
        dropDatabases();
}

/// The databases and what their last writer had not yet moved into them.
void HomeCopy::copyFiles() {
    QDir(m_folder.path()).mkpath("data");
    const QDir data(m_server.entry.folder);
    for (const QString& file : data.entryList({"*.db", "*.db-wal"}, QDir::Files))
        copyFile(data.filePath(file), m_folder.filePath("data/" + file));
}

void HomeCopy::copyDatabases() {
    PgSession maintenance(m_server.entry, m_server.login, "postgres");
    for (const QString& name : databases)
        maintenance.run(QStringLiteral("create database \"%1\" template \"%2\" strategy file_copy")
                            .arg(m_prefix + name, m_server.database(name))
                            .toUtf8());
}

void HomeCopy::dropDatabases() {
    PgSession maintenance(m_server.entry, m_server.login, "postgres");
    for (const QString& name : databases)
        maintenance.run(QStringLiteral("drop database if exists \"%1\" with (force)").arg(m_prefix + name).toUtf8());
}

void HomeCopy::writeIni(const QString& home) {
    const ServerEntry& entry = m_server.entry;
    QString text = QStringLiteral("[server %1]\n").arg(m_server.login.server);
    if (engine() == Engine::Sqlite)
        text += "engine = sqlite\nfolder = data\n";
    else
        text += QStringLiteral("engine = postgresql\nhost = %1\nport = %2\nprefix = %3\n")
                    .arg(entry.host)
                    .arg(entry.port > 0 ? entry.port : 5432)
                    .arg(m_prefix);
    QFile file(m_folder.filePath("orvane.ini"));
    if (!file.open(QIODevice::WriteOnly))
        throw DataError(QStringLiteral("%1 cannot be written.").arg(file.fileName()));
    file.write(text.toUtf8() + otherSections(QDir(home).filePath("orvane.ini")));
}

} // namespace orvane
