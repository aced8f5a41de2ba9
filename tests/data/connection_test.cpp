#include "data/DataError.h"
#include "data/rows/Recordset.h"
#include "data/rows/Schema.h"
#include "data/rows/Transaction.h"
#include "support/TestHome.h"

#include <QDir>
#include <QSqlDatabase>
#include <unistd.h>

namespace orvane {

namespace {

QString openFault(const QString& homeFolder, const QString& connectionString = TestHome::billing()) {
    try {
        DataSource(homeFolder).open(connectionString);
    } catch (const DataError& fault) {
        return fault.description();
    }
    return {};
}

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

/// While it lives, files are opened with the rights of a plain user, also where the tests run as root.
struct PlainUser {
    uid_t before = geteuid();
    PlainUser() { EXPECT_TRUE(before != 0 || seteuid(65534) == 0); }
    ~PlainUser() { EXPECT_EQ(seteuid(before), 0); }
};

} // namespace

TEST(EmbeddedFile, IsNeverCreatedByOpeningAndSaysWhatIsWrongWithIt) {
    const TestHome home;
    const QString path = home.folder() + "/data/Dunmarch.db";
    DataSource(home.folder()).open(TestHome::billing()).run("pragma user_version = 999");
    EXPECT_TRUE(openFault(home.folder()).contains("has the schema 999; this program needs"));
    write(path, QByteArray(4096, 'x'));
    EXPECT_TRUE(openFault(home.folder()).contains("is not a database"));
    write(path, {});
    EXPECT_TRUE(openFault(home.folder()).contains("has no schema of this program"));
    QFile::remove(path);
    EXPECT_TRUE(openFault(home.folder()).contains("does not exist"));
    EXPECT_FALSE(QFile::exists(path));
}

TEST(EmbeddedFile, MustBeWritable) {
    const TestHome home;
    const QString path = home.folder() + "/data/Dunmarch.db";
    for (const QString& folder : {home.folder(), home.folder() + "/data"})
        QFile::setPermissions(folder, QFile::Permissions(0x5555) | QFile::WriteOwner);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    const PlainUser user;
    EXPECT_TRUE(openFault(home.folder()).contains("read-only")) << openFault(home.folder()).toStdString();
}

TEST(ServerFile, NamesItsBrokenLineAndAServerThatDoesNotAnswer) {
    const TestHome home;
    const std::pair<const char*, const char*> cases[] = {
        {"[server SERVER]\nengine = oracle\n", "line 2"},
        {"engine = sqlite\n", "line 1"},
        {"[server SERVER]\nport = 99999\n", "is no port"},
        {"[SERVER]\n", "[server NAME]"},
        {"[server SERVER\nengine = sqlite", "[server NAME]"},
        {"[server SERVER]\ncolour = red\n", "colour"},
        {"[server SERVER]\n\n; note\nengine\n", "line 4"},
        {"[server SERVER]\nhost = 127.0.0.1\nport = 1\nengine = postgresql", "cannot be opened"},
        {"[server SERVER]\nhost = 127.0.0.1\nport = 1\nengine = sqlserver", "cannot be opened"},
    };
    for (const auto& [text, fault] : cases) {
        write(home.folder() + "/orvane.ini", text);
        const QString told = openFault(home.folder());
        EXPECT_TRUE(told.contains(fault) && (!told.contains("line ") || told.contains("orvane.ini"))) << text;
    }
}

TEST(ServerFile, SaysWhichEngineServesAServer) {
    const TestHome home;
    write(home.folder() + "/orvane.ini",
          "# sites\n[server MAIN]\nengine = PostgreSQL ; the big one\nhost = db\n[Server old one]\nengine=sqlserver\n"
          "[menu]\nmnuRct = 1\n[server here]\nfolder = other\n");
    const DataSource source(home.folder());
    EXPECT_EQ(source.engineOf("Server=main;Database=Dunmarch"), Engine::Postgresql);
    EXPECT_EQ(source.engineOf("Driver={SQL Server};Server=OLD ONE;Database=Dunmarch"), Engine::SqlServer);
    EXPECT_EQ(openFault(home.folder(), "Server=unknown;Database=Dunmarch"),
              QStringLiteral("The server \"unknown\", which made.sys names, is not in %1/orvane.ini, which has [server "
                             "MAIN], [server old one], [server here].")
                  .arg(home.folder()))
        << "a misspelt name opens no empty hospital beside the real one";
    EXPECT_THROW(source.engineOf("Database=Dunmarch"), DataError);
    EXPECT_TRUE(openFault(home.folder(), "Server=here;Database=Dunmarch").contains("/other/Dunmarch.db"));
    QFile::remove(home.folder() + "/orvane.ini");
    EXPECT_EQ(openFault(home.folder()), QString()) << "without the file the embedded engine serves from data/";
}

class Pool : public EngineTest {};

TEST_P(Pool, GivesAnIdleConnectionAgain) {
    const auto open = [] { return QSqlDatabase::connectionNames().size(); };
    const qsizetype before = open();
    for (int i = 0; i < 5; ++i)
        data.open(TestHome::billing()).run("select 1 as x");
    EXPECT_EQ(open(), before + 1);
    {
        const Connection one = data.open(TestHome::billing()), two = data.open(TestHome::billing());
        EXPECT_EQ(open(), before + 2);
    }
    {
        // What a handler leaves open behind a fault is rolled back before the next one gets the connection.
        Connection left = data.open(TestHome::billing());
        auto* transaction = new Transaction(left);
        left.run("insert into Payments (ReceiptNo) values ('R1')");
        { const Connection gone = std::move(left); }
        delete transaction;
    }
    EXPECT_EQ(scalar("select count(*) from Payments"), "0");
    EXPECT_EQ(data.openTransactions(), 0);
}

TEST_P(Pool, EachWorkstationHasItsOwnClock) {
    const auto clock = [](Connection& asking) { return Recordset(asking, Sql("select sysDT from qrySysDateTime")); };
    const QDateTime ours(QDate(2026, 1, 31), QTime(23, 59, 59)), theirs(QDate(2026, 2, 1), QTime(0, 0));
    DataSource other(home.folder());
    data.setServerClock(ours);
    other.setServerClock(theirs);
    Connection beside = other.open(TestHome::billing());
    EXPECT_EQ(clock(billing).text(0), "2026-01-31 23:59:59");
    EXPECT_EQ(clock(billing).dateTime("sysdt"), ours);
    EXPECT_EQ(clock(billing).date("sysdt"), ours.date());
    EXPECT_EQ(clock(beside).dateTime("sysdt"), theirs);
    data.setServerClock({});
    EXPECT_LE(std::abs(clock(billing).dateTime("sysDT").secsTo(QDateTime::currentDateTime())), 5);
}

TEST_P(Pool, KeepsTheEnginesWordsInAFault) {
    billing.run("insert into hPatients (PNo, psurname) values ('P1', 'A')");
    try {
        billing.run("insert into hPatients (PNo, psurname) values ('P1', 'A')");
        FAIL();
    } catch (const DataError& fault) {
        EXPECT_TRUE(fault.description().contains("unique", Qt::CaseInsensitive)) << fault.what();
        EXPECT_FALSE(fault.description().startsWith("ERROR"));
        EXPECT_TRUE(fault.statement().contains("insert into hPatients"));
    }
}

/// The second row cannot be worked out: the first alone is not the answer.
TEST_P(Pool, RowsThatEndInAFaultAreNotTakenForAll) {
    billing.run("delete from IDgen");
    billing.run("insert into IDgen (DestName, ID) values ('A', 1)");
    EXPECT_EQ(scalar("select abs(ID) as n from IDgen order by DestName"), "1");
    billing.run("insert into IDgen (DestName, ID) values ('B', -9223372036854775807 - 1)");
    EXPECT_THROW(billing.run("select abs(ID) as n from IDgen order by DestName"), DataError);
    EXPECT_EQ(scalar("select count(*) from IDgen"), "2") << "the connection goes on";
}

ORVANE_ON_EACH_ENGINE(Pool);

class OnServer : public EngineTest {};

TEST_P(OnServer, TheEnvironmentOfAWorkstationChangesNoSession) {
    const QString zone = "select current_setting('timezone') || current_setting('standard_conforming_strings') as s";
    const auto asked = [&] {
        DataSource fresh(home.folder());
        return fresh.open(TestHome::billing()).run(zone).text(0);
    };
    const QString before = asked();
    EXPECT_TRUE(before.endsWith("on"));
    qputenv("PGTZ", "Pacific/Kiritimati");
    qputenv("PGOPTIONS", "-c standard_conforming_strings=off");
    EXPECT_EQ(asked(), before);
}

TEST_P(OnServer, AnIdleConnectionThatIsAliveIsGivenWithoutAMessage) {
    const QString server = data.open(TestHome::billing()).run("select pg_backend_pid() as p").text(0);
    const Connection again = data.open(TestHome::billing());
    EXPECT_TRUE(scalar("select query from pg_stat_activity where pid=" + server).contains("pg_backend_pid"));
}

INSTANTIATE_TEST_SUITE_P(On, OnServer, ::testing::ValuesIn(testEngines().mid(1)),
                         [](const auto& tested) { return engineName(tested.param); });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(OnServer);

} // namespace orvane
