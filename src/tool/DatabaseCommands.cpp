// What makes databases and tells of them: create, schema, check.
#include "books/Period.h"
#include "data/engine/Rights.h"
#include "data/rows/Schema.h"
#include "data/rows/SharedTables.h"
#include "proof/Check.h"
#include "tool/Command.h"

namespace orvane {

int createCommand(Call& call) {
    const HomeOptions options = call.homeOptions();
    const QString home = call.required("home");
    writeHomeFiles(home, options);
    Workplace workplace(home);
    createDatabases(workplace.program());
    Connection billing = workplace.program().openBilling();
    Connection accounting = workplace.program().openAccounting();
    keepPeriodsOpen(accounting, QDate::currentDate());
    copySharedTables(billing, accounting);
    call.out << "The databases of " << home << " are made.\n";
    return Done;
}

int schemaCommand(Call& call) {
    const QString database = call.choice("database", {"billing", "accounting", "audit"});
    const QString engine = call.choice("engine", engineChoices);
    const Engine of = engine == QLatin1String("sqlite")       ? Engine::Sqlite
                      : engine == QLatin1String("postgresql") ? Engine::Postgresql
                                                              : Engine::SqlServer;
    call.out << schemaScript(of, database) << rightsScript(of, database, call.required("login"));
    return Done;
}

int checkCommand(Call& call) {
    Workplace workplace(call.required("home"));
    Connection billing = workplace.program().openBilling();
    Connection accounting = workplace.program().openAccounting();
    const CheckReport report = checkDatabases(billing, accounting);
    for (const QString& line : report.findings)
        call.out << line << '\n';
    for (const QString& notice : report.notices)
        call.out << "notice: " << notice << '\n';
    for (const QString& remark : report.remarks)
        call.out << remark << '\n';
    if (report.findings.isEmpty())
        call.out << "No findings.\n";
    return report.findings.isEmpty() ? Done : Refused;
}

} // namespace orvane
