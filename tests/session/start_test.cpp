#include "session/Main.h"
#include "session/Settings.h"
#include "support/TestHome.h"
#include "support/Workstation.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QRegularExpression>
#include <QSysInfo>

namespace orvane {
namespace {

void writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    ASSERT_EQ(file.write(content), content.size());
}

/// A hospital that a program of the same home folder can start on, as often as a test likes.
class Start : public ::testing::TestWithParam<Engine> {
protected:
    Start() { owner.layHospital(); }

    QString file(const char* name) const { return QDir(home.folder()).filePath(QLatin1String(name)); }

    TestHome home{GetParam()};
    Workstation owner{home.folder()}; ///< changes rows behind the program's back; never starts
};
ORVANE_ON_EACH_ENGINE(Start);

/// One start: its result, its session, its boxes and forms.
struct Attempt {
    explicit Attempt(const QString& homeFolder) : station(homeFolder), started(Main(station.program)) {}
    Workstation station;
    bool started;
    Session& session = station.program.session;
    TestUi& ui = station.ui;
};

TEST_P(Start, refusalsComeInOrder) {
    // Everything is wrong at once; each step mends what the last run complained of.
    QLockFile otherCopy(
        file((QByteArray(".orvane-billing-") + QSysInfo::machineHostName().toUtf8() + ".lock").constData()));
    ASSERT_TRUE(otherCopy.tryLock());
    QFile::remove(file("sysdoc.sys"));
    owner.run("update Roles set LoginRole='RECORDS' where LoginRole='BILLING'");
    owner.run("update ApplicationUsers set hospID=''");
    owner.run("update HospList set hname2=null");
    owner.run("delete from AppDefaults where ID='PRIVATE'");

    const QString hospital = "Value needed for Hospital ID/Name";
    const struct {
        QString box;
        std::function<void()> mend;
    } steps[] = {
        {"BILLING Module is Already Running !", [&] { otherCopy.unlock(); }},
        {"A System file UName required for this Application is MISSING",
         [&] { writeFile(file("sysdoc.sys"), "someone\nAMINA.B\n"); }},
        {"Invalid Login OR session has expired!!! Please Re-login",
         [&] { owner.run("update Roles set LoginRole='BILLING' where LoginRole='RECORDS'"); }},
        {hospital, [&] { owner.run("update ApplicationUsers set hospID='001'"); }},
        {hospital, [&] { owner.run("update HospList set hname2='MAIN CLINIC'"); }},
        {"System Default Value needed for Private Tariff",
         [&] { owner.run("insert into AppDefaults (ID, idval) values ('PRIVATE', '0001')"); }},
    };
    for (const auto& step : steps) {
        Attempt run(home.folder());
        EXPECT_FALSE(run.started);
        EXPECT_BOXES(run.ui, {step.box});
        EXPECT_EQ(run.ui.opened, QStringList());
        step.mend();
    }
    Attempt run(home.folder());
    EXPECT_TRUE(run.started);
    EXPECT_EQ(run.ui.opened, QStringList{"MdiTolmek"});
    // What the database says of the user replaces what the files say.
    EXPECT_EQ(run.session.gUsername, "amina.b");
    EXPECT_EQ(run.session.gFullName, "AMINA BELLO");
    EXPECT_EQ(run.session.gHospName2, "MAIN CLINIC");
}

TEST_P(Start, theUsersHospitalReplacesThatOfTheFile) {
    writeFile(file("made.sys"), "HNO=777\n" + QByteArray("SVR=SERVER\n"));
    owner.run("update ApplicationUsers set hospID='009'");
    Attempt run(home.folder());
    // A hospital that the list does not know is let in without names.
    EXPECT_TRUE(run.started);
    EXPECT_EQ(run.session.gHospID, "009");
    EXPECT_EQ(run.session.gHospIDName, "009");
    EXPECT_EQ(run.session.gHospName2, QString());
    EXPECT_EQ(run.session.iHNO, 0);
    EXPECT_EQ(run.session.sHospitalNoStr, "0");
    EXPECT_EQ(run.session.gPatientsFolder, "\\\\SERVER\\Patients\\");
}

TEST_P(Start, aSecondCopyIsRefusedUntilTheFirstHasEnded) {
    Attempt first(home.folder());
    ASSERT_TRUE(first.started);
    {
        Attempt second(home.folder());
        EXPECT_FALSE(second.started);
        EXPECT_EQ(second.ui.takeBoxesWithTitles(),
                  (QList<TestUi::Box>{{"BILLING Module is Already Running !", "Error", Icon::Critical}}));
    }
    first.ui.answer(true);
    first.station.menu("mnuEPE");
    EXPECT_TRUE(first.ui.hasQuit);
    Attempt third(home.folder());
    EXPECT_TRUE(third.started);
}

TEST_P(Start, aNamedUserNeedsNoFile) {
    QFile::remove(file("sysdoc.sys"));
    Workstation station(home.folder());
    EXPECT_FALSE(station.start("O'NEILL"));
    EXPECT_BOXES(station.ui, {"Invalid Login OR session has expired!!! Please Re-login"});
    EXPECT_TRUE(station.start("amina.b"));
}

TEST_P(Start, theLogInWayTakesHospitalAndSettingsOver) {
    owner.run("delete from AppDefaults where ID='PRIVATE'");
    owner.run("update ApplicationUsers set Password=''");
    QFile::remove(file("sysdoc.sys"));
    for (const bool complete : {false, true}) {
        Workstation station(home.folder());
        ASSERT_TRUE(MainWithLogin(station.program));
        station.click("frmWelcome.cmdEnter");
        station.set("frmLogin.txtUserName", "amina.b");
        station.click("frmLogin.cmdOK");
        QStringList boxes{"You're welcome, AMINA BELLO."};
        if (!complete)
            boxes << QStringLiteral("System Default Value needed for Private Tariff");
        EXPECT_EQ(station.ui.takeBoxes(), boxes);
        EXPECT_EQ(station.ui.hasQuit, !complete);
        EXPECT_EQ(station.ui.opened.contains("MdiTolmek"), complete);
        EXPECT_EQ(station.program.session.gHospID, "001");
        EXPECT_EQ(station.program.loadedForm("frmWelcome"), nullptr);
        if (!complete)
            owner.run("insert into AppDefaults (ID, idval) values ('PRIVATE', '0001')");
    }
}

/// Where the row of a setting lies, taken from its own statement.
struct SettingRow {
    explicit SettingRow(const SettingRule& rule) {
        static const QRegularExpression form("from (\\w+)(?: where ID='(\\w+)')?");
        const QRegularExpressionMatch match = form.match(Sql(rule.statement).text());
        table = match.captured(1);
        id = match.captured(2);
        filter = id.isEmpty() ? QString() : QStringLiteral(" where ID='%1'").arg(id);
    }
    QString table, id, filter;
};

QString valueOf(const Session& session, const SettingTarget& target) {
    if (const auto* text = std::get_if<QString Session::*>(&target.variable))
        return session.*(*text);
    if (const auto* number = std::get_if<qlonglong Session::*>(&target.variable))
        return QString::number(session.*(*number));
    return session.*std::get<bool Session::*>(target.variable) ? "1" : QString();
}

bool isText(const SettingTarget& target) {
    return std::holds_alternative<QString Session::*>(target.variable);
}

QStringList boxOf(const char* text) {
    return text ? QStringList{QString::fromUtf8(text)} : QStringList();
}

TEST_P(Start, eachSettingWithoutItsRow) {
    for (const SettingRule& rule : settingRules()) {
        const SettingRow row(rule);
        SCOPED_TRACE((row.table + row.filter).toStdString());
        if (row.id.isEmpty())
            owner.run("delete from " + row.table);
        else
            owner.run(QStringLiteral("update %1 set ID='gone'").arg(row.table) + row.filter);

        Attempt run(home.folder());
        const bool ends = rule.whenNoRow == SettingRule::NoRowEnds;
        EXPECT_EQ(run.started, !ends);
        EXPECT_EQ(run.ui.takeBoxes(), boxOf(rule.noRowText));
        for (const SettingTarget& target : rule.targets)
            if (!ends)
                EXPECT_EQ(valueOf(run.session, target), QString::fromUtf8(rule.defaultValue)) << target.column;
        for (const SettingPicture& picture : rule.pictures)
            EXPECT_EQ(run.session.*picture.variable, QString());

        if (row.id.isEmpty())
            owner.run(QStringLiteral("insert into %1 (Period) values ('2026-03')").arg(row.table));
        else
            owner.run(QStringLiteral("update %1 set ID='%2' where ID='gone'").arg(row.table, row.id));
    }
}

TEST_P(Start, eachSettingThatIsEmptyOrNull) {
    for (const SettingRule& rule : settingRules()) {
        const SettingRow row(rule);
        if (row.table != QLatin1String("AppDefaults"))
            continue;
        const QString before = owner.scalar("select idval from AppDefaults" + row.filter);
        for (const char* nothing : {"''", "null"}) {
            SCOPED_TRACE((row.filter + QLatin1String(nothing)).toStdString());
            owner.run(QStringLiteral("update AppDefaults set idval=%1").arg(QLatin1String(nothing)) + row.filter);
            Attempt run(home.folder());
            EXPECT_EQ(run.started, rule.emptyText == nullptr);
            EXPECT_EQ(run.ui.takeBoxes(), boxOf(rule.emptyText));
            if (isText(rule.targets.first()))
                EXPECT_EQ(valueOf(run.session, rule.targets.first()), QString());
        }
        owner.run(QStringLiteral("update AppDefaults set idval='%1'").arg(before) + row.filter);
    }
}

TEST_P(Start, eachSettingReachesItsOwnVariables) {
    const auto valueFor = [](const SettingRow& row, const SettingTarget& target) {
        return row.id + QLatin1Char('.') + QLatin1String(target.column);
    };
    for (const SettingRule& rule : settingRules()) {
        const SettingRow row(rule);
        for (const SettingTarget& target : rule.targets)
            if (isText(target))
                owner.run(QStringLiteral("update %1 set %2='%3'")
                              .arg(row.table, QLatin1String(target.column), valueFor(row, target)) +
                          row.filter);
    }
    Attempt run(home.folder());
    ASSERT_TRUE(run.started);
    for (const SettingRule& rule : settingRules())
        for (const SettingTarget& target : rule.targets)
            if (isText(target))
                EXPECT_EQ(valueOf(run.session, target), valueFor(SettingRow(rule), target));
    EXPECT_EQ(run.session.gCashAccountIndex, 1);
    EXPECT_EQ(run.session.gARAccountIndex, 2);
    EXPECT_FALSE(run.session.gAcctPostAuto);
    EXPECT_EQ(run.session.gRctPictureDen, file("RctPixDen.JPG"));
}

TEST_P(Start, postingIsAsked) {
    const struct {
        const char* value;
        std::optional<bool> on; ///< none: the start is refused
    } cases[] = {{"1", true},   {"-1", true},     {"True", true}, {"yes", true},          {"0", false},
                 {"no", false}, {"false", false}, {" ", false},   {"maybe", std::nullopt}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.value);
        owner.run(
            QStringLiteral("update AppDefaults set idval='%1' where ID='AcctPostOn'").arg(QLatin1String(each.value)));
        Attempt run(home.folder());
        EXPECT_EQ(run.started, each.on.has_value());
        EXPECT_EQ(run.session.gAcctPostOn, each.on.value_or(false));
        EXPECT_EQ(run.ui.takeBoxes().size(), each.on ? 0 : 1);
        EXPECT_EQ(run.session.gAcctPostAuto, run.session.gAcctPostOn);
    }
    // Without posting none of its settings needs to exist, and their variables stay as they were.
    owner.run(QStringLiteral("delete from AppDefaults where ID like 'Acc%' or ID in ('CashAccountIndex', "
                             "'ARAccountIndex', 'AUTO_TRAN_NO', 'AcctPostOn')"));
    Attempt run(home.folder());
    EXPECT_TRUE(run.started);
    EXPECT_EQ(run.session.gAcctPostType, "AUTO");
    EXPECT_EQ(run.session.gAcctNoCash + run.session.gCurrentPeriod, QString());
}

TEST_P(Start, anAccountIndexThatIsNoNumberIsRefused) {
    owner.run("update AppDefaults set idval='12x' where ID='ARAccountIndex'");
    Attempt run(home.folder());
    EXPECT_FALSE(run.started);
    const QStringList boxes = run.ui.takeBoxes();
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes.first().contains("ARAccountIndex")) << boxes.first().toStdString();
}

/// What lies in the home folder instead of a database or of the list of servers; each is one box and no start.
TEST(StartOnBrokenHome, isRefusedInOneBox) {
    const struct {
        const char* name;
        const char* path;                  ///< relative to the home folder
        std::optional<QByteArray> content; ///< none: the file is taken away
    } cases[] = {
        {"database missing", "data/Dunmarch.db", std::nullopt},
        {"database foreign", "data/Dunmarch.db", QByteArray(8192, 'x')},
        {"database empty", "data/Dunmarch.db", QByteArray()},
        {"servers broken", "orvane.ini", QByteArray("engine = sqlite\n")},
        {"servers binary", "orvane.ini", QByteArray("[server\0\1]", 10)},
        {"made.sys binary", "made.sys", QByteArray("SVR=\0", 5)},
        {"sysdoc.sys too long", "sysdoc.sys", QByteArray(100000, 'a')},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        TestHome home;
        const QString path = QDir(home.folder()).filePath(QLatin1String(each.path));
        ASSERT_TRUE(QFile::remove(path));
        if (each.content)
            writeFile(path, *each.content);
        TestUi ui;
        Program program(home.folder(), ui);
        EXPECT_FALSE(Main(program));
        const QStringList boxes = ui.takeBoxes();
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_FALSE(boxes.first().isEmpty());
        EXPECT_EQ(boxes.first().count(QLatin1Char('\n')), 0) << boxes.first().toStdString();
        EXPECT_EQ(QFile::exists(path), each.content.has_value());
        EXPECT_EQ(ui.opened, QStringList());
    }
}

} // namespace
} // namespace orvane
