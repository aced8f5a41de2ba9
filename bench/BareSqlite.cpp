#include "bench/BareEngine.h"

#include "data/DataError.h"

#include <QLocale>
#include <sqlite3.h>

namespace orvane {

namespace {

using Prepared = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

void giveText(sqlite3_context* context, const QByteArray& text) {
    sqlite3_result_text(context, text.constData(), int(text.size()), SQLITE_TRANSIENT);
}

// The functions that the data layer adds to each of its connections.

void getDate(sqlite3_context* context, int, sqlite3_value**) {
    giveText(context, *static_cast<const QByteArray*>(sqlite3_user_data(context)));
}

void textOf(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_FLOAT)
        giveText(context, QByteArray::number(sqlite3_value_double(arguments[0]), 'f', QLocale::FloatingPointShortest));
    else
        sqlite3_result_value(context, arguments[0]);
}

class BareSqlite : public BareEngine {
public:
    BareSqlite(const HomeServer& server, const QDateTime& clock, bool durable)
        : BareEngine(Engine::Sqlite), m_clock(clock.toString("yyyy-MM-dd HH:mm:ss").toUtf8()) {
        m_billing = connect(server.database(), durable);
        m_audit = connect(server.database("Audit"), durable);
        m_accounting = connect(server.database("Accounting"), durable);
    }
    ~BareSqlite() override {
        sqlite3_close(m_billing);
        sqlite3_close(m_audit);
        sqlite3_close(m_accounting);
    }

    void run(const BareStatement& statement) override {
        sqlite3* database = databaseOf(statement);
        stepAll(database, prepare(database, statement.text).get(), statement.text);
    }

    Examination examine(const BareStatement& statement) override {
        sqlite3* database = databaseOf(statement);
        Examination found;
        const QByteArray question = "explain query plan " + statement.text;
        Prepared plan = prepare(database, question);
        while (sqlite3_step(plan.get()) == SQLITE_ROW)
            found.plan << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(plan.get(), 3)));
        Prepared prepared = prepare(database, statement.text);
        sqlite3_stmt* counted = prepared.get();
        found.rows = stepAll(database, counted, statement.text);
        found.work = sqlite3_stmt_status(counted, SQLITE_STMTSTATUS_VM_STEP, 0);
        found.stepsOver = sqlite3_stmt_status(counted, SQLITE_STMTSTATUS_FULLSCAN_STEP, 0);
        return found;
    }

private:
    sqlite3* databaseOf(const BareStatement& statement) const {
        return statement.accounting ? m_accounting : statement.audit ? m_audit : m_billing;
    }

    [[noreturn]] static void refuse(sqlite3* database, const QByteArray& text) {
        throw DataError(QString::fromUtf8(sqlite3_errmsg(database)), QString::fromUtf8(text));
    }

    static Prepared prepare(sqlite3* database, const QByteArray& text) {
        sqlite3_stmt* prepared = nullptr;
        if (sqlite3_prepare_v2(database, text.constData(), int(text.size()), &prepared, nullptr) != SQLITE_OK)
            refuse(database, text);
        return Prepared(prepared, sqlite3_finalize);
    }

    static qint64 stepAll(sqlite3* database, sqlite3_stmt* prepared, const QByteArray& text) {
        qint64 rows = 0;
        int result = sqlite3_step(prepared);
        for (; result == SQLITE_ROW; result = sqlite3_step(prepared), ++rows)
            for (int column = 0; column < sqlite3_column_count(prepared); ++column)
                sqlite3_column_text(prepared, column);
        if (result != SQLITE_DONE)
            refuse(database, text);
        return rows;
    }

    sqlite3* connect(const QString& file, bool durable) {
        sqlite3* database = nullptr;
        if (sqlite3_open_v2(file.toUtf8().constData(), &database, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
            refuse(database, file.toUtf8());
        // The settings of the data layer's connections.
        for (const char* setting : {"pragma journal_mode=wal", "pragma foreign_keys=on", "pragma cache_size=-16384",
                                    durable ? "pragma synchronous=full" : "pragma synchronous=off"})
            sqlite3_exec(database, setting, nullptr, nullptr, nullptr);
        sqlite3_busy_timeout(database, 60000);
        sqlite3_create_function(database, "getdate", 0, SQLITE_UTF8, &m_clock, getDate, nullptr, nullptr);
        sqlite3_create_function(database, "orvane_text", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, textOf,
                                nullptr, nullptr);
        return database;
    }

    QByteArray m_clock;
    sqlite3* m_billing = nullptr;
    sqlite3* m_audit = nullptr;
    sqlite3* m_accounting = nullptr;
};

} // namespace

std::unique_ptr<BareEngine> openBareSqlite(const HomeServer& server, const QDateTime& clock, bool durable) {
    return std::make_unique<BareSqlite>(server, clock, durable);
}

} // namespace orvane
