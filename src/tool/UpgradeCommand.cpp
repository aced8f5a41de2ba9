#include "data/engine/ServerList.h"
#include "data/rows/Schema.h"
#include "data/rows/SchemaSteps.h"
#include "data/rows/SharedTables.h"
#include "proof/Check.h"
#include "reports/StockTemplates.h"
#include "tool/Command.h"

namespace orvane {

namespace {

/// One database of the home folder.
struct Part {
    QString schema; ///< "billing", "accounting" or "audit"
    QString connectionString;
    int number = 0; ///< of the schema that it has
};

/// The billing database comes last: while its number is the old one, no program of the new one works on the hospital.
QList<Part> partsOf(Program& program) {
    const Session& session = program.session;
    QList<Part> parts = {{"accounting", session.gAcctConnStr}};
    if (program.data().engineOf(session.gConnStr) == Engine::Sqlite)
        parts += Part{"audit", withDatabase(session.gConnStr, "Audit")};
    parts += Part{"billing", session.gConnStr};
    for (Part& part : parts) {
        Connection connection = program.data().open(part.connectionString);
        part.number = schemaVersion(connection);
        if (part.number > kSchemaVersion)
            throw DataError(QStringLiteral("The %1 database has the schema %2, of a newer program than this one.")
                                .arg(part.schema)
                                .arg(part.number));
    }
    return parts;
}

CheckReport checkOf(Program& program) {
    Connection billing = program.openBilling();
    Connection accounting = program.openAccounting();
    return checkDatabases(billing, accounting);
}

/// Raises DataError where the rows may not be readable, so that nothing is built on them.
CheckReport checkBefore(Call& call, Program& program) {
    const CheckReport report = checkOf(program);
    for (const QString& finding : report.findings)
        call.out << "before the upgrade: " << finding << '\n';
    if (!report.findings.filter("integrity of").isEmpty())
        throw DataError("A database is damaged; nothing was changed.");
    return report;
}

void copy(Call& call, const QString& home, const QList<Part>& parts) {
    // A server copies a database only while nobody is connected to it, this program included.
    Workplace workplace(home);
    workplace.program().data().acceptAnySchema();
    for (const Part& part : parts) {
        const QString suffix = QStringLiteral("_schema%1").arg(part.number);
        try {
            const QString name = workplace.program().data().copyDatabase(part.connectionString, suffix);
            call.out << "copy of the " << part.schema << " database: " << name << '\n';
        } catch (const DataError& error) {
            throw DataError(
                QStringLiteral("No copy of the %1 database could be made, and nothing was changed: %2\n"
                               "End the program on every workstation. Where the login may make no copy, make "
                               "a backup by the server's own tools and add --backed-up.")
                    .arg(part.schema, error.description()));
        }
    }
}

void upgrade(Call& call, Program& program, const QList<Part>& parts) {
    for (const Part& part : parts) {
        Connection connection = program.data().open(part.connectionString);
        upgradeSchema(connection, part.schema);
        call.out << "the " << part.schema << " database: schema " << part.number << " to " << kSchemaVersion << '\n';
        for (const SchemaStep& step : schemaSteps(part.schema, part.number))
            call.out << "  " << step.what << '\n';
    }
    Connection billing = program.openBilling();
    Connection accounting = program.openAccounting();
    for (const QString& difference : sharedTableDifferences(billing, accounting))
        call.out << "taken over from the accounting database: " << difference << '\n';
    copySharedTables(billing, accounting);
}

} // namespace

int upgradeCommand(Call& call) {
    const QString home = call.required("home");
    for (const QString& name : renewStockTemplates(home))
        call.out << "report template renewed: " << name << '\n';
    CheckReport before;
    QList<Part> old;
    {
        Workplace workplace(home);
        workplace.program().data().acceptAnySchema();
        for (const Part& part : partsOf(workplace.program()))
            if (part.number < kSchemaVersion)
                old += part;
        if (old.isEmpty()) {
            call.out << "The databases have the schema " << kSchemaVersion << " already.\n";
            return Done;
        }
        before = checkBefore(call, workplace.program());
    }
    Workplace workplace(home);
    Program& program = workplace.program();
    if (!program.lockInstance())
        throw DataError("The program is running on this home folder: end it first. Nothing was changed.");
    if (!call.parser.isSet("backed-up"))
        copy(call, home, old);
    program.data().acceptAnySchema();
    upgrade(call, program, old);
    const CheckReport after = checkOf(program);
    int fresh = 0;
    for (const QString& finding : after.findings) {
        call.out << finding << '\n';
        fresh += before.findings.contains(finding) ? 0 : 1;
    }
    for (const QString& line : after.notices + after.remarks)
        call.out << line << '\n';
    call.out << (fresh == 0 ? "The databases are upgraded.\n" : "The upgrade left findings: see the copies.\n");
    return fresh == 0 ? Done : Refused;
}

} // namespace orvane
