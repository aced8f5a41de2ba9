#include "Worker.h"

#include "demo/Check.h"
#include "support/Workstation.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <algorithm>
#include <gtest/gtest.h>

namespace orvane {

namespace {

constexpr int workers = 4;

/// ORVANE_PROOF_COUNT asks for a longer run.
int roundsOfAWorker() {
    return std::max(1, qEnvironmentVariable("ORVANE_PROOF_COUNT", QStringLiteral("4")).toInt());
}

class RunningWorker {
public:
    RunningWorker(const TestHome& first, const QStringList& arguments)
        : m_home(std::make_unique<SecondHome>(first)), m_process(std::make_unique<QProcess>()) {
        m_process->setStandardOutputFile(file());
        m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process->start(QCoreApplication::applicationFilePath(),
                         QStringList{"--worker", m_home->folder()} + arguments);
    }
    bool isReady() {
        while (told().isEmpty())
            if (m_process->waitForFinished(10) || m_process->state() == QProcess::NotRunning)
                return false;
        return true;
    }
    void begin() {
        m_process->write("begin\n");
        m_process->waitForBytesWritten();
    }
    bool hasEndedWell() {
        return m_process->waitForFinished(600000) && m_process->exitStatus() == QProcess::NormalExit &&
               m_process->exitCode() == 0;
    }
    QStringList told() const {
        QFile lines(file());
        return lines.open(QIODevice::ReadOnly) ? QString::fromUtf8(lines.readAll()).split('\n', Qt::SkipEmptyParts)
                                               : QStringList();
    }

private:
    QString file() const { return m_home->folder() + "/told"; }
    std::unique_ptr<SecondHome> m_home;
    std::unique_ptr<QProcess> m_process;
};

/// Several workstations, each a process of its own, at work on the same patients and bills.
class Proof : public WorkstationTest {
protected:
    void prepare() override {
        Connection connection = ws.billing();
        for (const QString& pno : sharedPatients)
            makePatient(connection, {.pno = pno, .surname = "PROOF", .firstname = QString(pno).replace('/', ' ')});
        for (int i = 0; i < sharedVisits.size(); ++i) {
            makeVisit(connection, {.consultID = sharedVisits.at(i), .pno = sharedPatients.at(i)});
            makeItem(connection, {.consultID = sharedVisits.at(i), .pno = sharedPatients.at(i), .price = 1000000});
        }
    }

    /// Has the workers do their rounds at the same time and gathers what they told.
    void work(int rounds, const QString& gate) {
        std::vector<RunningWorker> running;
        for (int number = 0; number < workers; ++number)
            running.emplace_back(home, QStringList{QString::number(number), QString::number(rounds), gate});
        for (RunningWorker& worker : running)
            ASSERT_TRUE(worker.isReady());
        for (RunningWorker& worker : running)
            worker.begin();
        for (RunningWorker& worker : running) {
            ASSERT_TRUE(worker.hasEndedWell());
            for (const QString& line : worker.told().mid(1))
                (line.startsWith("trouble") ? troubles : saves) << line;
        }
    }

    QStringList toldOf(const QString& kind) const {
        return saves.filter(QRegularExpression('^' + kind + '\t')).replaceInStrings(kind + '\t', QString());
    }

    /// The rows of a query as the workers tell them.
    QStringList stored(const QString& tsql) {
        QStringList lines;
        for (Recordset row = ws.billing().run(tsql); !row.eof(); row.moveNext()) {
            QStringList cells;
            for (int column = 0; column < row.columns().size(); ++column)
                cells << (row.value(column).typeId() == QMetaType::Double
                              ? QString::number(row.value(column).toDouble(), 'f', 2)
                              : row.text(column));
            lines << cells.join('\t');
        }
        return lines;
    }

    QStringList saves;
    QStringList troubles;
};

ORVANE_ON_EACH_ENGINE(Proof);

QStringList sorted(QStringList lines) {
    lines.sort();
    return lines;
}

TEST_P(Proof, EverySaveIsThereOnceAndTheBooksAgree) {
    const int rounds = roundsOfAWorker();
    ASSERT_NO_FATAL_FAILURE(work(rounds, "gate"));
    EXPECT_EQ(troubles, QStringList());
    EXPECT_EQ(toldOf("visit").size(), workers * rounds * visitsARound);
    EXPECT_EQ(toldOf("bill").size(), workers * rounds * billsARound);
    EXPECT_EQ(toldOf("receipt").size(), workers * rounds * receiptsARound);

    // What was told is what is stored: no save is missing, none is there twice or under another's number.
    const QStringList visits =
        stored("select consultID, PNo from hRecords where consultID not in ('001OFL0000001', '001OFL0000002')");
    EXPECT_EQ(sorted(toldOf("visit")), sorted(visits));
    EXPECT_EQ(sorted(toldOf("receipt")), sorted(stored("select ReceiptNo, billNo, AmountPaid from Payments")));
    QStringList bills = toldOf("bill");
    bills.removeDuplicates();
    EXPECT_EQ(sorted(bills), sorted(stored("select billNo from Billing")));
    EXPECT_EQ(stored("select a.SNo, a.SubTotal from BillAccum a order by a.SNo"),
              stored("select d.SNo, d.SubTotal from BillingDetails d order by d.SNo"))
        << "each item is on its bill once";
    EXPECT_EQ(ws.tableCount("BillAccum"), sharedVisits.size() + 2 * workers * rounds);

    // Each patient owes what was billed and not paid.
    QStringList owed;
    for (const QString& pno : sharedPatients) {
        const double billed = ws.scalar(QString("select sum(SubTotal) as S from BillingDetails where billNo in "
                                                "(select consultID from hRecords where PNo='%1')")
                                            .arg(pno))
                                  .toDouble();
        const double paid =
            ws.scalar(QString("select sum(AmountPaid) as S from Payments where PNo='%1'").arg(pno)).toDouble();
        owed << pno + '\t' + QString::number(paid - billed, 'f', 2);
    }
    EXPECT_EQ(owed, stored("select PNo, DebtBF from hPatients order by PNo"));
    EXPECT_EQ(checkDatabases(ws.program).findings, QStringList());
    RecordProperty("saves", int(saves.size()));
}

/// The same work without the gate goes wrong, so the proof above can fail. The embedded engine always has one writer.
TEST_P(Proof, WithoutTheGateItFails) {
    if (GetParam() == Engine::Sqlite)
        GTEST_SKIP() << "one writer at a time";
    ASSERT_NO_FATAL_FAILURE(work(roundsOfAWorker(), "no-gate"));
    const QStringList findings = checkDatabases(ws.program).findings;
    EXPECT_GT(findings.size() + troubles.size(), 0);
    RecordProperty("saves", int(saves.size()));
    RecordProperty("findings", int(findings.size()));
    RecordProperty("troubles", int(troubles.size()));
}

} // namespace

} // namespace orvane
