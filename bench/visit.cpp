// Loading and saving a visit of 20 items on frmBillingVerify, against the same statements replayed through the bare
// engine API (sqlite3, libpq) on a copy of the same database in the same run. Prints milliseconds as medians, their
// ratio, and how many statements each action sends.
#include "bench/BareEngine.h"
#include "support/Workstation.h"

#include <QCoreApplication>
#include <chrono>
#include <cstdio>

namespace orvane {

namespace {

constexpr int itemsOfAVisit = 20;

/// What the workstation sent during one action, and how long the action took.
struct Recording {
    QStringList statements;
    double milliseconds = 0;
};

/// One visit: laying its rows is replayed but not timed.
struct VisitRun {
    Recording lay, load, save;
};

double milliseconds(const std::function<void()>& action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(QVector<double> values) {
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values.at(values.size() / 2);
}

class Recorder {
public:
    explicit Recorder(Workstation& workstation) : m_workstation(workstation) {}

    Recording record(const std::function<void()>& action) {
        Recording recording;
        m_workstation.program.data().setStatementHook([&](const QString& tsql) { recording.statements << tsql; });
        recording.milliseconds = milliseconds(action);
        m_workstation.program.data().setStatementHook({});
        return recording;
    }

private:
    Workstation& m_workstation;
};

VisitRun runVisit(Workstation& ws, Recorder& recorder, int number) {
    const QString consultID = QStringLiteral("001OFL%1").arg(number, 7, 10, QLatin1Char('0'));
    VisitRun run;
    run.lay = recorder.record([&] {
        Connection billing = ws.billing();
        TestVisit visit;
        visit.consultID = consultID;
        makeVisit(billing, visit);
        TestConsultation consultation;
        consultation.consultID = consultID;
        makeConsultation(billing, consultation);
        for (int i = 0; i < itemsOfAVisit; ++i) {
            TestItem item;
            item.consultID = consultID;
            item.name = QStringLiteral("ITEM %1").arg(i);
            makeItem(billing, item);
        }
    });
    ws.open("frmBillingVerify");
    ws.set("frmBillingVerify.txtSearch", consultID);
    run.load = recorder.record([&] { ws.click("frmBillingVerify.cmdOK"); });
    ws.set("frmBillingVerify.chkRct", "yes");
    ws.set("frmBillingVerify.cboPayFor", "DRUGS");
    ws.set("frmBillingVerify.txtAmt(0)", "1000");
    ws.ui.answer(true);
    run.save = recorder.record([&] { ws.click("frmBillingVerify.OKButton"); });
    ws.close("frmCashReceipt");
    ws.close("frmBillingVerify");
    return run;
}

/// Replays what was sent; the translation is not timed.
double replay(BareEngine& bare, const QStringList& statements) {
    const QList<BareStatement> translated = bare.translated(statements);
    return milliseconds([&] {
        for (const BareStatement& statement : translated)
            bare.run(statement);
    });
}

void report(const char* action, const QVector<Recording>& program, const QVector<double>& bare) {
    QVector<double> times;
    for (const Recording& recording : program)
        times << recording.milliseconds;
    qsizetype sent = 0;
    for (const QString& statement : program.last().statements)
        sent += statement != QLatin1String("transaction committed");
    QVector<double> ratios;
    for (qsizetype i = 0; i < times.size(); ++i)
        ratios << times.at(i) / bare.at(i);
    std::printf("  %-10s %8.2f ms   bare %8.2f ms   ratio %5.2f   statements %lld\n", action, median(times),
                median(bare), median(ratios), static_cast<long long>(sent));
}

} // namespace

/// Prints the figures of one engine.
void benchVisit(Engine engine, int visits) {
    TestHome home(engine);
    {
        Workstation ws(home.folder());
        ws.layHospital();
        Connection billing = ws.billing();
        makePatient(billing);
    }
    const std::unique_ptr<BareEngine> bare = BareEngine::onCopyOf(home);
    Workstation ws(home.folder());
    ws.start();
    Recorder recorder(ws);
    QVector<Recording> loads, saves;
    QVector<double> bareLoads, bareSaves;
    // In turn, so that a machine that slows down slows both.
    for (int i = 1; i <= visits; ++i) {
        const VisitRun run = runVisit(ws, recorder, i);
        replay(*bare, run.lay.statements);
        bareLoads << replay(*bare, run.load.statements);
        bareSaves << replay(*bare, run.save.statements);
        loads << run.load;
        saves << run.save;
    }
    std::printf("%s, a visit of %d items, %d visits (medians)\n", engineName(engine).c_str(), itemsOfAVisit, visits);
    report("load", loads, bareLoads);
    report("save", saves, bareSaves);
}

} // namespace orvane

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const int visits = argc > 1 ? QString::fromLocal8Bit(argv[1]).toInt() : 30;
    for (const orvane::Engine engine : orvane::testEngines())
        orvane::benchVisit(engine, visits);
    return 0;
}
