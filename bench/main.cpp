#include "bench/Benches.h"

#include "data/DataError.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

namespace {

using namespace orvane;

struct Bench {
    const char* name;
    void (*run)(const QString& smallHome, const QString& largeHome, int rounds);
    int rounds;
};

constexpr Bench benches[] = {{"actions", benchActions, 30},
                             {"growth", benchGrowth, 15},
                             {"month", benchMonth, 3},
                             {"ledger", benchLedger, 5},
                             {"catalogue", benchCatalogue, 5}};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription("Compares a small and a large hospital of one engine, on copies of both.");
    parser.addHelpOption();
    parser.addPositionalArgument("bench", "actions, growth, month, ledger or catalogue");
    parser.addOptions({{"small", "The home folder of the small hospital.", "folder"},
                       {"large", "The home folder of the large hospital.", "folder"},
                       {"rounds", "How often each thing is measured.", "number"}});
    parser.process(application);
    for (const Bench& bench : benches) {
        if (parser.positionalArguments() != QStringList{bench.name} || !parser.isSet("small") || !parser.isSet("large"))
            continue;
        try {
            const int rounds = parser.isSet("rounds") ? parser.value("rounds").toInt() : bench.rounds;
            bench.run(parser.value("small"), parser.value("large"), rounds);
            return 0;
        } catch (const DataError& fault) {
            QTextStream(stderr) << fault.description() << '\n' << fault.statement() << Qt::endl;
            return 1;
        }
    }
    parser.showHelp(1);
}
