// The tour that ./run.sh shows, without its windows, and every action that moves money: they go through with the rights
// that are told to a server's owner, leave books that agree, and no screen writes a row by itself.
#include "data/words/Money.h"
#include "play/HeadlessDriver.h"
#include "play/Player.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Check.h"
#include "support/MoneyActions.h"
#include "support/SourceTree.h"
#include "tool/Tool.h"

#include <QBuffer>
#include <QRegularExpression>

namespace orvane {
namespace {

/// Hears which screens write outside a step of the books.
class Eavesdropper {
public:
    explicit Eavesdropper(Program& program) : m_program(program) {
        program.data().setStatementHook([this](const QString& tsql) { hear(tsql); });
    }
    ~Eavesdropper() { m_program.data().setStatementHook({}); }
    Eavesdropper(const Eavesdropper&) = delete;
    Eavesdropper& operator=(const Eavesdropper&) = delete;

    /// Something was written, and all of it in steps.
    void expectSteps(const char* work) const {
        EXPECT_TRUE(m_steps > 0 || !m_outside.isEmpty()) << work << " wrote nothing";
        for (auto form = m_outside.begin(); form != m_outside.end(); ++form)
            ADD_FAILURE() << work << ": " << form.key().toStdString() << ": " << form.value().toStdString();
    }

private:
    void hear(const QString& tsql) {
        // The trails and counters are no books, and the revenue types are filled in by a procedure of the database.
        static const QRegularExpression write(
            R"(^\s*(insert into|update|delete from)\s+\[?(?!AuditTrail|LoginTrail|UserActivities|IDgen)\w+)",
            QRegularExpression::CaseInsensitiveOption);
        if (!tsql.contains(write) || tsql.contains("set revType=(select max("))
            return;
        if (m_program.openSteps() > 0)
            ++m_steps;
        else
            for (const QString& name : m_program.formNames())
                if (const Form* form = m_program.loadedForm(name); form && form->isRunning())
                    m_outside.insert(form->name(), tsql.left(80));
    }

    Program& m_program;
    int m_steps = 0;
    QMap<QString, QString> m_outside; ///< the last statement of each form
};

QString runTool(const QStringList& arguments, int expectedCode) {
    QString text;
    QTextStream out(&text);
    EXPECT_EQ(runDatabaseTool(arguments, out, out), expectedCode) << text.toStdString();
    out.flush();
    return text;
}

TEST(Tour, GoesThroughByTheBooksAndTheyAgree) {
    QTemporaryDir folder;
    const QString home = folder.filePath("home");
    // The hospital of run.sh.
    runTool({"demo", "--home", home, "--patients", "60", "--days", "5", "--seed", "1", "--until", "2026-03-13"}, 0);
    QFile script(sourceFile("demo/tour.play"));
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    {
        QBuffer output;
        output.open(QIODevice::WriteOnly);
        Shower noWindows;
        HeadlessDriver driver;
        EventLog log(output);
        ScriptUi ui(log, noWindows);
        ui.setExportFolder(folder.path());
        Program program(home, ui);
        registerScreens(program);
        const Eavesdropper listener(program);
        const Player::Entry entry{[&] { Main(program); }, [&] { prepareServer(program); }};
        EXPECT_TRUE(Player(program, ui, log, driver, script, entry).run()) << output.data().toStdString();
        listener.expectSteps("the tour");
    }
    runTool({"check", "--home", home}, 0);
}

/// The status bar names what the action has saved, and how much; the question before it said whose.
void expectTold(Workstation& ws, const MoneyAction& action) {
    static const QStringList withoutSave = {"Collation", "Role", "RoleOfUser"};
    if (action.posts || withoutSave.contains(action.name))
        return;
    const QString words = ws.control<StatusBar>("MdiTolmek.SbrTolmek").message();
    bool told = false;
    Connection billing = ws.billing();
    for (Recordset saved(billing, Sql("select document, amount from SavedActions")); !saved.eof(); saved.moveNext()) {
        const double amount = saved.number("amount");
        const QString document = saved.text("document");
        told = told || (words.contains(document) && !words.startsWith(document) &&
                        (amount == 0 || words.contains('N' + formatTwoDecimals(std::abs(amount)))));
    }
    EXPECT_TRUE(told) << words.toStdString();
    if (action.asks == QLatin1String("yes"))
        EXPECT_TRUE(ws.ui.details.value(ws.ui.details.size() - 1).contains('\n'))
            << ws.ui.details.join('|').toStdString();
}

class Rights : public ::testing::TestWithParam<Engine> {};
ORVANE_ON_EACH_ENGINE(Rights);

TEST_P(Rights, AreEnoughForEveryActionAndItWritesByTheBooksAlone) {
    for (const MoneyAction& action : moneyActions()) {
        if (action.brief && GetParam() == Engine::Postgresql)
            continue; // every database costs seconds there
        SCOPED_TRACE(action.name);
        const TestHome home(GetParam());
        layAction(home.folder(), action);
        const LeastRights login(home);
        Workstation ws(home.folder());
        ASSERT_TRUE(ws.start());
        const Eavesdropper listener(ws.program);
        action.enter(ws);
        takeShown(ws.ui);
        const QString before = moneyFigures(ws);
        const int saves = ws.tableCount("SavedActions where trailRows >= 0");
        action.press(ws);
        EXPECT_GT(ws.tableCount("SavedActions where trailRows >= 0"), saves) << "no row of its own";
        listener.expectSteps(action.name);
        const QStringList shown = takeShown(ws.ui);
        EXPECT_TRUE(action.isReportedBy(shown)) << shown.join(" / ").toStdString();
        EXPECT_NE(moneyFigures(ws), before);
        expectTold(ws, action);
        EXPECT_EQ(checkDatabases(ws.program).findings, QStringList());
    }
}

TEST_P(Rights, AreNoMoreThanTheProgramNeeds) {
    if (GetParam() == Engine::Sqlite)
        GTEST_SKIP() << "a database is its owner's file";
    const TestHome home(GetParam());
    const LeastRights login(home);
    DataSource source(home.folder());
    const std::pair<QString, QStringList> refused[] = {
        {TestHome::billing(),
         {"drop table Payments", "delete from Payments", "update Payments set AmountPaid=0",
          "update PaymentTypes set AmountPaid=0", "delete from AuditTrail", "update AuditTrail set login='x'",
          "insert into AuditTrail (userName, login) values ('x', 'y')",
          "insert into AuditTrail (savedAt) values "
          "('2020-01-01')",
          "insert into SavedActions (token, savedAt) values ('x', '2020-01-01')",
          "insert into SavedActions (token, login) values ('x', 'y')", "update SavedActions set username='x'",
          "delete from SavedActions", "delete from SavedParts", "update SavedParts set amount=0",
          "update Tranxaction set Amount=0", "delete from hPatients", "insert into AppDefaults (ID) values ('X')",
          "select * from billoflading", "create table mine (a int)"}},
        {TestHome::accounting(),
         {"delete from Tranxaction", "update Tranxaction set Amount=0", "update AccountMonthOpen set isClose=0"}}};
    for (const auto& [database, statements] : refused)
        for (const QString& statement : statements)
            try {
                source.open(database).run(statement);
                ADD_FAILURE() << statement.toStdString();
            } catch (const DataError& fault) {
                EXPECT_TRUE(fault.code() == "42501") << statement.toStdString() << ": " << fault.what();
            }
}

} // namespace
} // namespace orvane
