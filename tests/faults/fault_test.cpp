// Faults of the engine in the middle of a save: the user is told, nothing is half saved, and the same program saves the
// same entry, once, when the fault is gone.
#include "Disk.h"
#include "PrivateServer.h"
#include "Scene.h"

#include <QRegularExpression>
#include <cerrno>

namespace orvane {

namespace {

const QString unknown = "It is not known whether it was saved.";
const QString stillUnknown = "it is still not known whether the entry was saved";
const QString wasSaved = "The entry was saved before the connection broke. It is not saved again.";
const QString notSaved = "The entry was not saved when the connection broke. Please check it and save it again.";
const QString nothingSaved = "Nothing was saved.";

struct Fault {
    Engine engine;
    const char* name;
    const char* words;
    void (*begin)(Scene&);
    void (*end)(Scene&);
};

/// What the program's next connection is told. Its pool gives the last one first.
void tellProgram(Scene& scene, const char* pragma) {
    scene.ws->billing().run(QLatin1String(pragma));
}

void openBeside(Scene& scene, const char* statement) {
    scene.beside = std::make_unique<Beside>(scene.folder());
    scene.beside->run(QLatin1String(statement));
}

/// The engine's own state for a full disk, raised where a save would write: no server's disk can be filled from here.
const char* const fullServer = R"(
create function tests_full() returns trigger language plpgsql as
$$ begin raise exception 'could not extend file: No space left on device' using errcode = '53100'; end $$;
do $$ declare t text; begin
for t in select unnest(array['hRecords','BillAccum','Payments','Billing','BillingDetails','BillingDetailsAdjust']) loop
execute format('create trigger tests_full before insert or update on %I for each row execute function tests_full()',
(select relname from pg_class where relkind = 'r' and lower(relname) = lower(t)));
end loop; end $$)";

/// The server ends the program's session at the first such statement of an entry.
void terminateAt(Scene& scene, const QString& statement) {
    scene.ws->program.data().setStatementHook([&scene, statement](const QString& tsql) {
        if (!tsql.startsWith(statement, Qt::CaseInsensitive) || scene.ws->program.data().openTransactions() == 0)
            return;
        openBeside(scene, "select pg_terminate_backend(pid, 10000) from pg_stat_activity where "
                          "datname=current_database() and state = 'idle in transaction'");
        scene.waitForServer();
    });
}

void stopTerminating(Scene& scene) {
    scene.ws->program.data().setStatementHook({});
}

const Fault faults[] = {
    {Engine::Sqlite, "DiskFull", "The disk of the database is full. Nothing was saved.",
     [](Scene&) { failWrites(ENOSPC); }, [](Scene&) { failWrites(0); }},
    {Engine::Sqlite, "DiskFails", "The disk of the database cannot be read or written. Nothing was saved.",
     [](Scene&) { failWrites(EIO); }, [](Scene&) { failWrites(0); }},
    {Engine::Sqlite, "ReadOnly", "The database cannot be written to at present. Nothing was saved.",
     [](Scene& scene) { tellProgram(scene, "pragma query_only = 1"); }, [](Scene&) {}},
    {Engine::Sqlite, "Locked", "The database is in use by another workstation. Nothing was saved.",
     [](Scene& scene) { openBeside(scene, "begin immediate"); }, [](Scene& scene) { scene.beside.reset(); }},
    {Engine::Postgresql, "DiskFull", "The disk of the database is full. Nothing was saved.",
     [](Scene& scene) { openBeside(scene, fullServer); },
     [](Scene& scene) { scene.beside->run("drop function tests_full cascade"); }},
    {Engine::Postgresql, "ReadOnly", "The database cannot be written to at present. Nothing was saved.",
     [](Scene& scene) {
         scene.beside = std::make_unique<Beside>(scene.folder());
         scene.beside->run(
             QString("alter database \"%1\" set default_transaction_read_only = on").arg(scene.beside->databaseName()));
         scene.hurry(); // with connections that are opened from now on
     },
     [](Scene& scene) {
         scene.beside->run("set default_transaction_read_only = off");
         scene.beside->run(
             QString("alter database \"%1\" reset default_transaction_read_only").arg(scene.beside->databaseName()));
     }},
    {Engine::Postgresql, "Locked", "The database is in use by another workstation. Nothing was saved.",
     [](Scene& scene) { openBeside(scene, "select pg_advisory_lock(7461)"); },
     [](Scene& scene) { scene.beside.reset(); }},
    {Engine::Postgresql, "RowLocked", "The database is in use by another workstation. Nothing was saved.",
     [](Scene& scene) {
         openBeside(scene, "begin");
         scene.beside->run("lock table hRecords, BillAccum, Payments, Billing, BillingDetailsAdjust in share mode");
     },
     [](Scene& scene) { scene.beside.reset(); }},
    {Engine::Postgresql, "Terminated", "The connection to the database server is lost. Nothing was saved.",
     [](Scene& scene) { terminateAt(scene, "insert"); }, stopTerminating},
    {Engine::Postgresql, "TerminatedAtTheCommit", "Nothing was saved.",
     [](Scene& scene) { terminateAt(scene, "commit transaction"); }, stopTerminating},
};

/// How the entry gets saved in the end.
enum class Ending {
    Press,       ///< the fault is gone
    AnswerLost,  ///< the commit came through, and nobody was told
    Late,        ///< the commit comes through when nobody waits for it any more
    OnTheWay,    ///< as AnswerLost, and the server can be asked at once
    ServerForgot ///< what was committed, and has given the transaction's number to another one
};

struct Case {
    Engine engine;
    MoneyAction action;
    Ending ending;
    bool withFaults; ///< all that come before
};

std::string caseName(const Case& one) {
    const char* const endings[] = {"Press", "AnswerLost", "Late", "OnTheWay", "ServerForgot"};
    return engineName(one.engine) + one.action.name + endings[int(one.ending)];
}

void PrintTo(const Case& one, std::ostream* out) {
    *out << caseName(one);
}

/// All but the collation, which reports nothing, roles, whose faults are told in a log only, and postings.
QList<MoneyAction> pressedActions() {
    static const QStringList others = {"Collation", "Role", "RoleOfUser"};
    QList<MoneyAction> actions = moneyActions();
    actions.removeIf([](const MoneyAction& action) { return action.posts || others.contains(action.name); });
    return actions;
}

/// On a server every database costs seconds, so five actions meet all faults there and the others one ending in turn;
/// ORVANE_PROOF_ALL=1 takes the time for all of them.
QList<Case> cases() {
    QList<Case> list;
    const bool all = qEnvironmentVariableIsSet("ORVANE_PROOF_ALL");
    const bool server = testEngines().contains(Engine::Postgresql);
    const QStringList inFull = {"Attendance", "SaveWithReceipt", "Receipt", "Reversal", "Deposit"};
    const Ending endings[] = {Ending::Late, Ending::OnTheWay, Ending::AnswerLost};
    qsizetype turn = 0;
    for (const MoneyAction& action : pressedActions()) {
        list << Case{Engine::Sqlite, action, Ending::Press, true};
        if (!server)
            continue;
        if (all || inFull.contains(action.name))
            list << Case{Engine::Postgresql, action, Ending::AnswerLost, true};
        else
            list << Case{Engine::Postgresql, action, endings[turn++ % std::size(endings)], false};
        if (action.name == QString("Discount"))
            list << Case{Engine::Postgresql, action, Ending::ServerForgot, false};
    }
    return list;
}

class Faults : public ::testing::TestWithParam<Case> {
protected:
    const MoneyAction& action = GetParam().action;
    const QString after = figuresAfter(action);
    Scene scene{GetParam().engine, action};
    const QString before = scene.figures();

    /// The press has told `words`, and nothing is saved.
    void expectRefused(const Scene::Told& told, const QString& words) {
        EXPECT_TRUE(told.text().contains(words)) << told.text().toStdString();
        EXPECT_FALSE(told.reported);
        EXPECT_EQ(scene.ws->program.data().openTransactions(), 0);
        EXPECT_EQ(scene.figures(), before);
    }
    void expectSaved(const Scene::Told& told) {
        // What reports by saying nothing still says what became of an unanswered save.
        EXPECT_TRUE(told.reported || (!*action.report && told.boxes == QStringList(wasSaved)))
            << told.text().toStdString();
        EXPECT_EQ(scene.figures(), after);
        EXPECT_EQ(scene.findings(), QStringList());
    }
    /// Loses the commit of the next press while the server stays away.
    void pressAndLose(Network::Loss loss) {
        scene.network->loseCommit(loss, true);
        const Scene::Told told = scene.press();
        EXPECT_TRUE(scene.network->hasCut());
        EXPECT_TRUE(told.text().contains(unknown)) << told.text().toStdString();
        EXPECT_TRUE(told.text().contains("How to find out: press the same button again"));
        EXPECT_FALSE(told.reported);
        expectStillUnknown();
    }
    void expectStillUnknown() {
        const Scene::Told told = scene.press();
        EXPECT_EQ(told.boxes.size(), 1);
        EXPECT_TRUE(told.boxes.value(0).contains(stillUnknown)) << told.text().toStdString();
    }

    void tryFaults() {
        for (const Fault& fault : faults) {
            if (fault.engine != scene.engine)
                continue;
            SCOPED_TRACE(fault.name);
            scene.ws->billing(); // the program has a connection open, as it has all day
            fault.begin(scene);
            const Scene::Told told = scene.press();
            fault.end(scene);
            expectRefused(told, QLatin1String(fault.words));
        }
    }

    /// The network is cut at one statement after the other, the commit among them.
    void tryCuts() {
        const int step = qEnvironmentVariableIsSet("ORVANE_PROOF_ALL") ? 1 : 6;
        for (int statement = 1;; statement += step) {
            SCOPED_TRACE("cut at " + std::to_string(statement));
            // One that is never reached leaves the save to the loss behind it.
            scene.network->cutAtStatement(statement);
            scene.network->loseCommit(Network::Loss::Request, false);
            const Scene::Told told = scene.press();
            ASSERT_TRUE(scene.network->hasCut());
            expectRefused(told, nothingSaved);
            if (scene.network->hasLost())
                return;
        }
    }

    /// The commit never arrives; then it stays on the way, so that it may yet arrive and nothing may be saved again.
    void tryLostRequests() {
        for (const Network::Loss loss : {Network::Loss::Request, Network::Loss::Delay}) {
            pressAndLose(loss);
            scene.network->comeBack();
            if (loss == Network::Loss::Delay)
                expectStillUnknown();
            EXPECT_EQ(scene.figures(), before);
            scene.network->endDelayedCommit(false);
            scene.waitForServer();
            expectRefused(scene.press(), notSaved);
        }
    }

    /// The server comes back as a copy from before the save.
    void forgetOnServer() {
        PrivateServer::keepCopy();
        pressAndLose(Network::Loss::Answer);
        const QString lost = Beside(scene.folder()).run("select xmin from SavedActions order by savedAt desc limit 1");
        PrivateServer::becomeCopy();
        {
            Beside others(scene.folder());
            while (others.run("select txid_current()").toLongLong() < lost.toLongLong()) {
            }
            ASSERT_EQ(others.run("select txid_status(" + lost + ")"), "committed") << "another transaction";
        }
        scene.network->comeBack();
        expectRefused(scene.press(), notSaved);
        expectSaved(scene.press());
    }
};

TEST_P(Faults, SaveTheEntryOnceWhenTheyAreGone) {
    ASSERT_NE(before, after);
    const bool server = scene.engine == Engine::Postgresql;
    if (server && GetParam().withFaults)
        tryCuts();
    scene.hurry();
    if (GetParam().withFaults)
        tryFaults();
    if (server && GetParam().withFaults)
        tryLostRequests();

    switch (GetParam().ending) {
    case Ending::Press:
        expectSaved(scene.press());
        return;
    case Ending::AnswerLost:
    case Ending::Late: {
        pressAndLose(GetParam().ending == Ending::Late ? Network::Loss::Delay : Network::Loss::Answer);
        scene.network->comeBack();
        scene.network->endDelayedCommit(true);
        const Scene::Told told = scene.press();
        EXPECT_EQ(told.boxes.value(0), wasSaved);
        expectSaved(told);
        return;
    }
    case Ending::OnTheWay: {
        scene.network->loseCommit(Network::Loss::Answer, false);
        const Scene::Told told = scene.press();
        EXPECT_TRUE(scene.network->hasCut());
        EXPECT_FALSE(told.text().contains("connection")) << told.text().toStdString();
        expectSaved(told);
        return;
    }
    case Ending::ServerForgot:
        forgetOnServer();
        return;
    }
}

INSTANTIATE_TEST_SUITE_P(On, Faults, ::testing::ValuesIn(cases()),
                         [](const auto& instance) { return caseName(instance.param); });

/// A save whose commit was not answered, seen on each action, however its user asks what became of it.
class UnknownSave : public ::testing::TestWithParam<MoneyAction> {
protected:
    Scene scene{Engine::Sqlite, GetParam()};
    Workstation& ws = *scene.ws;
    const QString formName = QString(GetParam().button).section('.', 0, 0);
    const QString before = scene.figures();
    const QString after = figuresAfter(GetParam());

    Form* form() { return ws.program.loadedForm(formName); }

    /// The answer to the first commit of an entry is lost, and nobody can be asked, until the hook is taken away.
    void loseAnswer() {
        ws.program.data().setStatementHook([this](const QString& tsql) {
            if (tsql == "begin transaction")
                m_hasWritten = false;
            m_hasWritten = m_hasWritten || isWrite(tsql);
            if (tsql == "outcome of commit" || (tsql == "transaction committed" && m_hasWritten))
                throw DataError("the cable was pulled");
        });
    }
    static bool isWrite(const QString& tsql) {
        static const QRegularExpression write("^\\s*(insert|update|delete)\\b(?!.*(IDgen|AuditTrail))",
                                              QRegularExpression::CaseInsensitiveOption);
        return tsql.contains(write);
    }

    /// What its user can reach: the names of the controls that are not locked.
    QSet<QString> unlocked() {
        QSet<QString> names;
        for (const Control* control : form()->controls())
            if (control->isEnabled() && control->kind() != ControlKind::Label &&
                control->kind() != ControlKind::TabStrip)
                names << control->name();
        return names;
    }
    /// The press is not answered: all is saved, and the entry stays, locked but for the button and the way out.
    void pressUnanswered() {
        loseAnswer();
        const Scene::Told told = scene.press();
        EXPECT_TRUE(told.boxes.value(0).contains(unknown)) << told.text().toStdString();
        EXPECT_EQ(told.boxes.size(), 1);
        EXPECT_FALSE(told.reported);
        ASSERT_NE(form(), nullptr);
        QSet<QString> open = {QString(GetParam().button).section('.', 1)};
        if (const Button* cancel = form()->cancelButton(); cancel && cancel->isEnabled())
            open << cancel->name();
        EXPECT_EQ(unlocked(), open);
        EXPECT_NE(scene.figures(), before);
    }
    void expectSavedOnce(const Scene::Told& told) {
        EXPECT_EQ(told.boxes.value(0), wasSaved);
        if (*GetParam().report)
            EXPECT_TRUE(told.reported) << told.text().toStdString();
        else
            EXPECT_EQ(told.boxes.size(), 1);
        EXPECT_EQ(scene.figures(), after);
        EXPECT_EQ(scene.findings(), QStringList());
    }

private:
    bool m_hasWritten = false;
};

INSTANTIATE_TEST_SUITE_P(On, UnknownSave, ::testing::ValuesIn(pressedActions()),
                         [](const auto& instance) { return instance.param.name; });

TEST_P(UnknownSave, IsLookedUpByTheNextPress) {
    ASSERT_NO_FATAL_FAILURE(pressUnanswered());
    const QSet<QString> locked = unlocked();
    EXPECT_TRUE(scene.press().boxes.join('\n').contains(stillUnknown));
    EXPECT_EQ(unlocked(), locked);
    // Another screen has taken up another visit meanwhile: what follows the save belongs to its own.
    ws.program.session.gConsultID = "001OFL0000099";
    ws.program.session.sBillPno = "P/0099";
    ws.program.session.sBillPatLabel = "OBI ADA";
    ws.program.data().setStatementHook({});
    expectSavedOnce(scene.press());
    EXPECT_TRUE(!form() || unlocked().size() > locked.size()) << "the screen can be worked on again";
}

TEST_P(UnknownSave, IsLeftToItsUserByClosingWhileNobodyKnows) {
    ASSERT_NO_FATAL_FAILURE(pressUnanswered());
    ws.close(formName);
    const QStringList boxes = ws.ui.takeBoxes();
    EXPECT_TRUE(boxes.value(0).contains(stillUnknown));
    EXPECT_TRUE(boxes.value(1).contains("Please look it up before you enter it again."));
    EXPECT_EQ(form(), nullptr);
    EXPECT_EQ(scene.findings(), QStringList());
}

TEST_P(UnknownSave, IsToldToWhoeverClosesTheScreen) {
    ASSERT_NO_FATAL_FAILURE(pressUnanswered());
    ws.program.data().setStatementHook({});
    ws.close(formName);
    const QStringList shown = takeShown(ws.ui);
    expectSavedOnce({shown.filter("box ").replaceInStrings("box ", ""), GetParam().isReportedBy(shown)});
}

} // namespace

} // namespace orvane
