// A workstation that dies at any moment of an action loses nothing that it reported saved, leaves no half of it, and
// the action can be done again.
#include "support/Check.h"
#include "support/MoneyActions.h"
#include "support/TestHome.h"

#include <QDir>
#include <QFile>
#include <csignal>
#include <iostream>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane {

namespace {

/// How an action went in its own process.
struct ActionRun {
    bool killed = false;
    bool reported = false; ///< the user had been told that it is saved
    int moments = 0;       ///< so many it could have been killed at before it ended
};

/// The child's part: plays the action and dies at the moment `killAt`; leaves in its home what it reported before that.
void playAndDie(const QString& folder, const MoneyAction& action, int killAt) {
    Workstation ws(folder);
    // What a killed process had written stays with the system: only a power cut needs the disk.
    ws.program.data().setDisposable();
    if (!ws.start())
        throw std::runtime_error("the program does not start");
    action.enter(ws);
    takeShown(ws.ui);

    QStringList shown;
    int moments = 0;
    const auto tell = [&](bool ended) {
        shown << takeShown(ws.ui);
        // What reports by saying nothing has reported when it ends.
        const bool reported = (ended || *action.report) && action.isReportedBy(shown);
        const QByteArray told = (reported ? "1" : "0") + QByteArray::number(moments);
        QFile file(folder + "/told");
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(told) != told.size())
            _exit(3);
    };
    ws.program.data().setStatementHook([&](const QString&) {
        if (moments == killAt) {
            tell(false);
            raise(SIGKILL);
        }
        ++moments;
    });
    action.press(ws);
    tell(true);
    if (!action.isReportedBy(shown))
        throw std::runtime_error("nothing was reported saved, but: " + shown.join(" / ").toStdString());
    _exit(::testing::Test::HasFailure() ? 1 : 0);
}

/// Plays the action in a process of its own, which is killed at this moment (-1: never).
ActionRun play(const TestHome& home, const MoneyAction& action, int killAt) {
    std::cout.flush();
    const pid_t child = fork();
    if (child == 0) {
        try {
            playAndDie(home.folder(), action, killAt);
        } catch (const std::exception& fault) {
            std::cerr << action.name << ": " << fault.what() << std::endl;
        }
        _exit(2);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ActionRun run;
    run.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    EXPECT_TRUE(run.killed || (WIFEXITED(status) && WEXITSTATUS(status) == 0)) << "the child ended with " << status;
    QFile file(home.folder() + "/told");
    const QByteArray told = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    run.reported = told.startsWith('1');
    run.moments = told.mid(1).toInt();
    return run;
}

class Kill : public ::testing::TestWithParam<std::tuple<Engine, MoneyAction>> {
protected:
    const Engine engine = std::get<0>(GetParam());
    const MoneyAction& action = std::get<1>(GetParam());

    /// Databases on which the action can be done.
    std::unique_ptr<TestHome> freshHome() {
        if (!m_laid) {
            m_laid = std::make_unique<TestHome>(engine);
            layAction(m_laid->folder(), action);
        }
        return std::make_unique<TestHome>(*m_laid);
    }
    /// Without findings, but those that a cut may leave.
    QString leftFigures(const TestHome& home) {
        Workstation ws(home.folder());
        ws.program.data().setDisposable();
        EXPECT_EQ(action.faultsAmong(checkDatabases(ws.program).findings), QStringList());
        return moneyFigures(ws);
    }
    static QString soundFigures(const TestHome& home) {
        Workstation ws(home.folder());
        ws.program.data().setDisposable();
        EXPECT_EQ(besideTheTrail(checkDatabases(ws.program).findings), QStringList());
        return moneyFigures(ws);
    }
    /// What an action that is saved in steps has left undone.
    void complete(const TestHome& home, const QString& left) {
        ASSERT_NE(action.complete, nullptr) << "a half:\n" << left.toStdString();
        Workstation ws(home.folder());
        ASSERT_TRUE(ws.start());
        action.complete(ws);
        EXPECT_BOXES(ws.ui, {});
    }

private:
    std::unique_ptr<TestHome> m_laid;
};

/// Laying the databases anew for each moment is slow on a server; ORVANE_PROOF_ALL=1 takes the time.
const bool everywhere = qEnvironmentVariableIsSet("ORVANE_PROOF_ALL");

QList<std::tuple<Engine, MoneyAction>> cases() {
    QList<std::tuple<Engine, MoneyAction>> list;
    for (const Engine engine : testEngines())
        for (const MoneyAction& action : moneyActions())
            if (everywhere || engine == Engine::Sqlite || !action.brief)
                list << std::tuple(engine, action);
    return list;
}

INSTANTIATE_TEST_SUITE_P(On, Kill, ::testing::ValuesIn(cases()), [](const auto& instance) {
    return engineName(std::get<0>(instance.param)) + std::get<1>(instance.param).name;
});

TEST_P(Kill, LosesNothingThatWasReportedSaved) {
    const auto whole = freshHome();
    const ActionRun unkilled = play(*whole, action, -1);
    const QString after = soundFigures(*whole);

    const int step = everywhere ? 1 : engine == Engine::Postgresql ? 7 : action.brief ? 5 : 1;
    QString before;
    for (int moment = 0; moment < unkilled.moments; moment += step) {
        SCOPED_TRACE("killed at " + std::to_string(moment));
        const auto home = freshHome();
        const ActionRun run = play(*home, action, moment);
        ASSERT_TRUE(run.killed);
        const QString left = leftFigures(*home);
        if (moment == 0) {
            before = left;
            ASSERT_NE(before, after);
        }
        EXPECT_TRUE(!run.reported || left == after || (action.postsBehind && left != before))
            << "reported saved, but left:\n"
            << left.toStdString();
        if (left == before)
            play(*home, action, -1);
        else if (left != after)
            complete(*home, left);
        EXPECT_EQ(soundFigures(*home), after) << "done again";
    }
    std::cout << engineName(engine) << ' ' << action.name << ": killed at " << (unkilled.moments + step - 1) / step
              << " of " << unkilled.moments << " moments" << std::endl;
}

} // namespace

} // namespace orvane
