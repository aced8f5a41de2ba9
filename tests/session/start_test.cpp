#include "session/Main.h"
#include "support/Workstation.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
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

    /// A row of AppDefaults, or the one row of AccountMonth.
    void layDefault(const QString& id, const QString& value) {
        owner.run(id == "AccountMonth" ? "insert into AccountMonth (Period) values ('" + value + "')"
                                       : "insert into AppDefaults (ID, idval) values ('" + id + "', '" + value + "')");
    }
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
        {"System Default Value needed for Private Tariff", [&] { layDefault("PRIVATE", "0001"); }},
    };
    for (const auto& step : steps) {
        Attempt run(home.folder());
        EXPECT_FALSE(run.started);
        const bool second = &step == steps;
        EXPECT_EQ(run.ui.takeBoxesWithTitles(),
                  (QList<TestUi::Box>{{step.box, second ? "Error" : "", second ? Icon::Critical : Icon::None}}));
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
    EXPECT_EQ(run.session.sHospitalNoStr, "0");
    EXPECT_EQ(run.session.gPatientsFolder, "\\\\SERVER\\Patients\\");
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
        EXPECT_EQ(station.ui.takeBoxes(), QStringList(complete ? "You're welcome, AMINA BELLO."
                                                               : "System Default Value needed for Private Tariff"));
        EXPECT_EQ(station.ui.hasQuit, !complete);
        EXPECT_EQ(station.ui.opened.contains("MdiTolmek"), complete);
        EXPECT_EQ(station.program.session.gHospID, "001");
        EXPECT_EQ(station.program.loadedForm("frmWelcome"), nullptr);
        if (!complete)
            layDefault("PRIVATE", "0001");
    }
    // A fault while the settings are read: no press opens the shell without them.
    owner.run("update AppDefaults set idval='maybe' where ID='AcctPostOn'");
    Workstation station(home.folder());
    ASSERT_TRUE(MainWithLogin(station.program));
    station.click("frmWelcome.cmdEnter");
    for (int press = 0; press < 2; ++press) {
        station.set("frmLogin.txtUserName", "amina.b");
        station.click("frmLogin.cmdOK");
        EXPECT_EQ(station.ui.takeBoxes().size(), 1);
    }
    EXPECT_FALSE(station.ui.opened.contains("MdiTolmek"));
}

/// A setting, the variable that holds it, and what comes of a missing row and of an empty value.
struct Setting {
    const char* id; ///< of AppDefaults; "AccountMonth": the one row of that table
    QString Session::*variable;
    const char* noRowValue; ///< null: the start ends
    const char* noRowBox;   ///< "": none
    const char* emptyBox;   ///< "": none, and the empty value is kept; else the start ends
};
using S = Session;
const Setting settings[] = {
    {"PRIVATE", &S::gPrivateTariff, nullptr, "System Default Value needed for Private Tariff", ""},
    {"LockPrice", &S::gLockPrice, "YES", "", ""},
    {"RevTypeRpt", &S::gRevTypeRpt, "NO", "", ""},
    {"AccountMonth", &S::gCurrentPeriod, nullptr, "Acct Current_Period missing", ""},
    {"ACCT_SUSP", &S::gAcctSusp, nullptr, "Suspense Account No (ACCT_SUSP/ACCT_SUSP_DESC) missing", ""},
    {"ACCT_SUSP_DESC", &S::gAcctSuspDesc, "OTHERS", "", ""},
    {"AcctPostType", &S::gAcctPostType, "AUTO", "", ""},
    {"AUTO_TRAN_NO", &S::gAutoTranNo, "YES", "", "AUTO_TRAN_NO+"},
    {"AcctCostCenter", &S::gAcctCostCenter, nullptr, "AcctCostCenter+", "AcctCostCenter+"},
    {"AcctNoPOS", &S::gAcctNoPOS, nullptr, "POS Acct No+", "POS Acct No+"},
    {"AcctNoCheque", &S::gAcctNoCheque, nullptr, "Cheque Acct No+", "Cheque Acct No+"},
    {"AcctNoTransfer", &S::gAcctNoTransfer, nullptr, "Transfer Acct No+", "Transfer Acct No+"},
    {"AcctNoCash", &S::gAcctNoCash, nullptr, "Cash Acct No+", "Cash Acct No+"},
    {"CashAccountIndex", nullptr, nullptr, "CashAccountIndex+", "Cash Acct Index No+"},
    {"ARAccountIndex", nullptr, nullptr, "Cash Acct Index No+", "ARAccountIndex+"},
    {"AcctNoSales", &S::gAcctNoSales, nullptr, "Sales Acct No+", "Cash Sales Acct No+"},
    {"AcctNoSalesInv", &S::gAcctNoSalesInv, nullptr, "Sales Invoice Acct No+", "Sales Invoice Acct No+"},
    {"NHISFEE", &S::gNHISFee, "ALL", "System Default Value needed for NHIS % Fee", ""},
    {"BillTo", &S::gBillTo, "0001", "", ""},
};

/// A "+" stands for the end that most of the texts share.
QStringList boxes(const QString& text) {
    return text.isEmpty() ? QStringList() : QStringList{QString(text).replace('+', " needed for Posting")};
}

/// Everything is missing at first; each start complains of the next one, and of its empty value.
TEST_P(Start, settingsAreAskedInTheirOrder) {
    owner.run("delete from AccountMonth");
    owner.run("delete from AppDefaults where ID<>'AcctPostOn'");
    const auto expectRefusal = [&](const char* text) {
        Attempt run(home.folder());
        EXPECT_FALSE(run.started);
        EXPECT_EQ(run.ui.takeBoxes(), boxes(text));
    };
    for (const Setting& setting : settings) {
        SCOPED_TRACE(setting.id);
        if (!setting.noRowValue)
            expectRefusal(setting.noRowBox);
        if (*setting.emptyBox) {
            layDefault(setting.id, "");
            expectRefusal(setting.emptyBox);
            owner.run(QStringLiteral("delete from AppDefaults where ID='%1'").arg(setting.id));
        }
        if (!setting.noRowValue)
            layDefault(setting.id, "7");
    }
    Attempt run(home.folder());
    EXPECT_TRUE(run.started);
    EXPECT_BOXES(run.ui, {"System Default Value needed for NHIS % Fee"});
    EXPECT_EQ(run.session.gCashAccountIndex * 10 + run.session.gARAccountIndex, 77);
    EXPECT_EQ(run.session.gPeriod, "7");
    for (const Setting& setting : settings)
        if (setting.noRowValue)
            EXPECT_EQ(run.session.*setting.variable, setting.noRowValue) << setting.id;
}

TEST_P(Start, settingsAreHeldAlsoWhenEmpty) {
    for (const bool empty : {false, true}) {
        for (const Setting& setting : settings)
            if (setting.variable && !(empty && *setting.emptyBox))
                owner.run(setting.id == QLatin1String("AccountMonth")
                              ? QStringLiteral("update AccountMonth set Period='%1'").arg(empty ? "" : setting.id)
                              : QStringLiteral("update AppDefaults set idval='%1' where ID='%2'")
                                    .arg(empty ? "" : setting.id, setting.id));
        const Attempt run(home.folder());
        EXPECT_TRUE(run.started);
        for (const Setting& setting : settings)
            if (setting.variable)
                EXPECT_EQ(run.session.*setting.variable, empty && !*setting.emptyBox ? "" : setting.id);
    }
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
    owner.run("update AppDefaults set idval='yes' where ID='AcctPostOn'");
    owner.run("update AppDefaults set idval='12x' where ID='ARAccountIndex'");
    EXPECT_TRUE(Attempt(home.folder()).ui.takeBoxes().value(0).contains("ARAccountIndex"));
    // Without posting none of its settings needs to exist.
    owner.run("delete from AppDefaults where ID like 'Acc%' or ID in ('CashAccountIndex', 'ARAccountIndex')");
    EXPECT_TRUE(Attempt(home.folder()).started);
}

} // namespace
} // namespace orvane
