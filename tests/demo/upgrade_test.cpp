// Databases of the first schema, as dumped text, brought to the present one.
#include "data/engine/SchemaVersion.h"
#include "data/rows/Schema.h"
#include "play/QuietUi.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Check.h"
#include "support/Print.h"
#include "support/Rows.h"
#include "support/SourceTree.h"
#include "support/TestHome.h"
#include "tool/Tool.h"

#include <QCoreApplication>
#include <sqlite3.h>

namespace orvane {
namespace {

QString dumped(const QString& name) {
    QFile file(sourceFile("tests/demo/data/schema1/" + name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return QString::fromUtf8(file.readAll());
}

/// Puts the databases of the first schema in the place of a home's present ones.
void layOldDatabases(const TestHome& home) {
    if (home.engine() == Engine::Postgresql) {
        for (const char* name : {"dunmarch", "accounting"}) {
            const QString database = QString::fromLatin1(name);
            home.onServer(database,
                          {"set client_min_messages = warning", "drop schema public cascade", "create schema public",
                           "grant usage on schema public to public", dumped(database + ".postgresql.sql")});
        }
        return;
    }
    for (const char* name : {"Dunmarch", "Accounting", "Audit"}) {
        const QString path = QStringLiteral("%1/data/%2.db").arg(home.folder(), QLatin1String(name));
        ASSERT_TRUE(QFile::remove(path));
        sqlite3* handle = nullptr;
        ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &handle), SQLITE_OK);
        const QByteArray script = dumped(QLatin1String(name) + ".sqlite.sql").toUtf8();
        EXPECT_EQ(sqlite3_exec(handle, script.constData(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(handle);
        sqlite3_close(handle);
    }
}

/// What a database is made of, a line each: columns, indexes and views with their definitions.
QStringList shape(Connection& connection) {
    const QStringList asked =
        connection.engine() == Engine::Sqlite
            ? QStringList{"select m.name as t, c.name as n, c.type as k, c.\"notnull\" as r, c.dflt_value as d, c.pk "
                          "as p "
                          "from sqlite_master m, pragma_table_xinfo(m.name) c where m.type = 'table'",
                          "select name, sql from sqlite_master where type <> 'table' and sql is not null"}
            : QStringList{
                  "select table_name as t, column_name as n, data_type as k, is_nullable as r, column_default as d "
                  "from information_schema.columns where table_schema = 'public'",
                  "select indexname, indexdef from pg_indexes where schemaname = 'public'",
                  "select table_name as t, view_definition as v from information_schema.views "
                  "where table_schema = 'public'",
                  "select proname, pg_get_functiondef(oid) as body from pg_proc where pronamespace = "
                  "'public'::regnamespace and prolang <> 13 and proname like 'orvane%'"};
    QStringList lines;
    for (const QString& statement : asked)
        lines += rowsOf(connection, statement).split(u'\n');
    lines.sort();
    return lines;
}

class Upgrade : public ::testing::TestWithParam<Engine> {
protected:
    void SetUp() override { layOldDatabases(home); }

    /// A server's copies are not the home's.
    void TearDown() override {
        for (const QString& copy : m_copies)
            home.onServer("dunmarch", {"drop database " + copy});
    }

    int tool(const QString& command, QStringList options = {}) {
        said.clear();
        QTextStream out(&said);
        const int code = runDatabaseTool(QStringList{command, "--home", home.folder()} + options, out, out);
        for (const QString& line : said.split(u'\n'))
            if (GetParam() == Engine::Postgresql && line.startsWith("copy of the "))
                m_copies += line.section(": ", 1);
        return code;
    }
    /// A source that opens any schema.
    std::unique_ptr<DataSource> opened() {
        auto source = std::make_unique<DataSource>(home.folder());
        source->acceptAnySchema();
        return source;
    }
    QString figures(Connection& billing) {
        return rowsOf(billing,
                      "select (select count(*) from hRecords) as a, (select sum(AmountPaid) from Payments) as "
                      "b, (select sum(SubTotal) from BillingDetails) as c, (select sum(DebtBF) from hPatients) "
                      "as d, (select count(*) from billingPrice) as e");
    }

    TestHome home{GetParam()};
    QString said;

private:
    QStringList m_copies;
};
ORVANE_ON_EACH_ENGINE(Upgrade);

TEST_P(Upgrade, BringsAHospitalToThePresentSchemaWithEveryRow) {
    QuietUi ui;
    {
        Program program(home.folder(), ui);
        registerScreens(program);
        EXPECT_FALSE(Main(program, "amina.b"));
        const QString told = ui.takeBoxes().join(u'\n');
        EXPECT_TRUE(told.contains("orvane-db upgrade --home \"" + home.folder() + '"') && !told.contains(u'\n'))
            << told.toStdString();
    }
    const QString before = [this] {
        Connection billing = opened()->open(TestHome::billing());
        return figures(billing);
    }();
    ASSERT_EQ(tool("upgrade"), 0) << said.toStdString();
    EXPECT_EQ(said.count("copy of the "), GetParam() == Engine::Sqlite ? 3 : 2) << said.toStdString();
    EXPECT_EQ(tool("check"), 0) << said.toStdString();
    EXPECT_EQ(tool("upgrade"), 0);
    EXPECT_TRUE(said.contains(QStringLiteral("have the schema %1 already").arg(kSchemaVersion))) << said.toStdString();

    Program program(home.folder(), ui);
    registerScreens(program);
    EXPECT_TRUE(Main(program, "amina.b")) << ui.takeBoxes().join(" / ").toStdString();
    Connection billing = program.openBilling();
    EXPECT_EQ(figures(billing), before);
    EXPECT_TRUE(before.startsWith("40|")) << before.toStdString();
    const TestHome fresh(GetParam());
    DataSource present(fresh.folder());
    for (const QString& database : {TestHome::billing(), TestHome::accounting()}) {
        Connection upgraded = program.data().open(database), made = present.open(database);
        EXPECT_EQ(shape(upgraded), shape(made)) << "the steps make what the schema's files make";
    }
}

TEST_P(Upgrade, ThatBreaksOffLeavesTheOldSchemaAsItWas) {
    const auto source = opened();
    Connection billing = source->open(TestHome::billing());
    const QStringList before = shape(billing);
    int statements = 0;
    bool whole = false;
    for (int breaksAt = 1; !whole; breaksAt += breaksAt < 40 ? 13 : 40) {
        statements = 0;
        source->setStatementHook([&](const QString& tsql) {
            if (++statements == breaksAt && tsql != "transaction committed")
                throw DataError("broken off");
        });
        try {
            upgradeSchema(billing, "billing");
            whole = true;
        } catch (const DataError&) {
            source->setStatementHook({});
            EXPECT_EQ(schemaVersion(billing), 1) << "broken off at " << breaksAt;
            EXPECT_EQ(shape(billing), before) << "broken off at " << breaksAt;
        }
    }
    source->setStatementHook({});
    EXPECT_GT(statements, 50) << "it broke off within";
    EXPECT_EQ(schemaVersion(billing), kSchemaVersion);
}

TEST_P(Upgrade, RefusesANewerSchema) {
    opened()
        ->open(TestHome::billing())
        .run(GetParam() == Engine::Sqlite ? "pragma user_version = 99" : "update orvaneSchema set version = 99");
    EXPECT_EQ(tool("upgrade"), 1);
    EXPECT_TRUE(said.contains("has the schema 99")) << said.toStdString();
    EXPECT_EQ(tool("check"), 1);
    EXPECT_TRUE(said.contains("for a newer program")) << said.toStdString();
}

TEST_P(Upgrade, GivesTheProgramsLoginItsRightsAgain) {
    if (GetParam() == Engine::Sqlite)
        GTEST_SKIP() << "a database is its owner's file";
    const QString login = QStringLiteral("clerk %1").arg(QCoreApplication::applicationPid());
    const QString grant = QStringLiteral("grant select on orvaneSchema to \"%1\"").arg(login);
    home.onServer("dunmarch", {QStringLiteral("create role \"%1\" login").arg(login), grant});
    home.onServer("accounting", {grant});
    EXPECT_EQ(tool("upgrade", {"--backed-up"}), 0) << said.toStdString();
    EXPECT_FALSE(said.contains("copy of the ")) << said.toStdString();
    qputenv("ORVANE_DB_USER", login.toUtf8());
    {
        QuietUi ui;
        Program program(home.folder(), ui);
        registerScreens(program);
        EXPECT_TRUE(Main(program, "amina.b")) << ui.takeBoxes().join(" / ").toStdString();
    }
    qunsetenv("ORVANE_DB_USER");
    const QString drop = QStringLiteral("drop owned by \"%1\"").arg(login);
    home.onServer("accounting", {drop});
    home.onServer("dunmarch", {drop, QStringLiteral("drop role \"%1\"").arg(login)});
}

} // namespace
} // namespace orvane
