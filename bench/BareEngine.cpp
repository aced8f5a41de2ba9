#include "bench/BareEngine.h"

#include "data/Assert.h"
#include "data/Translator.h"

#include <QDateTime>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdio>
#include <libpq-fe.h>
#include <sqlite3.h>

namespace orvane {

namespace {

[[noreturn]] void refuse(const char* message, const QByteArray& statement) {
    std::fprintf(stderr, "%s\n%s\n", message, statement.constData());
    std::abort();
}

class BareSqlite : public BareEngine {
public:
    explicit BareSqlite(const QString& dataFolder) : BareEngine(Engine::Sqlite) {
        m_billing = copyOf(dataFolder, "Dunmarch.db");
        m_audit = copyOf(dataFolder, "Audit.db");
    }
    ~BareSqlite() override {
        sqlite3_close(m_billing);
        sqlite3_close(m_audit);
    }

    void run(const BareStatement& statement) override {
        sqlite3* database = statement.audit ? m_audit : m_billing;
        sqlite3_stmt* prepared = nullptr;
        if (sqlite3_prepare_v2(database, statement.text.constData(), int(statement.text.size()), &prepared, nullptr) !=
            SQLITE_OK)
            refuse(sqlite3_errmsg(database), statement.text);
        int result = sqlite3_step(prepared);
        while (result == SQLITE_ROW) {
            for (int column = 0; column < sqlite3_column_count(prepared); ++column)
                sqlite3_column_text(prepared, column);
            result = sqlite3_step(prepared);
        }
        if (result != SQLITE_DONE)
            refuse(sqlite3_errmsg(database), statement.text);
        sqlite3_finalize(prepared);
    }

private:
    QByteArray beginTransaction() const override { return "begin immediate"; }

    sqlite3* copyOf(const QString& dataFolder, const char* name) {
        const QString copy = m_folder.filePath(QLatin1String(name));
        if (!QFile::copy(dataFolder + QLatin1Char('/') + QLatin1String(name), copy))
            refuse("cannot be copied", copy.toUtf8());
        sqlite3* database = nullptr;
        if (sqlite3_open(copy.toUtf8().constData(), &database) != SQLITE_OK)
            refuse(sqlite3_errmsg(database), copy.toUtf8());
        // The settings of the data layer's own connections.
        sqlite3_exec(database, "pragma journal_mode=wal; pragma synchronous=full; pragma foreign_keys=on", nullptr,
                     nullptr, nullptr);
        sqlite3_create_function(
            database, "getdate", 0, SQLITE_UTF8, nullptr,
            [](sqlite3_context* context, int, sqlite3_value**) {
                const QByteArray now = QDateTime::currentDateTime().toString("yyyy-MM-dd HH:mm:ss").toUtf8();
                sqlite3_result_text(context, now.constData(), int(now.size()), SQLITE_TRANSIENT);
            },
            nullptr, nullptr);
        return database;
    }

    QTemporaryDir m_folder;
    sqlite3* m_billing = nullptr;
    sqlite3* m_audit = nullptr;
};

class BarePostgresql : public BareEngine {
public:
    explicit BarePostgresql(const TestHome& home) : BareEngine(Engine::Postgresql) {
        const QSettings settings(home.folder() + "/orvane.ini", QSettings::IniFormat);
        const QString group = settings.childGroups().constFirst() + '/';
        m_server = "host=" + settings.value(group + "host").toString() +
                   " port=" + settings.value(group + "port").toString() + " user=zorva";
        m_copy = settings.value(group + "prefix").toString() + "bare";
        command("drop database if exists \"" + m_copy + '"');
        command("create database \"" + m_copy + "\" template \"" + settings.value(group + "prefix").toString() +
                "dunmarch\"");
        m_connection = connect(m_copy);
        run({"set client_min_messages = warning"});
    }
    ~BarePostgresql() override {
        PQfinish(m_connection);
        command("drop database \"" + m_copy + '"');
    }

    void run(const BareStatement& statement) override { send(m_connection, statement.text); }

private:
    QByteArray beginTransaction() const override { return "begin; select pg_advisory_xact_lock(1)"; }

    PGconn* connect(const QString& database) const {
        PGconn* connection = PQconnectdb((m_server + " dbname='" + database + '\'').toUtf8().constData());
        if (PQstatus(connection) != CONNECTION_OK)
            refuse(PQerrorMessage(connection), database.toUtf8());
        return connection;
    }

    static void send(PGconn* connection, const QByteArray& text) {
        PGresult* result = PQexec(connection, text.constData());
        const ExecStatusType status = PQresultStatus(result);
        if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
            refuse(PQerrorMessage(connection), text);
        PQclear(result);
    }

    void command(const QString& text) const {
        PGconn* connection = connect("postgres");
        send(connection, text.toUtf8());
        PQfinish(connection);
    }

    QString m_server, m_copy;
    PGconn* m_connection = nullptr;
};

} // namespace

std::unique_ptr<BareEngine> BareEngine::onCopyOf(const TestHome& home) {
    if (home.engine() == Engine::Sqlite)
        return std::make_unique<BareSqlite>(home.folder() + "/data");
    return std::make_unique<BarePostgresql>(home);
}

QList<BareStatement> BareEngine::translated(const QStringList& statements) const {
    QList<BareStatement> result;
    bool open = false;
    // A workstation announces no rollback: it shows by the next transaction, or by the end.
    const auto end = [&](const char* how) {
        if (open)
            result << BareStatement{how};
        open = false;
    };
    for (const QString& statement : statements) {
        if (statement == "begin transaction") {
            end("rollback");
            result << BareStatement{beginTransaction()};
            open = true;
        } else if (statement == "commit transaction") {
            end("commit");
        } else if (statement != "transaction committed") {
            const bool audit = m_engine == Engine::Sqlite && statement.contains("AuditTrail");
            result << BareStatement{translate(statement, m_engine).toUtf8(), audit};
        }
    }
    end("rollback");
    return result;
}

} // namespace orvane
