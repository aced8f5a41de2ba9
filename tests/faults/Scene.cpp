#include "Scene.h"

#include "support/Check.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>
#include <stdexcept>
#include <sys/mount.h>

namespace orvane {

namespace {

const QHash<QString, QString> iniOf(const QString& folder) {
    QFile file(folder + "/orvane.ini");
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no orvane.ini");
    QHash<QString, QString> values;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
        values.insert(line.section('=', 0, 0).trimmed(), line.section('=', 1).trimmed());
    return values;
}

/// Makes the program of a home go through the proxy.
void redirect(const QString& folder, int port) {
    QFile file(folder + "/orvane.ini");
    if (!file.open(QIODevice::ReadWrite))
        throw std::runtime_error("no orvane.ini");
    const QString text = QString::fromUtf8(file.readAll())
                             .replace(QRegularExpression("host = \\S+"), "host = 127.0.0.1")
                             .replace(QRegularExpression("port = \\d+"), QString("port = %1").arg(port));
    file.resize(0);
    file.write(text.toUtf8());
}

} // namespace

Beside::Beside(const QString& homeFolder) {
    static int last = 0;
    m_name = QString("beside-%1").arg(++last);
    const auto ini = iniOf(homeFolder);
    if (ini.value("engine") == "sqlite") {
        m_database = QSqlDatabase::addDatabase("QSQLITE", m_name);
        m_database.setDatabaseName(QDir(homeFolder).filePath(ini.value("folder")) + "/Dunmarch.db");
    } else {
        m_database = QSqlDatabase::addDatabase("QPSQL", m_name);
        m_database.setHostName(ini.value("host"));
        m_database.setPort(ini.value("port").toInt());
        m_database.setUserName("zorva");
        m_database.setDatabaseName(ini.value("prefix") + "dunmarch");
        m_database.setConnectOptions("options='-c client_min_messages=error'");
    }
    if (!m_database.open())
        throw std::runtime_error(m_database.lastError().text().toStdString());
}

Beside::~Beside() {
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

QString Beside::run(const QString& statement) {
    QSqlQuery query(m_database);
    if (!query.exec(statement))
        throw std::runtime_error(query.lastError().text().toStdString());
    return query.next() ? query.value(0).toString() : QString();
}

SmallDisk::SmallDisk(const QString& folder) : m_folder(folder) {
    const QTemporaryDir kept;
    if (QProcess::execute("cp", {"-a", folder + "/.", kept.path()}) != 0)
        throw std::runtime_error("the databases cannot be copied");
    m_mounted = mount("tmpfs", folder.toUtf8().constData(), "tmpfs", 0, "size=24m") == 0;
    if (m_mounted && QProcess::execute("cp", {"-a", kept.path() + "/.", folder}) != 0)
        throw std::runtime_error("the databases cannot be copied back");
}

SmallDisk::~SmallDisk() {
    if (m_mounted)
        umount2(m_folder.toUtf8().constData(), MNT_DETACH);
}

void SmallDisk::fill() {
    QFile filler(m_folder + "/filler");
    if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw std::runtime_error("no filler");
    for (qint64 size = 1 << 20; size > 0; size /= 2)
        for (const QByteArray block(size, 'x'); filler.write(block) == size;) {
        }
}

void SmallDisk::freeUp() {
    QFile::remove(m_folder + "/filler");
}

Scene::Scene(Engine tested, const MoneyAction& played) : engine(tested), action(played), m_home(tested) {
    if (engine == Engine::Sqlite)
        disk = std::make_unique<SmallDisk>(m_home.folder() + "/data");
    m_watcherHome = std::make_unique<SecondHome>(m_home);
    layAction(folder(), action);
    if (engine == Engine::Postgresql) {
        proxy = std::make_unique<Proxy>(iniOf(folder()).value("port").toInt());
        redirect(m_home.folder(), proxy->port());
    }
    ws = std::make_unique<Workstation>(m_home.folder());
    if (!ws->start())
        throw std::runtime_error("the program does not start");
    action.enter(*ws);
    takeShown(ws->ui);
}

Scene::Told Scene::press() {
    action.press(*ws);
    const QStringList shown = takeShown(ws->ui);
    return {shown.filter("box ").replaceInStrings(QRegularExpression("^box "), QString()), action.isReportedBy(shown)};
}

QString Scene::figures() {
    Workstation watcher(folder());
    return moneyFigures(watcher);
}

QStringList Scene::findings() {
    Workstation watcher(folder());
    return checkDatabases(watcher.program).findings;
}

void Scene::waitForServer() {
    Beside server(folder());
    for (int i = 0; i < 1000; ++i) {
        if (server.run(
                "select count(*) from pg_stat_activity where datname=current_database() and pid<>pg_backend_pid() "
                "and xact_start is not null") == "0")
            return;
        QThread::msleep(10);
    }
    throw std::runtime_error("a transaction stays open");
}

} // namespace orvane
