#include "demo/Demo.h"
#include "tool/Command.h"

#include <QFileInfo>

namespace orvane {

namespace {

constexpr int daysOfLargeHospital = 730;

/// As many days as make two months that were invoiced before the present one.
int daysOfTwoMonths(QDate until) {
    const QDate month = until.addMonths(-2);
    return int(QDate(month.year(), month.month(), 1).daysTo(until)) + 1;
}

DemoOptions demoOptions(const Call& call) {
    DemoOptions options;
    options.home = QFileInfo(call.required("home")).absoluteFilePath();
    options.patients = call.number("patients", 1, 99999);
    options.bills = call.number("bills", 0, 1000000);
    if (options.bills > 0)
        options.patients = qMax(100, options.bills * 5 / 2); // as many as can come on one day at least
    options.seed = quint64(call.number("seed", 0, 2147483647));
    options.until = QDate::currentDate();
    if (call.parser.isSet("until"))
        options.until = QDate::fromString(call.parser.value("until"), "yyyy-MM-dd");
    if (!options.until.isValid())
        throw UsageError{"--until is a date of the form yyyy-mm-dd."};
    if (call.parser.isSet("days"))
        options.days = call.number("days", 1, 3650);
    else
        options.days = options.bills > 0 ? daysOfLargeHospital : daysOfTwoMonths(options.until);
    return options;
}

} // namespace

int demoCommand(Call& call) {
    const DemoOptions options = demoOptions(call);
    writeHomeFiles(options.home, call.homeOptions());
    {
        Workplace workplace(options.home);
        if (!hasDatabase(workplace.program()))
            createDatabases(workplace.program());
    }
    makeDemo(options, [&call](const QString& sentence) { call.out << sentence << Qt::endl; });
    writeSysDoc(options.home, demoUser);
    return Done;
}

} // namespace orvane
