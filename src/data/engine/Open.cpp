#include "data/engine/ExactSum.h"
#include "data/engine/Faults.h"
#include "data/engine/Physical.h"
#include "data/engine/SchemaVersion.h"
#include "data/engine/Source.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QProcessEnvironment>
#include <QSqlDriver>
#include <QSqlError>
#include <QUrl>
#include <pwd.h>
#include <sqlite3.h>
#include <unistd.h>

namespace orvane {

namespace {

using Physical = std::shared_ptr<PhysicalConnection>;

QString uniqueName() {
    static std::atomic<qint64> last = 0;
    return QStringLiteral("orvane-%1").arg(++last);
}

/// Which tables a database of that name holds.
QString schemaOf(const QString& database) {
    const QString name = database.toLower();
    return name == "accounting" || name == "audit" ? name : "billing";
}

/// The one line that an administrator needs. `database` names it and its place.
void requirePresentSchema(const Physical& physical, const QString& database, int version) {
    if (version == kSchemaVersion || physical->source->anySchema)
        return;
    if (version == 0)
        throw DataError(QStringLiteral("The database %1 has no schema of this program.").arg(database));
    const QString way =
        version < kSchemaVersion
            ? QStringLiteral("upgrade it with: orvane-db upgrade --home \"%1\"").arg(physical->source->homeFolder)
            : QStringLiteral("it was upgraded (orvane-db upgrade) for a newer program, which must be "
                             "installed here");
    throw DataError(QStringLiteral("The database %1 has the schema %2; this program needs %3: %4.")
                        .arg(database)
                        .arg(version)
                        .arg(kSchemaVersion)
                        .arg(way));
}

// SQLite

sqlite3* handleOf(const QSqlDatabase& database) {
    const QVariant handle = database.driver()->handle();
    return *static_cast<sqlite3* const*>(handle.constData());
}

void giveText(sqlite3_context* context, const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    sqlite3_result_text(context, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
}

/// getdate(): the source's fixed clock, or the machine's.
void getDate(sqlite3_context* context, int, sqlite3_value**) {
    // Asked again for every row of a list: the machine's time is written once a second.
    thread_local qint64 writtenFor = 0;
    thread_local QString written;
    static const QString form = "yyyy-MM-dd HH:mm:ss";
    const auto* source = static_cast<const Source*>(sqlite3_user_data(context));
    if (const std::optional<QDateTime> fixed = source->clock()) {
        giveText(context, fixed->toString(form));
        return;
    }
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    if (now != writtenFor) {
        writtenFor = now;
        written = QDateTime::fromSecsSinceEpoch(now).toString(form);
    }
    giveText(context, written);
}

/// sysdatetime(): the machine's clock, whatever clock is fixed for scripts.
void systemTime(sqlite3_context* context, int, sqlite3_value**) {
    giveText(context, QDateTime::currentDateTime().toString("yyyy-MM-dd HH:mm:ss"));
}

/// suser_sname(): who runs this process, by the system's own list of users.
void systemUser(sqlite3_context* context, int, sqlite3_value**) {
    const passwd* user = getpwuid(getuid());
    giveText(context, user ? QString::fromLocal8Bit(user->pw_name) : QString());
}

/// orvane_text(x): a number as T-SQL writes it, without ".0" behind a whole one; a text as it is.
void textOf(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_FLOAT)
        giveText(context, QString::number(sqlite3_value_double(arguments[0]), 'f', QLocale::FloatingPointShortest));
    else
        sqlite3_result_value(context, arguments[0]);
}

void prepareSqlite(const Physical& physical, const std::shared_ptr<Source>& source) {
    sqlite3* handle = handleOf(physical->database);
    // A misspelt name in double quotes is a fault, not a text.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_create_function(handle, "getdate", 0, SQLITE_UTF8, source.get(), getDate, nullptr, nullptr);
    sqlite3_create_function(handle, "sysdatetime", 0, SQLITE_UTF8, nullptr, systemTime, nullptr, nullptr);
    sqlite3_create_function(handle, "suser_sname", 0, SQLITE_UTF8, nullptr, systemUser, nullptr, nullptr);
    sqlite3_create_function(handle, "orvane_text", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, textOf, nullptr,
                            nullptr);
    installExactSum(handle);
}

QString databaseFile(const ServerEntry& entry, const QString& database) {
    return QDir(entry.folder).filePath(database + ".db");
}

void openSqlite(const Physical& physical, const ServerEntry& entry, const ConnectionTarget& target, bool create) {
    const QString path = databaseFile(entry, target.database);
    const bool exists = QFileInfo(path).size() > 0;
    if (create && exists)
        throw DataError(QStringLiteral("The database file %1 exists already.").arg(path));
    if (!create && !QFileInfo::exists(path))
        throw DataError(QStringLiteral("The database file %1 does not exist.").arg(path));
    if (create && !QDir().mkpath(entry.folder))
        throw DataError(QStringLiteral("The folder %1 cannot be made.").arg(entry.folder));
    physical->gate = path;
    physical->database = QSqlDatabase::addDatabase("QSQLITE", physical->name);
    physical->database.setConnectOptions(
        QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1").arg(physical->source->lockWait));
    physical->database.setDatabaseName(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded) +
                                       (create ? "?mode=rwc" : "?mode=rw"));
    if (!physical->database.open()) {
        throw DataError(QStringLiteral("The database file %1 cannot be opened: %2")
                            .arg(path, engineWords(physical->database.lastError())));
    }
    prepareSqlite(physical, physical->source);
    if (sqlite3_db_readonly(handleOf(physical->database), "main") == 1)
        throw DataError(QStringLiteral("The database file %1 is read-only.").arg(path));
    QSqlQuery query(physical->database);
    if (!query.exec("pragma user_version") || !query.next()) {
        const bool foreign = query.lastError().nativeErrorCode() == "26";
        throw DataError(foreign ? QStringLiteral("The file %1 is not a database.").arg(path)
                                : faultText(Engine::Sqlite, query.lastError(), false, false));
    }
    const int version = query.value(0).toInt();
    query.finish();
    if (!create)
        requirePresentSchema(physical, path, version);
    const char* waiting = physical->source->disposable ? "pragma synchronous=off" : "pragma synchronous=full";
    // 16 MB of pages: the engine's own 2 MB are too few for a list of some hundred patients of half a million.
    for (const char* pragma :
         {"pragma journal_mode=wal", waiting, "pragma foreign_keys=on", "pragma cache_size=-16384"})
        physical->sendNative(QLatin1StringView(pragma));
}

// PostgreSQL and SQL Server

QString fromEnvironment(const char* name, const QString& otherwise) {
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariable(name) : otherwise;
}

QString serverDatabase(const ServerEntry& entry, const ConnectionTarget& target) {
    const QString name = entry.prefix + target.database;
    return entry.engine == Engine::Postgresql ? name.toLower() : name;
}

/// A server or a network that is gone is noticed within half a minute on both sides: a program that waits for a dead
/// server does not hang, and a workstation that died in mid-save does not keep the gate from all others. The server
/// compiles no expressions: for a month's list that takes longer than it saves.
QString postgresqlOptions(int lockWait) {
    return QStringLiteral("connect_timeout=10;tcp_user_timeout=30000;keepalives_idle=15;keepalives_interval=5;"
                          "keepalives_count=3;options='-c standard_conforming_strings=on -c lock_timeout=%1 -c "
                          "client_min_messages=warning -c jit=off "
                          "-c idle_in_transaction_session_timeout=30000 -c tcp_keepalives_idle=15 "
                          "-c tcp_keepalives_interval=5 -c tcp_keepalives_count=3'")
        .arg(lockWait);
}

/// The driver's library takes host, password, time zone and options of a session from PG* where nobody gives them: what
/// a workstation's environment holds is none of this program's business. (With a time zone of its own, audit rows went
/// back a day; with standard_conforming_strings off, a text could end its statement.)
void forgetEnvironmentOfPostgresql() {
    for (const QString& name : QProcessEnvironment::systemEnvironment().keys())
        if (name.startsWith(QLatin1String("PG")))
            qunsetenv(name.toLocal8Bit().constData());
}

void connectServer(const Physical& physical, const ServerEntry& entry, const ConnectionTarget& target,
                   const QString& database) {
    const bool postgresql = entry.engine == Engine::Postgresql;
    physical->database = QSqlDatabase::addDatabase(postgresql ? "QPSQL" : "QODBC", physical->name);
    physical->database.setUserName(fromEnvironment("ORVANE_DB_USER", target.user));
    physical->database.setPassword(fromEnvironment("ORVANE_DB_PASSWORD", target.password));
    if (postgresql) {
        forgetEnvironmentOfPostgresql();
        physical->database.setHostName(entry.host);
        physical->database.setPort(entry.port > 0 ? entry.port : 5432);
        physical->database.setDatabaseName(database);
        physical->database.setConnectOptions(postgresqlOptions(physical->source->lockWait));
    } else {
        physical->database.setDatabaseName(
            QStringLiteral("Driver={%1};Server=%2,%3;Database=%4;TrustServerCertificate=yes")
                .arg(entry.driver, entry.host)
                .arg(entry.port > 0 ? entry.port : 1433)
                .arg(database));
    }
    if (!physical->database.open()) {
        throw DataError(QStringLiteral("The database server cannot be reached. Please try again; if it stays so, tell "
                                       "the administrator.\n(The database %1 on %2 cannot be opened: %3)")
                            .arg(database, entry.host, engineWords(physical->database.lastError())));
    }
}

void disconnect(const Physical& physical) {
    physical->database.close();
    physical->database = QSqlDatabase();
    QSqlDatabase::removeDatabase(physical->name);
}

void createOnServer(const Physical& physical, const ServerEntry& entry, const ConnectionTarget& target,
                    const QString& database) {
    const bool postgresql = entry.engine == Engine::Postgresql;
    connectServer(physical, entry, target, postgresql ? "postgres" : "master");
    // The plain collation makes texts sort and compare as on the other engines, and prefix searches use their index.
    physical->sendNative(postgresql ? QStringLiteral("create database \"%1\" template template0 encoding 'UTF8' "
                                                     "lc_collate 'C' lc_ctype 'C.UTF-8'")
                                          .arg(database)
                                    : QStringLiteral("create database [%1]").arg(database));
    disconnect(physical);
}

/// In any other order the prefix searches would miss rows.
void requirePlainCollation(const Physical& physical, const QString& database, const ServerEntry& entry) {
    if (entry.engine != Engine::Postgresql)
        return;
    QSqlQuery query = physical->sendNative("select datcollate from pg_database where datname = current_database()");
    const QString collation = query.next() ? query.value(0).toString() : QString();
    if (collation != "C") {
        throw DataError(QStringLiteral("The database %1 on %2 sorts texts by %3, not by C: orvane-db must create it.")
                            .arg(database, entry.host, collation));
    }
}

void openServer(const Physical& physical, const ServerEntry& entry, const ConnectionTarget& target, bool create) {
    const QString database = serverDatabase(entry, target);
    physical->gate = QStringLiteral("%1:%2/%3").arg(entry.host).arg(entry.port).arg(database);
    if (create)
        createOnServer(physical, entry, target, database);
    connectServer(physical, entry, target, database);
    if (entry.engine == Engine::SqlServer)
        physical->sendNative("set dateformat ymd");
    if (create)
        return;
    requirePlainCollation(physical, database, entry);
    QSqlQuery query(physical->database);
    const int version = query.exec("select version from orvaneSchema") && query.next() ? query.value(0).toInt() : 0;
    requirePresentSchema(physical, database + " on " + entry.host, version);
}

} // namespace

Physical openPhysical(const std::shared_ptr<Source>& source, const QString& connectionString, bool create) {
    const ConnectionTarget target = parseConnectionString(connectionString);
    const ServerEntry entry = source->servers.entry(target.server);
    const Physical physical = std::make_shared<PhysicalConnection>();
    physical->source = source;
    physical->engine = entry.engine;
    physical->connectionString = connectionString;
    physical->schema = schemaOf(target.database);
    physical->name = uniqueName();
    if (entry.engine == Engine::Sqlite)
        openSqlite(physical, entry, target, create);
    else
        openServer(physical, entry, target, create);
    return physical;
}

QString copyPhysical(const std::shared_ptr<Source>& source, const QString& connectionString, const QString& suffix) {
    const ConnectionTarget target = parseConnectionString(connectionString);
    const ServerEntry entry = source->servers.entry(target.server);
    if (entry.engine == Engine::Sqlite) {
        QString copy = databaseFile(entry, target.database + suffix);
        for (int number = 2; QFileInfo::exists(copy); ++number)
            copy = databaseFile(entry, target.database + suffix + u'-' + QString::number(number));
        openPhysical(source, connectionString, false)
            ->sendNative(QStringLiteral("vacuum into '%1'").arg(QString(copy).replace(u'\'', "''")));
        return copy;
    }
    if (entry.engine != Engine::Postgresql)
        throw DataError("This server makes copies by its own tools.");
    const Physical physical = std::make_shared<PhysicalConnection>();
    physical->source = source;
    physical->engine = entry.engine;
    physical->name = uniqueName();
    connectServer(physical, entry, target, "postgres");
    const QString original = serverDatabase(entry, target);
    QString copy = original + suffix;
    const QString count = "select count(*) from pg_database where datname = '%1'";
    for (int number = 2;; ++number) {
        QSqlQuery taken = physical->sendNative(count.arg(copy));
        if (taken.next() && taken.value(0).toInt() == 0)
            break;
        copy = original + suffix + u'_' + QString::number(number);
    }
    physical->sendNative(QStringLiteral("create database \"%1\" template \"%2\"").arg(copy, original));
    disconnect(physical);
    return copy;
}

} // namespace orvane
