#include "demo/Demo.h"

#include "demo/DemoParts.h"
#include "demo/Home.h"
#include "demo/QuietUi.h"
#include "session/Main.h"

#include <QDir>

namespace orvane {

namespace {

void refuseFilledHospital(Connection& billing) {
    const Recordset hospitals(billing, Sql("select hospID from HospList"));
    const Recordset patients(billing, Sql("select top 1 PNo from hPatients"));
    if (!hospitals.eof() || !patients.eof())
        throw DataError(QStringLiteral("The databases are not empty; nothing was changed."));
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
    hospital.clinics = demoFacts(QStringLiteral("clinics"));
    hospital.diagnoses = demoFacts(QStringLiteral("diagnoses"));
    makeSettings(billing, hospital);
    makeUsers(billing);
    Connection accounting = program.openAccounting();
    makeAccounts(accounting, hospital);
    makeClients(billing, hospital);
    makePrices(billing, hospital);
    makeEmployees(billing, hospital);
    makePatients(billing, hospital);
}

} // namespace

void makeDemo(const DemoOptions& options, const std::function<void(const QString&)>& progress) {
    DemoHospital hospital(options);
    makeMasterData(hospital);
    progress(QStringLiteral("%1 patients and %2 clients are in.")
                 .arg(hospital.patients.size())
                 .arg(hospital.clients.size()));
    makeVisits(hospital, [&](int day) {
        if (day % 10 == 0 || day == options.days)
            progress(QStringLiteral("%1 of %2 days are in.").arg(day).arg(options.days));
    });
    writeSysDoc(options.home, QStringLiteral("amina.b"));
}

} // namespace orvane
