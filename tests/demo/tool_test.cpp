#include "tool/Tool.h"

#include "data/dialect/Catalog.h"
#include "play/QuietUi.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Print.h"
#include "support/Rows.h"
#include "support/TestHome.h"

#include <QFileInfo>

using namespace orvane;

namespace {

struct Result {
    int code;
    QString out, errors;
};

Result tool(const QStringList& arguments) {
    Result result{};
    QTextStream out(&result.out), errors(&result.errors);
    result.code = runDatabaseTool(arguments, out, errors);
    out.flush();
    errors.flush();
    return result;
}

QStringList dump(const QString& home) {
    QuietUi ui;
    Program program(home, ui);
    prepareServer(program);
    QStringList lines;
    Connection billing = program.openBilling(), accounting = program.openAccounting(), audit = billing.beside("Audit");
    for (const auto& [connection, database] :
         {std::pair(&billing, "billing"), {&accounting, "accounting"}, {&audit, "audit"}})
        for (const Table* table : Catalog::instance().tables(database))
            // Tokens are drawn by chance, and the server's time is no one's choice.
            if (!table->name.startsWith("Saved") && table->name != "AuditTrail")
                lines.append(table->name + '\n' + rowsOf(*connection, "select * from [" + table->name + "]"));
    return lines;
}

QString scalar(const QString& home, const QString& tsql) {
    QuietUi ui;
    Program program(home, ui);
    prepareServer(program);
    Connection billing = program.openBilling();
    return rowsOf(billing, tsql);
}

class Tool : public ::testing::Test {
protected:
    QString written(const QString& name, const QByteArray& content) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    QTemporaryDir folder;
    QString home = folder.filePath("home");
};

TEST_F(Tool, refusesWhatItDoesNotUnderstand) {
    const QStringList lines[] = {
        {},
        {"destroy"},
        {"user"},
        {"create"},
        {"create", "--home", home, "--engine", "oracle"},
        {"create", "--home", home, "--port", "70000"},
        {"load", "drugs", "--home", home},
        {"check", "--home", home, "extra"},
        {"check", "--patients", "5"},
        {"schema", "--database", "none"},
        {"demo", "--home", home, "--until", "2026-02-30"},
        {"demo", "--home", home, "--days", "0"},
        {"user", "add", "ada.o", "--home", home, "--fullname", "ADA OBI"},
        {"create", "--home", home, "--engine", "postgresql", "--prefix", "Big_"},
        {"create", "--home", home, "--engine", "postgresql", "--prefix", "a;drop"},
        {"create", "--home", home, "--engine", "postgresql", "--prefix", "1a"},
    };
    for (const QStringList& line : lines) {
        const Result result = tool(line);
        EXPECT_EQ(result.code, 2) << line.join(' ').toStdString();
        EXPECT_FALSE(result.errors.isEmpty());
    }
    EXPECT_FALSE(QFileInfo::exists(home)) << "nothing was made";
}

TEST_F(Tool, createsEmptyDatabasesOnce) {
    ASSERT_EQ(tool({"create", "--home", home}).code, 0);
    EXPECT_EQ(tool({"check", "--home", home}).code, 0);
    const QString database = home + "/data/Dunmarch.db";
    scalar(home, "insert into AppDefaults (ID,idval) values ('PRIVATE','0001')");
    const Result again = tool({"create", "--home", home});
    EXPECT_EQ(again.code, 1);
    EXPECT_TRUE(again.errors.contains("is there already; nothing was changed"));
    EXPECT_EQ(scalar(home, "select idval from AppDefaults"), "0001");

    // One of them is enough to refuse, and the others are not made.
    QFile::remove(database);
    EXPECT_EQ(tool({"create", "--home", home}).code, 1);
    EXPECT_FALSE(QFileInfo::exists(database));
}

TEST_F(Tool, loadsAndAddsAUserWhomTheProgramAdmits) {
    ASSERT_EQ(tool({"create", "--home", home}).code, 0);
    const auto load = [&](const QString& table, const QByteArray& content) {
        return tool({"load", table, written(table + ".csv", content), "--home", home});
    };
    EXPECT_EQ(load("HospList", "hospID,Hname,HName2\n001,HALDEN HOSPITAL,Main Clinic\n").code, 0);
    EXPECT_EQ(load("appdefaults", "ID,idval\nPRIVATE,0001\nNHISFEE,10\n").out, "2 row(s) added to AppDefaults.\n");
    EXPECT_EQ(load("NoTable", "ID\n1\n").code, 1);
    const QByteArray chart = "AccountNo,AccountName\n1210010,CASH\n";
    EXPECT_TRUE(load("ChartOfAccounts", chart).errors.contains("has its home in the accounting database"));
    EXPECT_EQ(
        tool({"load", "ChartOfAccounts", written("chart", chart), "--database", "accounting", "--home", home}).code, 0);
    EXPECT_EQ(scalar(home, "select AccountName from vwAccountsInfo"), "CASH") << "the billing database follows";
    EXPECT_EQ(tool({"load", "AppDefaults", folder.filePath("none.csv"), "--home", home}).code, 1);

    const auto user = [&](const QString& name, const QString& fullName, const QStringList& more) {
        return tool(QStringList{"user", "add", name, "--home", home, "--fullname", fullName, "--role"} + more);
    };
    const QStringList adas = {"BILLING", "--role", "MANAGEMENT",      "--accounts",
                              "--empid", "E9",     "--password-file", written("password", "Secret1!\n")};
    ASSERT_EQ(user("ada.o", "ADA O'BI", adas).code, 0);
    EXPECT_EQ(user("ada.o", "ADA O'BI", adas).errors, "orvane-db user add: The user name \"ada.o\" is taken.\n");
    EXPECT_EQ(user("no.role", "X", {"A ROLE NAME TOO LONG"}).code, 1);
    EXPECT_EQ(user("no.pass", "X", {"BILLING", "--password-file", written("bad", "a b")}).code, 1);
    const Result onTheLine = user("no.pass", "X", {"BILLING", "--password", "Secret1!"});
    EXPECT_EQ(onTheLine.code, 2) << "every user of the machine sees a command line";
    EXPECT_FALSE(onTheLine.errors.contains("Secret1!"));
    EXPECT_EQ(user("no.word", "X", {"BILLING", "--password-file", written("empty", "\n")}).code, 0);
    EXPECT_EQ(scalar(home, "select count(*) from ApplicationUsers where Username='no.word' and Password is null"), "1");
    EXPECT_EQ(scalar(home, "select count(*) from ApplicationUsers"), "2");
    EXPECT_EQ(scalar(home, "select username from UsersForAccts"), "ada.o");
    EXPECT_NE(scalar(home, "select Password from ApplicationUsers"), "Secret1!");

    QuietUi ui;
    Program program(home, ui);
    registerScreens(program);
    EXPECT_TRUE(Main(program, "ada.o")) << ui.takeBoxes().join(" / ").toStdString();
    EXPECT_EQ(program.session.gFullName, "ADA O'BI");
    EXPECT_EQ(program.session.gEmpID, "E9");
}

TEST_F(Tool, makesTheSameSoundHospitalTwice) {
    const auto demo = [&](const QString& at, const QString& seed) {
        return tool({"demo", "--home", at, "--patients", "30", "--days", "2", "--seed", seed, "--until", "2026-03-13"});
    };
    const Result made = demo(home, "7");
    ASSERT_EQ(made.code, 0) << made.errors.toStdString();
    const Result check = tool({"check", "--home", home});
    EXPECT_EQ(check.code, 0) << check.out.toStdString();
    EXPECT_EQ(scalar(home, "select count(*) from vwhConsultingVisitsForBilling where date='2026-03-13'"), "10");
    EXPECT_EQ(scalar(home, "select count(*) from qryhConsultingPatListForInjAndDressingBill"), "2");
    EXPECT_EQ(scalar(home, "select count(*) from hRecords"), "40");
    EXPECT_EQ(scalar(home, "select count(*) from hRecords where BillDate is not null"), "28");
    EXPECT_NE(scalar(home, "select count(*) from Payments"), "0");
    EXPECT_NE(scalar(home, "select count(*) from Tranxaction where Amount < 0"), "0");
    QFile user(home + "/sysdoc.sys");
    EXPECT_TRUE(user.open(QIODevice::ReadOnly) && user.readAll() == "amina.b\n");

    const QString twin = folder.filePath("twin");
    ASSERT_EQ(demo(twin, "7").code, 0);
    EXPECT_EQ(dump(home), dump(twin));
    const Result again = demo(twin, "8");
    EXPECT_EQ(again.code, 1);
    EXPECT_TRUE(again.errors.contains("not empty")) << again.errors.toStdString();
    EXPECT_EQ(dump(home), dump(twin)) << "a refused one changes nothing";
}

TEST_F(Tool, makesTheSameLargeHospitalForTheSameSeed) {
    QList<QStringList> rows;
    for (const char* seed : {"5", "5", "6"}) {
        const QString at = folder.filePath(QString::number(rows.size()));
        ASSERT_EQ(
            tool({"demo", "--home", at, "--bills", "1", "--days", "1", "--seed", seed, "--until", "2026-03-13"}).code,
            0);
        rows << dump(at);
    }
    EXPECT_TRUE(rows[0] == rows[1] && rows[0] != rows[2]);
}

} // namespace
