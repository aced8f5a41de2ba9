// Postings to the ledger while one of the two databases fails: the user is told, each source is in the ledger once in
// the end, and a check finds nothing but what a posting may leave.
#include "Disk.h"
#include "Scene.h"

#include <cerrno>

namespace orvane {

namespace {

const bool everywhere = qEnvironmentVariableIsSet("ORVANE_PROOF_ALL");
const QString ledgerName = "Accounting";

QList<MoneyAction> postings() {
    QList<MoneyAction> actions = moneyActions();
    actions.removeIf([](const MoneyAction& action) { return !action.posts && !action.postsBehind; });
    return actions;
}

/// On a server, where every database costs seconds, two of them unless ORVANE_PROOF_ALL=1 takes the time.
QList<std::tuple<Engine, MoneyAction>> cases() {
    QList<std::tuple<Engine, MoneyAction>> list;
    for (const Engine engine : testEngines())
        for (const MoneyAction& action : postings())
            if (everywhere || engine == Engine::Sqlite || QString("CashPosting InvoicePosting").contains(action.name))
                list << std::tuple(engine, action);
    return list;
}

/// As its user does the next time, in a program started anew.
void finish(const MoneyAction& action, const QString& folder, bool nothingLeft) {
    Workstation next(folder);
    ASSERT_TRUE(next.start());
    if (nothingLeft) {
        action.enter(next);
        action.press(next);
    } else {
        action.complete(next);
    }
    next.ui.forgetBoxes();
}

class BrokenPosting : public ::testing::TestWithParam<std::tuple<Engine, MoneyAction>> {
protected:
    const Engine engine = std::get<0>(GetParam());
    const MoneyAction& action = std::get<1>(GetParam());
    const QString after = figuresAfter(action);

    /// Nothing is left but what may be, and the work that is left ends as if nothing had happened.
    void expectPostedInTheEnd(Scene& scene, const QString& before) {
        scene.ws.reset();
        if (engine == Engine::Postgresql)
            scene.waitForServer();
        EXPECT_EQ(action.faultsAmong(scene.findings()), QStringList());
        if (const QString left = scene.figures(); left != after)
            finish(action, scene.folder(), left == before);
        EXPECT_EQ(scene.figures(), after);
        EXPECT_EQ(scene.findings(), QStringList());
    }
};

INSTANTIATE_TEST_SUITE_P(On, BrokenPosting, ::testing::ValuesIn(cases()), [](const auto& instance) {
    return engineName(std::get<0>(instance.param)) + std::get<1>(instance.param).name;
});

/// Each statement and each answer of either database is lost in turn.
TEST_P(BrokenPosting, IsPostedOnceInTheEnd) {
    const int step = everywhere ? 1 : engine == Engine::Sqlite ? 3 : 9;
    for (int moment = 0;; moment += step) {
        SCOPED_TRACE("broken at " + std::to_string(moment));
        Scene scene(engine, action);
        const QString before = scene.figures();
        int seen = 0;
        scene.ws->program.data().setStatementHook([&](const QString& tsql) {
            if (seen++ == moment || (seen > moment && tsql == "outcome of commit"))
                throw DataError("the cable was pulled");
        });
        scene.press();
        if (seen <= moment)
            break;
        expectPostedInTheEnd(scene, before);
    }
}

/// Each commit of either database is lost on the way there or back, and nobody can be asked until the program is
/// started anew.
TEST_P(BrokenPosting, IsPostedOnceWhenACommitIsNotAnswered) {
    if (engine == Engine::Sqlite)
        GTEST_SKIP() << "there is no way to lose it on";
    for (const Network::Loss loss : {Network::Loss::Request, Network::Loss::Answer})
        for (int commit = 0;; ++commit) {
            SCOPED_TRACE("commit " + std::to_string(commit) + (loss == Network::Loss::Answer ? ", answer" : ""));
            Scene scene(engine, action);
            const QString before = scene.figures();
            scene.hurry();
            scene.network->loseCommit(loss, true, commit);
            scene.press();
            if (!scene.network->hasLost())
                break;
            scene.network->comeBack();
            expectPostedInTheEnd(scene, before);
        }
}

struct LedgerFault {
    Engine engine;
    const char* name;
    const char* words;
    void (*begin)(Scene&);
    void (*end)(Scene&);
};

void openBeside(Scene& scene, const QString& statement) {
    scene.beside = std::make_unique<Beside>(scene.folder(), ledgerName);
    scene.beside->run(statement);
}

/// A statement for the database of the ledger by its name, from the other one.
void runFromBilling(Scene& scene, const QString& statement) {
    Beside(scene.folder()).run(statement.arg(Beside(scene.folder(), ledgerName).databaseName()));
}

void allowConnections(Scene& scene, bool allow) {
    static QString name;
    if (!allow)
        name = Beside(scene.folder(), ledgerName).databaseName();
    Beside(scene.folder()).run(QString("alter database \"%1\" allow_connections %2").arg(name).arg(allow));
}

void renameLedger(Scene& scene, const QString& from, const QString& to) {
    const QString folder = QFileInfo(Beside(scene.folder(), "Dunmarch").databaseName()).path() + '/';
    EXPECT_TRUE(QFile::rename(folder + from, folder + to));
}

/// The server ends the ledger's session at its trail, or at the commit behind that.
void terminate(Scene& scene, bool atCommit) {
    const auto trail = std::make_shared<bool>(false);
    scene.ws->program.data().setStatementHook([&scene, atCommit, trail](const QString& tsql) {
        const bool isTrail = tsql.startsWith("insert into TranFrom");
        const bool reached = atCommit ? *trail && tsql == "commit transaction" : isTrail;
        *trail = *trail || isTrail;
        if (reached)
            runFromBilling(scene, "select pg_terminate_backend(pid, 10000) from pg_stat_activity where datname='%1' "
                                  "and state='idle in transaction'");
    });
}

const LedgerFault faults[] = {
    {Engine::Sqlite, "DiskFull", "The disk of the database is full.",
     [](Scene&) { failWrites(ENOSPC, "Accounting.db"); }, [](Scene&) { failWrites(0); }},
    {Engine::Sqlite, "DiskFails", "The disk of the database cannot be read or written.",
     [](Scene&) { failWrites(EIO, "Accounting.db"); }, [](Scene&) { failWrites(0); }},
    {Engine::Sqlite, "ReadOnly", "The database cannot be written to at present.",
     [](Scene& scene) { scene.ws->accounting().run("pragma query_only = 1"); }, [](Scene&) {}},
    {Engine::Sqlite, "Locked", "The database is in use by another workstation.",
     [](Scene& scene) { openBeside(scene, "begin immediate"); }, [](Scene& scene) { scene.beside.reset(); }},
    {Engine::Sqlite, "Away", "does not exist.",
     [](Scene& scene) {
         renameLedger(scene, "Accounting.db", "away");
         scene.hurry();
     },
     [](Scene& scene) { renameLedger(scene, "away", "Accounting.db"); }},
    {Engine::Postgresql, "DiskFull", "The disk of the database is full.",
     [](Scene& scene) {
         openBeside(scene, "create function tests_full() returns trigger language plpgsql as $$ begin raise exception "
                           "'no space' using errcode = '53100'; end $$");
         scene.beside->run("create trigger tests_full before insert on TranFromAppsTrail for each row execute function "
                           "tests_full()");
     },
     [](Scene& scene) { scene.beside->run("drop function tests_full cascade"); }},
    {Engine::Postgresql, "ReadOnly", "The database cannot be written to at present.",
     [](Scene& scene) {
         runFromBilling(scene, "alter database \"%1\" set default_transaction_read_only = on");
         scene.hurry();
     },
     [](Scene& scene) { runFromBilling(scene, "alter database \"%1\" reset default_transaction_read_only"); }},
    {Engine::Postgresql, "Locked", "The database is in use by another workstation.",
     [](Scene& scene) { openBeside(scene, "select pg_advisory_lock(7461)"); },
     [](Scene& scene) { scene.beside.reset(); }},
    {Engine::Postgresql, "Terminated", "The connection to the database server is lost.",
     [](Scene& scene) { terminate(scene, false); }, [](Scene&) {}},
    {Engine::Postgresql, "TerminatedAtTheCommit", "", [](Scene& scene) { terminate(scene, true); }, [](Scene&) {}},
    {Engine::Postgresql, "Away", "",
     [](Scene& scene) {
         allowConnections(scene, false);
         scene.hurry();
     },
     [](Scene& scene) { allowConnections(scene, true); }},
};

TEST_P(BrokenPosting, IsPostedOnceWhenTheLedgerIsSoundAgain) {
    for (const LedgerFault& fault : faults) {
        if (fault.engine != engine)
            continue;
        SCOPED_TRACE(fault.name);
        Scene scene(engine, action);
        const QString before = scene.figures();
        scene.hurry();
        scene.ws->accounting(); // the program has a connection open, as it has all day
        fault.begin(scene);
        const Scene::Told told = scene.press();
        fault.end(scene);
        EXPECT_TRUE(told.text().contains(QLatin1String(fault.words))) << told.text().toStdString();
        EXPECT_EQ(told.reported, action.postsBehind) << told.text().toStdString();
        EXPECT_NE(scene.figures(), after);
        expectPostedInTheEnd(scene, before);
    }
}

} // namespace

} // namespace orvane
