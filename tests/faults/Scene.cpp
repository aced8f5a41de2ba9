#include "Scene.h"

#include "data/engine/ServerList.h"
#include "support/Check.h"

#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>
#include <stdexcept>

namespace orvane {

namespace {

/// Makes the program of a home reach its server through the network that breaks.
void redirect(const QString& folder) {
    QFile file(folder + "/orvane.ini");
    if (!file.open(QIODevice::ReadWrite))
        throw std::runtime_error("no orvane.ini");
    const QString text = QString::fromUtf8(file.readAll())
                             .replace(QRegularExpression("port = \\d+"), QString("port = %1").arg(Network::port));
    file.resize(0);
    file.write(text.toUtf8());
}

} // namespace

Beside::Beside(const QString& homeFolder, const QString& database) {
    static int last = 0;
    m_name = QString("beside-%1").arg(++last);
    const ServerEntry server = ServerList(homeFolder).entry("SERVER");
    if (server.engine == Engine::Sqlite) {
        m_database = QSqlDatabase::addDatabase("QSQLITE", m_name);
        m_database.setDatabaseName(server.folder + '/' + database + ".db");
    } else {
        m_database = QSqlDatabase::addDatabase("QPSQL", m_name);
        m_database.setHostName(server.host);
        m_database.setPort(server.port);
        m_database.setUserName("zorva");
        m_database.setDatabaseName(server.prefix + database.toLower());
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

Scene::Scene(Engine tested, const MoneyAction& played) : engine(tested), action(played), m_home(tested) {
    m_watcherHome = std::make_unique<SecondHome>(m_home);
    layAction(folder(), action);
    if (engine == Engine::Postgresql) {
        network = std::make_unique<Network>(ServerList(folder()).entry("SERVER").port);
        redirect(m_home.folder());
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
    return besideTheTrail(checkDatabases(watcher.program).findings);
}

void Scene::waitForServer() {
    Beside server(folder());
    for (int i = 0; i < 1000; ++i) {
        if (server.run(
                "select count(*) from pg_stat_activity where backend_type='client backend' and pid<>pg_backend_pid() "
                "and xact_start is not null") == "0")
            return;
        QThread::msleep(10);
    }
    throw std::runtime_error("a transaction stays open");
}

QString figuresAfter(const MoneyAction& action) {
    static QHash<QString, QString> known;
    QString& figures = known[QLatin1String(action.name)];
    if (figures.isEmpty()) {
        Scene scene(Engine::Sqlite, action);
        EXPECT_TRUE(scene.press().reported);
        figures = scene.figures();
    }
    return figures;
}

} // namespace orvane
