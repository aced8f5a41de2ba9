// The actions of a visit on the program, in a small and in a large hospital, against the same statements replayed
// through the bare engine on another copy of the large one.
#include "bench/BareEngine.h"
#include "bench/Benches.h"
#include "bench/Road.h"

#include <QHash>
#include <cstdio>

namespace orvane {

namespace {

/// More than this is a scan, not a look-up.
constexpr qint64 manyRows = 1000;

/// One value a round, by action.
using Times = QHash<QString, QVector<double>>;

struct Figures {
    Times small, large, bare, overBare;
    QHash<QString, qsizetype> statements;
};

/// The bare engine on a copy of its own, which follows the workstation of another copy statement by statement.
class Follower {
public:
    Follower(const QString& home, const QDateTime& clock)
        : m_copy(home, "bare"), m_engine(BareEngine::open(m_copy.folder(), clock)) {}

    /// Milliseconds; the translation is not measured.
    double replay(const Stretch& stretch) {
        const QList<BareStatement> statements = m_engine->translated(stretch.statements);
        return milliseconds(m_copy.engine(), [&] {
            for (const BareStatement& statement : statements)
                m_engine->run(statement);
        });
    }

    BareEngine& engine() { return *m_engine; }

private:
    HomeCopy m_copy;
    std::unique_ptr<BareEngine> m_engine;
};

void keepTimes(const QList<Stretch>& stretches, Times& times) {
    for (const Stretch& stretch : stretches)
        if (!stretch.name.isEmpty())
            times[stretch.name] << stretch.milliseconds;
}

/// One visit in both hospitals, and once more through the bare engine.
void runRound(Road& small, Site& smallSite, Road& large, Site& largeSite, Follower& bare,
              const RoadPatient& smallPatient, const RoadPatient& largePatient, Figures& figures) {
    small.walk(smallPatient);
    keepTimes(smallSite.recorder.take(), figures.small);
    large.walk(largePatient);
    const QList<Stretch> stretches = largeSite.recorder.take();
    keepTimes(stretches, figures.large);
    for (const Stretch& stretch : stretches) {
        const double taken = bare.replay(stretch);
        if (stretch.name.isEmpty())
            continue;
        figures.bare[stretch.name] << taken;
        figures.overBare[stretch.name] << stretch.milliseconds / taken;
        figures.statements[stretch.name] = stretch.statements.size();
    }
}

void print(const Figures& figures) {
    std::printf("  %-17s %10s %9s %9s %12s %9s %13s\n", "action", "statements", "small ms", "large ms", "large/small",
                "bare ms", "program/bare");
    for (const QString& action : Road::actions) {
        const double small = median(figures.small.value(action));
        const double large = median(figures.large.value(action));
        std::printf("  %-17s %10lld %9.2f %9.2f %12.2f %9.2f %13.2f\n", qPrintable(action),
                    static_cast<long long>(figures.statements.value(action)), small, large, large / small,
                    median(figures.bare.value(action)), median(figures.overBare.value(action)));
    }
}

/// Every statement of one more visit that reads many rows to find few.
void printScans(BareEngine& engine, const QList<Stretch>& stretches) {
    int found = 0;
    for (const Stretch& stretch : stretches) {
        for (const BareStatement& statement : engine.translated(stretch.statements)) {
            const Examination examination = engine.examine(statement);
            if (examination.stepsOver <= manyRows)
                continue;
            ++found;
            std::printf("  %s steps over %lld rows for %lld: %s\n    %s\n",
                        stretch.name.isEmpty() ? "on the way, a statement" : qPrintable(stretch.name),
                        static_cast<long long>(examination.stepsOver), static_cast<long long>(examination.rows),
                        statement.text.constData(), qPrintable(examination.plan.join("\n    ")));
        }
    }
    std::printf("  statements that step over more than %lld rows: %d\n", static_cast<long long>(manyRows), found);
}

} // namespace

void benchActions(const QString& smallHome, const QString& largeHome, int rounds) {
    Site smallSite(smallHome, "small", Moment::NextMorning);
    Site largeSite(largeHome, "large", Moment::NextMorning);
    Follower bare(largeHome, largeSite.now);
    Road small(smallSite);
    Road large(largeSite);
    const QVector<RoadPatient> ofSmall = small.patients(rounds + 1);
    const QVector<RoadPatient> ofLarge = large.patients(rounds + 1);
    if (ofSmall.size() <= rounds || ofLarge.size() <= rounds)
        throw DataError(QStringLiteral("A hospital has too few patients for %1 rounds.").arg(rounds));
    const bool sqlite = largeSite.copy.engine() == Engine::Sqlite;
    std::printf(
        "%s, a visit of %d waiting items, %d visits in turn, medians.\nDurability on both sides: %s. Times: %s.\n",
        sqlite ? "SQLite" : "PostgreSQL", Road::itemsOfAVisit, rounds, sqlite ? "synchronous=off" : "the cluster's own",
        sqlite ? "processor" : "elapsed");
    Figures figures;
    for (int i = 0; i < rounds; ++i)
        runRound(small, smallSite, large, largeSite, bare, ofSmall.at(i), ofLarge.at(i), figures);
    print(figures);
    large.walk(ofLarge.at(rounds));
    printScans(bare.engine(), largeSite.recorder.take());
}

} // namespace orvane
