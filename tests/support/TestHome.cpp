#include "support/TestHome.h"

#include "data/engine/Rights.h"
#include "data/rows/Recordset.h"
#include "data/rows/Schema.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <atomic>
#include <stdexcept>

namespace orvane {

namespace {

const QString kServer = "SERVER";

void writeFile(const QString& path, const QString& text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        throw std::runtime_error("cannot write " + path.toStdString());
}

QString clusterValue(const QString& key) {
    for (const QString& part : qEnvironmentVariable("ORVANE_TEST_PG").split(u' ', Qt::SkipEmptyParts))
        if (part.section(u'=', 0, 0) == key)
            return part.section(u'=', 1);
    return {};
}

QString iniText(Engine engine, const QString& prefix) {
    if (engine == Engine::Sqlite)
        return QStringLiteral("[server %1]\nengine = sqlite\nfolder = data\n").arg(kServer);
    return QStringLiteral("[server %1]\nengine = postgresql\nhost = %2\nport = %3\nprefix = %4\n")
        .arg(kServer, clusterValue("host"), clusterValue("port"), prefix);
}

void writeHome(const QString& folder, Engine engine, const QString& prefix) {
    writeFile(folder + "/made.sys", QStringLiteral("SVR=%1\nHNO=001\n").arg(kServer));
    writeFile(folder + "/sysdoc.sys", "amina.b\n");
    writeFile(folder + "/orvane.ini", iniText(engine, prefix));
}

/// Runs statements on a database of the cluster, by default the one for maintenance.
void onCluster(const QStringList& statements, const QString& onDatabase = "postgres") {
    const QString name = "tests-maintenance";
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QPSQL", name);
        database.setHostName(clusterValue("host"));
        database.setPort(clusterValue("port").toInt());
        database.setUserName("zorva");
        database.setDatabaseName(onDatabase);
        if (!database.open())
            throw std::runtime_error(database.lastError().text().toStdString());
        for (const QString& statement : statements) {
            QSqlQuery query(database);
            if (!query.exec(statement))
                throw std::runtime_error(query.lastError().text().toStdString());
        }
    }
    QSqlDatabase::removeDatabase(name);
}

void dropDatabases(const QString& prefix) {
    for (const char* database : {"dunmarch", "accounting"})
        onCluster({QStringLiteral("drop database if exists \"%1%2\" with (force)").arg(prefix, database)});
}

/// Databases with the schema, made once a process and copied for each test.
class Original {
public:
    explicit Original(Engine engine)
        : m_engine(engine), m_prefix(QStringLiteral("t%1_").arg(QCoreApplication::applicationPid())) {
        writeHome(m_folder.path(), engine, m_prefix);
        DataSource source(m_folder.path());
        createDatabases(source, TestHome::billing(), TestHome::accounting());
    }
    ~Original() {
        if (m_engine == Engine::Postgresql)
            dropDatabases(m_prefix);
    }

    QString folder() const { return m_folder.path(); }
    QString prefix() const { return m_prefix; }

private:
    QTemporaryDir m_folder;
    Engine m_engine;
    QString m_prefix;
};

const Original& original(Engine engine) {
    if (engine == Engine::Sqlite) {
        static const Original sqlite(Engine::Sqlite);
        return sqlite;
    }
    static const Original postgresql(Engine::Postgresql);
    return postgresql;
}

void copyFiles(const QString& from, const QString& to) {
    QDir().mkpath(to + "/data");
    for (const char* name : {"Dunmarch.db", "Accounting.db", "Audit.db"}) {
        const QString file = "/data/" + QLatin1StringView(name);
        if (!QFile::copy(from + file, to + file))
            throw std::runtime_error("cannot copy " + file.toStdString());
    }
}

/// Clones the databases of a prefix under a new one, which it gives.
QString cloneDatabases(const QString& from) {
    static std::atomic<int> last = 0;
    const QString prefix = QStringLiteral("t%1_%2_").arg(QCoreApplication::applicationPid()).arg(++last);
    for (const char* database : {"dunmarch", "accounting"})
        onCluster({QStringLiteral("create database \"%1%3\" template \"%2%3\"").arg(prefix, from, database)});
    return prefix;
}

QString connectionString(const char* database) {
    return QStringLiteral("Driver={SQL Server};Server=%1;Database=%2;UID=zorva;PWD=vexlarin")
        .arg(kServer, QLatin1StringView(database));
}

} // namespace

QList<Engine> testEngines() {
    QList<Engine> engines = {Engine::Sqlite};
    if (qEnvironmentVariableIsSet("ORVANE_TEST_PG"))
        engines += Engine::Postgresql;
    return engines;
}

std::string engineName(Engine engine) {
    return engine == Engine::Sqlite ? "Sqlite" : engine == Engine::Postgresql ? "Postgresql" : "SqlServer";
}

TestHome::TestHome(Engine engine) : m_engine(engine) {
    copy(original(engine).folder(), original(engine).prefix());
}

TestHome::TestHome(const TestHome& laid) : m_engine(laid.m_engine) {
    copy(laid.folder(), laid.m_prefix);
}

void TestHome::copy(const QString& fromFolder, const QString& fromPrefix) {
    if (m_engine == Engine::Sqlite)
        copyFiles(fromFolder, folder());
    else
        m_prefix = cloneDatabases(fromPrefix);
    writeHome(folder(), m_engine, m_prefix);
}

TestHome::~TestHome() {
    if (m_engine == Engine::Postgresql)
        dropDatabases(m_prefix);
}

void TestHome::onServer(const QString& database, const QStringList& statements) const {
    onCluster(statements, m_prefix + database);
}

QString TestHome::billing() {
    return connectionString("Dunmarch");
}

QString TestHome::accounting() {
    return connectionString("Accounting");
}

LeastRights::LeastRights(const TestHome& home) : m_home(home) {
    if (home.engine() == Engine::Sqlite)
        return;
    m_login = QStringLiteral("least rights %1").arg(QCoreApplication::applicationPid());
    home.onServer("dunmarch", {QStringLiteral("create role \"%1\" login").arg(m_login)});
    home.onServer("dunmarch", rightsStatements(home.engine(), "billing", m_login));
    home.onServer("accounting", rightsStatements(home.engine(), "accounting", m_login));
    qputenv("ORVANE_DB_USER", m_login.toUtf8());
}

LeastRights::~LeastRights() {
    if (m_login.isEmpty())
        return;
    qunsetenv("ORVANE_DB_USER");
    const QString drop = QStringLiteral("drop owned by \"%1\"").arg(m_login);
    m_home.onServer("accounting", {drop});
    m_home.onServer("dunmarch", {drop, QStringLiteral("drop role \"%1\"").arg(m_login)});
}

QString EngineTest::scalar(const QString& tsql) {
    const Recordset rows = billing.run(tsql);
    return rows.eof() ? QString() : rows.text(0);
}

} // namespace orvane
