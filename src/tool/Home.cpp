#include "tool/Home.h"

#include "data/Assert.h"
#include "data/engine/ServerList.h"
#include "data/rows/Schema.h"
#include "reports/StockTemplates.h"

#include <QDir>
#include <QFile>

namespace orvane {

namespace {

constexpr const char* serverName = "HALDEN";

/// Hidden entries of the main window that a hospital may turn on.
constexpr const char* menuSection = "[menu]\n"
                                    "; hidden entries of the main window: 1 shows an entry\n"
                                    "mnuRct = 1\n"
                                    "mnuAdmDepo = 1\n"
                                    "mnuDisc = 1\n"
                                    "mnuDispense = 1\n"
                                    "mnuStockEntry = 1\n"
                                    "mnuBillPublic = 1\n"
                                    "mnuReal = 1\n"
                                    "mnusecurity = 0\n";

constexpr const char* printSection = "\n[print]\n"
                                     "; what receipts come on: A4 or 80mm\n"
                                     "paper = A4\n";

void writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly) || file.write(content) != content.size() || !file.flush())
        throw DataError(QStringLiteral("The file %1 cannot be written: %2").arg(path, file.errorString()));
}

QByteArray iniFile(const HomeOptions& options) {
    QString text = QStringLiteral("[server %1]\nengine = %2\n").arg(QLatin1String(serverName), options.engine);
    if (options.engine == QLatin1String("sqlite")) {
        text += "folder = data\n";
    } else {
        text += QStringLiteral("host = %1\n").arg(options.host);
        if (options.port > 0)
            text += QStringLiteral("port = %1\n").arg(options.port);
        if (!options.prefix.isEmpty())
            text += QStringLiteral("prefix = %1\n").arg(options.prefix);
    }
    return (text + QLatin1Char('\n') + QLatin1String(menuSection) + QLatin1String(printSection)).toUtf8();
}

QByteArray resource(const QString& name) {
    QFile file(QStringLiteral(":/demo/home/%1").arg(name));
    ORVANE_ASSERT(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// On the embedded engine a database is its file, whatever that holds.
bool isThere(Program& program, const QString& connectionString) {
    const ConnectionTarget target = parseConnectionString(connectionString);
    const ServerEntry entry = ServerList(program.homeFolder()).entry(target.server);
    if (entry.engine == Engine::Sqlite)
        return QFile::exists(QDir(entry.folder).filePath(target.database + ".db"));
    try {
        program.data().open(connectionString);
        return true;
    } catch (const DataError&) {
        return false; // the creation says why, when that is not for want of the database
    }
}

} // namespace

void writeHomeFiles(const QString& folder, const HomeOptions& options) {
    if (!QDir().mkpath(folder))
        throw DataError(QStringLiteral("The folder %1 cannot be made.").arg(folder));
    const QDir home(folder);
    const auto write = [&home](const QString& name, const QByteArray& content) {
        if (!home.exists(name))
            writeFile(home.filePath(name), content);
    };
    write("made.sys", QByteArray("SVR=") + serverName + "\nHNO=001\n");
    write("orvane.ini", iniFile(options));
    for (const char* name : {"RctPix.JPG", "RctPixLab.JPG", "RctPixDen.JPG", "ring1.wav"})
        write(QString::fromLatin1(name), resource(QString::fromLatin1(name)));
    renewStockTemplates(folder);
}

void writeSysDoc(const QString& folder, const QString& userName) {
    const QString path = QDir(folder).filePath("sysdoc.sys");
    QFile::remove(path);
    writeFile(path, userName.toUtf8() + '\n');
}

bool hasDatabase(Program& program) {
    const Session& session = program.session;
    return isThere(program, session.gConnStr) || isThere(program, session.gAcctConnStr) ||
           isThere(program, withDatabase(session.gConnStr, "Audit"));
}

void createDatabases(Program& program) {
    if (hasDatabase(program))
        throw DataError("A database of this home folder is there already; nothing was changed.");
    createDatabases(program.data(), program.session.gConnStr, program.session.gAcctConnStr);
}

} // namespace orvane
