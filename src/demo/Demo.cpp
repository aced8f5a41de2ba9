#include "demo/Demo.h"

#include "data/rows/Schema.h"
#include "data/rows/SharedTables.h"
#include "demo/BulkHospital.h"
#include "demo/DemoMonth.h"
#include "demo/DemoParts.h"
#include "demo/DemoPharmacy.h"
#include "play/QuietUi.h"
#include "screens/Screens.h"
#include "session/Main.h"

#include <QDir>
#include <optional>

namespace orvane {

namespace {

void refuseFilledHospital(Connection& billing) {
    const Recordset hospitals(billing, Sql("select hospID from HospList"));
    const Recordset patients(billing, Sql("select top 1 PNo from hPatients"));
    if (!hospitals.eof() || !patients.eof())
        throw DataError("The databases are not empty; nothing was changed.");
}

/// What the hospital had before its first visit, entered by other programs and by its administrators.
void makeMasterData(DemoHospital& hospital) {
    QuietUi ui;
    Program program(hospital.options.home, ui);
    if (!prepareServer(program))
        throw DataError(ui.takeBoxes().join(QLatin1Char('\n')));
    program.data().setDisposable();
    program.data().setServerClock(hospital.options.until.addDays(-hospital.options.days).startOfDay());
    Connection billing = program.openBilling();
    refuseFilledHospital(billing);
    hospital.clinics = demoFacts("clinics");
    hospital.diagnoses = demoFacts("diagnoses");
    makeSettings(billing, hospital);
    makeUsers(billing);
    Connection accounting = program.openAccounting();
    makeAccounts(accounting, hospital);
    copySharedTables(billing, accounting);
    makeClients(billing, hospital);
    makeAccountLists(billing, hospital);
    makeJournal(hospital);
    makePrices(billing, hospital);
    makeStore(billing, hospital);
    makeEmployees(billing, hospital);
    if (hospital.options.bills == 0)
        makePatients(billing, hospital);
}

/// What a server's own maintenance would have done by now. The embedded engine keeps no statistics, in a
/// hospital as here.
void settleServer(Connection& billing) {
    if (billing.engine() == Engine::Postgresql)
        billing.run("vacuum analyze");
}

void makeHistoryInBulk(DemoHospital& hospital, const std::function<void(const QString&)>& progress) {
    QuietUi ui;
    Program program(hospital.options.home, ui);
    prepareServer(program);
    program.data().setDisposable();
    Connection billing = program.openBilling();
    std::optional<Connection> auditFile;
    if (billing.engine() == Engine::Sqlite)
        auditFile.emplace(billing.beside("Audit"));
    dropIndexes(billing, "billing");
    makeBulkHospital(hospital, billing, auditFile ? *auditFile : billing, progress);
    createIndexes(billing, "billing");
    settleServer(billing);
    progress("The indexes are in.");
}

/// The months before the last day's, each invoiced on the first day of the next one.
void closePastMonths(const DemoHospital& hospital, const std::function<void(const QString&)>& progress) {
    const QDate until = hospital.options.until;
    QDate month = until.addDays(1 - hospital.options.days);
    month.setDate(month.year(), month.month(), 1);
    QuietUi ui;
    Program program(hospital.options.home, ui);
    program.data().setDisposable();
    registerScreens(program);
    if (!Main(program, demoUser))
        throw DataError(ui.takeBoxes().join(QLatin1Char('\n')));
    for (; month.addMonths(1) <= until; month = month.addMonths(1)) {
        program.data().setServerClock(QDateTime(month.addMonths(1), QTime(18, 0)));
        closeMonth(program, ui, month);
        postMonth(program, ui, month);
        progress(QStringLiteral("The bills of %1 are invoiced and posted.").arg(month.toString("yyyy-MM")));
    }
    program.form("MdiTolmek").unload();
}

void makeHistoryOnScreens(DemoHospital& hospital, const std::function<void(const QString&)>& progress) {
    const int days = hospital.options.days;
    makeVisits(hospital, [&](int day) {
        if (day % 10 == 0 || day == days)
            progress(QStringLiteral("%1 of %2 days are in.").arg(day).arg(days));
    });
}

} // namespace

void makeDemo(const DemoOptions& options, const std::function<void(const QString&)>& progress) {
    DemoHospital hospital(options);
    makeMasterData(hospital);
    if (options.bills > 0) {
        makeHistoryInBulk(hospital, progress);
        closePastMonths(hospital, progress);
    } else {
        progress(QStringLiteral("%1 patients and %2 clients are in.")
                     .arg(hospital.patients.size())
                     .arg(hospital.clients.size()));
        makeHistoryOnScreens(hospital, progress);
    }
}

} // namespace orvane
