// The tour that ./run.sh shows, without its windows, and every action that moves money: they go through, leave books
// that agree, and no screen writes a row by itself.
#include "tool/Tool.h"
#include "play/HeadlessDriver.h"
#include "play/Player.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/MoneyActions.h"
#include "support/SourceTree.h"

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
        // The trails and counters are no books.
        static const QRegularExpression write(
            R"(^\s*(insert into|update|delete from)\s+\[?(?!AuditTrail|LoginTrail|UserActivities|IDgen)\w+)",
            QRegularExpression::CaseInsensitiveOption);
        if (!tsql.contains(write))
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

TEST(MoneyActions, WriteByTheBooksAlone) {
    for (const MoneyAction& action : moneyActions()) {
        const TestHome home;
        layAction(home.folder(), action);
        Workstation ws(home.folder());
        ASSERT_TRUE(ws.start());
        const Eavesdropper listener(ws.program);
        action.enter(ws);
        action.press(ws);
        listener.expectSteps(action.name);
        takeShown(ws.ui);
    }
}

} // namespace
} // namespace orvane
