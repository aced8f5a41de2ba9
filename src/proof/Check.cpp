#include "proof/Check.h"

#include "data/engine/SchemaVersion.h"
#include "data/rows/Schema.h"
#include "data/rows/SharedTables.h"
#include "proof/ActionCheck.h"
#include "proof/Checker.h"
#include "proof/IntegrityCheck.h"
#include "proof/PostingCheck.h"

namespace orvane {

namespace {

void checkIntegrity(Connection& billing, Connection& accounting, CheckReport& report) {
    checkIntegrity(billing, "billing database", report);
    checkIntegrity(accounting, "accounting database", report);
    if (billing.engine() != Engine::Sqlite)
        return; // the audit trail lies in the billing database
    try {
        Connection audit = billing.beside("Audit");
        checkIntegrity(audit, "audit database", report);
    } catch (const DataError&) {
        // told with the saves that it should name
    }
}

} // namespace

CheckReport checkDatabases(Connection& billing, Connection& accounting) {
    CheckReport report;
    checkIntegrity(billing, accounting, report);
    // The rows of a damaged database cannot be read, or say nothing.
    if (!report.findings.isEmpty())
        return report;
    Checker ofBilling(billing, "billing");
    for (const auto& checks : {numberChecks(), accountChecks(), billChecks(), receiptChecks(), monthChecks(),
                               voucherChecks(), stockChecks()})
        ofBilling.run(checks, report.findings, report.remarks);
    ofBilling.runNumbers(report.findings);
    ofBilling.runDemanded(report.findings);
    for (const auto& notices : {noticeChecks(), monthNotices(), stockNotices()})
        ofBilling.run(notices, report.notices, report.remarks);
    Checker ofAccounting(accounting, "accounting");
    ofAccounting.run(ledgerChecks(), report.findings, report.remarks);
    ofAccounting.run(ledgerNotices(), report.notices, report.remarks);
    ofAccounting.runNumbers(report.findings);
    if (schemaVersion(billing) == kSchemaVersion) {
        checkPostings(billing, accounting, report);
        checkActions(billing, accounting, report);
    }
    for (const QString& difference : sharedTableDifferences(billing, accounting))
        report.findings.append("repeated table: " + difference);
    return report;
}

QStringList checkNames() {
    QStringList names =
        Checker::amountCheckNames() + postingCheckNames() + actionCheckNames() + QStringList{"repeated table"};
    for (const auto& checks :
         {numberChecks(), accountChecks(), billChecks(), receiptChecks(), monthChecks(), voucherChecks(), stockChecks(),
          noticeChecks(), monthNotices(), stockNotices(), ledgerChecks(), ledgerNotices()})
        for (const Check& check : checks)
            names.append(QString::fromLatin1(check.name));
    return names;
}

} // namespace orvane
