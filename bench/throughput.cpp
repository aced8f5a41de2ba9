// Saves per second with 1, 2, 4 and 8 workstations, each a process of its own on the real screens, beside as many
// processes that send the same statements to the bare engine (sqlite3, libpq). The work is the same however many share
// it: the rounds of eight cashiers, each with a patient of her own; last, all of them on the same few patients.
#include "bench/BareEngine.h"
#include "bench/PgSession.h"
#include "bench/Recorder.h"
#include "data/dialect/Catalog.h"
#include "support/Check.h"
#include "support/Workstation.h"
#include "tests/proof/Worker.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>
#include <cstdio>
#include <deque>
#include <optional>

namespace orvane {

namespace {

constexpr int cashiers = 8;
constexpr int processCounts[] = {1, 2, 4, 8};
constexpr int runsOfEach = 3;
const QDateTime morning(QDate(2026, 3, 14), QTime(9, 30)); // the workers' own

void store(const QString& path, const QStringList& statements) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw DataError(path + " cannot be written");
    QDataStream out(&file);
    out << statements;
}

QStringList stored(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw DataError(path + " cannot be read");
    QDataStream in(&file);
    QStringList statements;
    in >> statements;
    return statements;
}

/// Gives each row that an insert adds the number that it got while it was recorded, by which later statements ask for
/// it: the bare processes run at once, and the engine would number their rows otherwise.
class RowNumbers {
public:
    explicit RowNumbers(Connection connection) : m_connection(std::move(connection)) {}

    QString numbered(const QString& tsql) {
        static const QRegularExpression insert("^insert into \\[?(\\w+)\\]? \\((.*)$",
                                               QRegularExpression::CaseInsensitiveOption |
                                                   QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = insert.match(tsql);
        const Table* table = match.hasMatch() ? Catalog::instance().table(match.captured(1)) : nullptr;
        // The audit trail is written only, and may lie elsewhere.
        const QString identity = table && table->name != "AuditTrail" ? identityOf(*table) : QString();
        const qsizetype values = match.captured(2).indexOf(") values (");
        if (identity.isEmpty() || values < 0)
            return tsql;
        return QStringLiteral("insert into [%1] ([%2], %3) values (%4, %5")
            .arg(table->name, identity, match.captured(2).left(values), QString::number(nextOf(*table, identity)),
                 match.captured(2).mid(values + 10));
    }

private:
    static QString identityOf(const Table& table) {
        for (const Column& column : table.columns)
            if (column.identity)
                return column.name;
        return {};
    }

    qlonglong nextOf(const Table& table, const QString& identity) {
        if (!m_last.contains(table.name))
            m_last[table.name] =
                m_connection.run(QStringLiteral("select max([%1]) as N from [%2]").arg(identity, table.name))
                    .integer("N");
        return ++m_last[table.name];
    }

    Connection m_connection;
    QHash<QString, qlonglong> m_last;
};

/// Starts the processes, lets them begin together and gives the seconds until the last one has ended.
double secondsOf(std::vector<WorkerProcess>& processes) {
    for (WorkerProcess& process : processes)
        if (!process.isReady())
            throw DataError("A process did not start.");
    QElapsedTimer timer;
    timer.start();
    for (WorkerProcess& process : processes)
        process.begin();
    for (WorkerProcess& process : processes)
        if (!process.hasEndedWell())
            throw DataError("A process failed.");
    const double seconds = double(timer.nsecsElapsed()) / 1e9;
    for (const WorkerProcess& process : processes)
        if (const QStringList troubles = process.told().filter("trouble"); !troubles.isEmpty())
            throw DataError(troubles.join('\n'));
    return seconds;
}

/// The cashiers whose work the first, second, ... of so many processes does.
QStringList shareOf(int process, int processes) {
    QStringList numbers;
    for (int cashier = process; cashier < cashiers; cashier += processes)
        numbers << QString::number(cashier);
    return numbers;
}

/// A hospital with the cashiers' patients, and what the cashiers send in it.
class Bench {
public:
    Bench(Engine engine, int rounds) : m_home(engine), m_rounds(rounds) {
        layHospital();
        m_rehearsal.emplace(m_home.folder(), "rehearsal");
        record();
    }

    int saves() const { return cashiers * m_rounds * int(savesOfARound.size()); }
    qsizetype statementsOfARound() const { return m_statements / (cashiers * m_rounds); }

    /// Saves per second of the program.
    double runProgram(int processes, bool shared) {
        const HomeCopy copy(m_home.folder(), "program");
        std::deque<SecondHome> homes;
        std::vector<WorkerProcess> running;
        for (int i = 0; i < processes; ++i) {
            const QString rehearsal = homes.emplace_back(m_rehearsal->folder()).folder();
            const QString home = homes.emplace_back(copy.folder()).folder();
            running.emplace_back(QStringList{"--worker", rehearsal, home, shareOf(i, processes).join(','),
                                             QString::number(m_rounds), shared ? "shared" : "own"});
        }
        const double seconds = secondsOf(running);
        requireAgreement(copy);
        return saves() / seconds;
    }

    /// The same of the bare engine.
    double runBare(int processes) {
        const HomeCopy copy(m_home.folder(), "bare");
        std::vector<WorkerProcess> running;
        for (int i = 0; i < processes; ++i) {
            QStringList arguments = {"--bare", copy.folder()};
            for (const QString& cashier : shareOf(i, processes))
                arguments << statementsFile(cashier);
            running.emplace_back(arguments);
        }
        const double seconds = secondsOf(running);
        requireAgreement(copy);
        return saves() / seconds;
    }

private:
    QString statementsFile(const QString& cashier) const { return m_folder.filePath("statements" + cashier); }

    void layHospital() {
        Workstation ws(m_home.folder());
        ws.layHospital();
        Connection billing = ws.billing();
        for (int i = 0; i < cashiers; ++i) {
            makePatient(billing,
                        {.pno = patientOfWorkers(i), .surname = "PROOF", .firstname = QString("NO %1").arg(i)});
            makeVisit(billing, {.consultID = visitOfWorkers(i), .pno = patientOfWorkers(i)});
            makeItem(billing, {.consultID = visitOfWorkers(i), .pno = patientOfWorkers(i), .price = 1000000});
        }
        // The doctor has seen the patients, who may come again.
        billing.run("update hRecords set attendedto=1");
    }

    /// Has the cashiers do their work one after the other.
    void record() {
        const HomeCopy copy(m_home.folder(), "recorded");
        for (int i = 0; i < cashiers; ++i) {
            std::vector<WorkerProcess> running;
            const QString cashier = QString::number(i);
            running.emplace_back(QStringList{"--worker", m_rehearsal->folder(), copy.folder(), cashier,
                                             QString::number(m_rounds), "own", statementsFile(cashier)});
            secondsOf(running);
        }
        Workstation before(m_home.folder());
        RowNumbers numbers(before.billing());
        for (int i = 0; i < cashiers; ++i) {
            QStringList statements = stored(statementsFile(QString::number(i)));
            for (QString& statement : statements)
                statement = numbers.numbered(statement);
            m_statements += statements.size();
            store(statementsFile(QString::number(i)), statements);
        }
    }

    /// Whether every save is there and the books agree; a rate of anything else would be worth nothing.
    void requireAgreement(const HomeCopy& copy) const {
        Workstation ws(copy.folder());
        const CheckReport report = checkDatabases(ws.program);
        const int receipts = ws.tableCount("Payments");
        if (report.findings.isEmpty() && receipts == cashiers * m_rounds * 4)
            return;
        throw DataError(QString("%1 receipts\n%2").arg(receipts).arg(report.findings.join('\n')));
    }

    QTemporaryDir m_folder;
    TestHome m_home;
    std::optional<HomeCopy> m_rehearsal;
    int m_rounds;
    qsizetype m_statements = 0;
};

QString durability(Engine engine) {
    if (engine == Engine::Sqlite)
        return "synchronous=full, WAL";
    const TestHome home(engine);
    const HomeServer server(home.folder());
    PgSession session(server.entry, server.login, "postgres");
    QStringList settings;
    for (const char* name : {"fsync", "synchronous_commit", "full_page_writes"})
        settings << QString("%1=%2").arg(name, session.ask(QByteArray("show ") + name).value(0));
    return settings.join(", ");
}

void benchThroughput(Engine engine, int rounds) {
    Bench bench(engine, rounds);
    std::printf("%s, both sides %s: %d saves a run, %lld statements to 6 saves, medians of %d runs\n",
                engineName(engine).c_str(), qPrintable(durability(engine)), bench.saves(),
                qlonglong(bench.statementsOfARound()), runsOfEach);
    std::printf("  %-12s %10s %10s %12s %22s\n", "workstations", "program/s", "bare/s", "bare/program",
                "same patients/s");
    for (const int processes : processCounts) {
        QVector<double> program, bare, ratio, shared;
        for (int run = 0; run < runsOfEach; ++run) {
            program << bench.runProgram(processes, false);
            bare << bench.runBare(processes);
            ratio << bare.last() / program.last();
            shared << bench.runProgram(processes, true);
        }
        std::printf("  %-12d %10.1f %10.1f %12.2f %22.1f\n", processes, median(program), median(bare), median(ratio),
                    median(shared));
        std::fflush(stdout);
    }
}

/// Arguments: the home of the rehearsal, those of runWorker, and perhaps a file for what is sent.
int work(const QStringList& arguments) {
    rehearse(arguments.value(0), arguments.value(2).section(',', 0, 0));
    const QString file = arguments.value(5);
    return runWorker(arguments.mid(1, 4), [&](Program& program, const std::function<void()>& work) {
        if (file.isEmpty()) {
            work();
            return;
        }
        Recorder recorder(program, program.openBilling().engine());
        work();
        QStringList statements;
        for (const Stretch& stretch : recorder.take())
            statements << stretch.statements;
        store(file, statements);
    });
}

/// Arguments: home folder, files of statements.
int workBare(const QStringList& arguments) {
    const std::unique_ptr<BareEngine> bare = BareEngine::open(arguments.value(0), morning, true);
    QList<BareStatement> statements;
    for (const QString& file : arguments.mid(1))
        statements << bare->translated(stored(file));
    QTextStream(stdout) << "ready" << Qt::endl;
    QTextStream(stdin).readLine();
    for (const BareStatement& statement : statements)
        bare->run(statement);
    return 0;
}

} // namespace

} // namespace orvane

int main(int argc, char** argv) {
    using namespace orvane;
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    try {
        if (arguments.value(1) == QLatin1String("--worker"))
            return work(arguments.mid(2));
        if (arguments.value(1) == QLatin1String("--bare"))
            return workBare(arguments.mid(2));
        const int rounds = arguments.size() > 1 ? arguments.at(1).toInt() : 1;
        for (const Engine engine : testEngines())
            benchThroughput(engine, rounds);
    } catch (const DataError& fault) {
        QTextStream(stderr) << fault.description() << '\n' << fault.statement() << Qt::endl;
        return 1;
    }
    return 0;
}
