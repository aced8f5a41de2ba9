// The month's run and its reversal, the same batch in a small and in a large hospital, against the same statements
// replayed through the bare engine on another copy of each.
#include "bench/BareEngine.h"
#include "bench/Benches.h"
#include "bench/Site.h"
#include "books/Batch.h"
#include "books/BatchReversal.h"
#include "books/MonthRun.h"
#include "data/rows/Transaction.h"
#include "session/Main.h"

#include <cstdio>

namespace orvane {

namespace {

constexpr int linesOfABill = 5;
constexpr qlonglong firstClient = 5000; ///< codes beyond those of the hospital

struct Batch {
    const char* name;
    int clients, billsOfEach;
    QDate day;
};

const Batch batches[] = {{"20,000 bills of 100 clients", 100, 200, QDate(2049, 1, 15)},
                         {"5,000 bills of a client", 1, 5000, QDate(2049, 2, 15)}};

QString batchNoOf(const Batch& batch) {
    return batch.day.toString("yyyy/MM");
}

void layBill(Connection& billing, const Batch& batch, const QString& client, int serial) {
    const QString bill = QStringLiteral("%1%2").arg(batch.day.toString("'B'yyMM")).arg(serial, 8, 10, QLatin1Char('0'));
    billing.execute(Sql("insert into hRecords (consultID, PNo, recDate, BillDate, coyName, clientCat) values ('")
                    << bill << "', 'P', '" << batch.day << "', '" << batch.day << "', '" << client << "', 'MTHLY')");
    billing.execute(Sql("insert into Billing (billNo, clientID, Amountbilled) values ('")
                    << bill << "', '" << client << "', 0)");
    for (int line = 0; line < linesOfABill; ++line)
        billing.execute(Sql("insert into BillingDetails (billNo, drgName, SubTotal) values ('")
                        << bill << "', 'ITEM', " << 1000.25 + line << ")");
}

void layBatches(const QString& home) {
    QuietUi ui;
    Program program(home, ui);
    if (!prepareServer(program))
        throw DataError("The copied hospital cannot be opened.");
    program.data().setDisposable();
    Connection billing = program.openBilling();
    Transaction transaction(billing);
    for (int i = 0; i < 100; ++i) {
        const QString code = paddedClientCode(firstClient + i);
        billing.execute(Sql("insert into hRetainership (retainID, retainCode, retainName) values ('")
                        << code << "', '" << code << "', 'CLIENT')");
    }
    for (const Batch& batch : batches)
        for (int bill = 0; bill < batch.clients * batch.billsOfEach; ++bill)
            layBill(billing, batch, paddedClientCode(firstClient + bill / batch.billsOfEach), bill);
    transaction.commit();
}

/// A hospital with the batches, twice: one for the program, one for the bare engine behind it.
class Hospital {
public:
    Hospital(const QString& home, const QString& name)
        : m_laid(home, name + "-laid"), m_site(laid(), name, Moment::NextMorning),
          m_bareCopy(m_laid.folder(), name + "-bare"), m_bare(BareEngine::open(m_bareCopy.folder(), m_site.now)) {}

    Engine engine() const { return m_laid.engine(); }

    /// Milliseconds of the program and of the bare engine.
    std::pair<double, double> run(const Batch& batch) {
        return measure([&](Books& books) {
            orvane::MonthRun run{batchNoOf(batch), monthName(batch.day.month()), "2049", batch.day, {}};
            for (int i = 0; i < batch.clients; ++i)
                run.clients.append(firstClient + i);
            return processMonth(
                books, run, [](const RunStage&) {});
        });
    }
    std::pair<double, double> reverse(const Batch& batch) {
        return measure([&](Books& books) -> Given<int> {
            for (int i = 0; i < batch.clients; ++i)
                reverseBatch(books, batchNoOf(batch), firstClient + i);
            return batch.clients;
        });
    }

private:
    QString laid() {
        layBatches(m_laid.folder());
        return m_laid.folder();
    }
    std::pair<double, double> measure(const std::function<Given<int>(Books&)>& step) {
        m_site.recorder.take();
        m_site.recorder.measure("month", [&] { m_site.program.desk().save<int>("BENCH", step); });
        const QList<Stretch> stretches = m_site.recorder.take();
        double program = 0, bare = 0;
        for (const Stretch& stretch : stretches) {
            const QList<BareStatement> statements = m_bare->translated(stretch.statements);
            const double taken = milliseconds(engine(), [&] {
                for (const BareStatement& statement : statements)
                    m_bare->run(statement);
            });
            if (stretch.name.isEmpty())
                continue;
            program = stretch.milliseconds;
            bare = taken;
        }
        return {program, bare};
    }

    HomeCopy m_laid;
    Site m_site;
    HomeCopy m_bareCopy;
    std::unique_ptr<BareEngine> m_bare;
};

struct Cost {
    QVector<double> program, overBare;
    void take(std::pair<double, double> measured) {
        program << measured.first;
        overBare << measured.first / measured.second;
    }
};

void print(const char* what, const Batch& batch, const Cost& small, const Cost& large) {
    const double taken = median(large.program);
    std::printf("  %-9s %-28s %9.0f %9.0f %12.2f %13.2f %13.0f\n", what, batch.name, median(small.program), taken,
                taken / median(small.program), median(large.overBare),
                batch.clients * batch.billsOfEach / taken * 1000);
}

} // namespace

void benchMonth(const QString& smallHome, const QString& largeHome, int rounds) {
    Hospital small(smallHome, "small");
    Hospital large(largeHome, "large");
    std::printf("%s, %d rounds in turn, medians. Commits do not wait for the disk on either side.\n",
                large.engine() == Engine::Sqlite ? "SQLite, processor time" : "PostgreSQL, elapsed time", rounds);
    std::printf("  %-9s %-28s %9s %9s %12s %13s %13s\n", "", "", "small ms", "large ms", "large/small", "program/bare",
                "bills/s");
    for (const Batch& batch : batches) {
        Cost ofSmall[2], ofLarge[2];
        for (int i = 0; i < rounds; ++i) {
            ofSmall[0].take(small.run(batch));
            ofLarge[0].take(large.run(batch));
            ofSmall[1].take(small.reverse(batch));
            ofLarge[1].take(large.reverse(batch));
        }
        print("run", batch, ofSmall[0], ofLarge[0]);
        print("reversal", batch, ofSmall[1], ofLarge[1]);
    }
}

} // namespace orvane
