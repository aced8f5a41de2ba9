#include "data/engine/Rights.h"

#include "data/dialect/Catalog.h"

#include <QRegularExpression>
#include <algorithm>
#include <span>

namespace orvane {

namespace {

struct TableRights {
    const char* table;
    const char* does; ///< beside select
};

// Each line is what the screens, the start, the stored procedures or the checks do to the table itself. A table that
// only views read needs no right: a view reads with its owner's.
constexpr TableRights billingTables[] = {
    {"AccountMonth", ""},
    {"AppDefaults", ""},
    {"ApplicationUsers", "insert, update"},
    {"appSettings", ""},
    {"AuditTrail", "insert (userName, userAction, ActionDate, ActionTime, TranCode, Remarks, Src, saveToken)"},
    {"banks", "insert, update, delete"},
    {"BillAccum", "insert, update, delete"},
    {"billDiscounts", "insert"},
    {"Billing", "insert, update"},
    {"BillingDetails", "insert, update, delete"},
    {"BillingDetailsAdjust", "insert"},
    {"billingPrice", ""},
    {"BillsForClients", "insert, update, delete"},
    {"ChartOfAccounts", ""},
    {"clients", ""},
    {"clinicTypes", ""},
    {"drugMaster", "update"},
    {"DrugNHIS", "update"},
    {"drugs", "insert, update"},
    {"drugsxxx", ""},
    {"employees", ""},
    {"groupbank", "insert, update"},
    {"hApprvCode", "insert, update, delete"},
    {"hClientType", ""},
    {"hconsulting", "update (attendedto)"},
    {"hConsultingDetails", "insert"},
    {"hDebtors", "insert, update (entryDate, billNo, clientNo, Amount, Remarks, isPaid), delete"},
    {"hDebtReview", "insert"},
    {"hExpenseApprvFinal", "update"},
    {"hExpenseCat", "insert, update"},
    {"hExpenseDetailsApprvFinal", "update"},
    {"hExpenseItems", "insert, update"},
    {"hExpensePay", "insert"},
    {"hExpensePayDetails", "insert, update (isPost)"},
    {"hInjAndDressing", "insert"},
    {"hMedChartMonitor", "insert"},
    {"hInvestigate", "insert"},
    {"hInvestigateFindings", "insert"},
    {"HospList", ""},
    {"hOutletTypes", ""},
    {"hPatients", "update"},
    {"hPatientsPublic", "insert"},
    {"hRecords", "insert, update, delete"},
    {"hRecordsPublic", "insert"},
    {"hreferal", "update"},
    {"hRetainership", "insert, update, delete"},
    {"hretainershipExempt", "insert, delete"},
    {"hRetainershipScheme", "delete"},
    {"hRevenueType", "insert, update, delete"},
    {"hServiceNHIS", "update"},
    {"hservices", "update"},
    {"IDgen", "insert, update"},
    {"LabServiceNHIS", "update"},
    {"labservices", "update"},
    {"LagosBranches", ""},
    {"LoginTrail", "insert"},
    {"PaymentDetails", "insert, update (isPost, revType)"},
    {"Payments", "insert, update (isPost)"},
    {"PaymentTypeDetails", "update"},
    {"PaymentTypes", "insert, update (isPost, AccountNo)"},
    {"PostingNotes", "insert, delete"},
    {"PurchaseOrder", ""},
    {"Roles", "insert, delete"},
    {"SavedActions", "insert (token, username, workstation, action, document, amount, trailRows)"},
    {"SavedParts", "insert (token, kind, document, counted, amount)"},
    {"StockEntryAcct", "update (isPost, TranID, InvAcctNo)"},
    {"StockEntryRetail", "insert, update"},
    {"StockItems", ""},
    {"StockItemsRetail", "update (UnitsInStock, Reorderlevel)"},
    {"suppliers", "insert, update, delete"},
    {"SuppliersArchive", "insert"},
    {"TariffAdjust", "insert"},
    {"Tranxaction", "insert"},
    {"UserActivities", "insert, update"},
    {"UserRoles", "insert"},
    {"UsersForAccts", ""},
};

constexpr TableRights accountingTables[] = {
    {"AccountMonth", ""},          {"AccountMonthOpen", "insert"},  {"ChartOfAccounts", ""},
    {"IDgen", "insert, update"},   {"TranFromAppsTrail", "insert"}, {"Tranxaction", "insert"},
    {"TranxactionTemp", "insert"},
};

/// Nothing: the program leaves the table alone. The checks read every table that holds an amount.
/// SQL Server grants an insert for whole tables only.
std::optional<QString> rightsOn(const Table& table, bool billing, Engine engine) {
    const std::span<const TableRights> all = billing ? std::span<const TableRights>(billingTables) : accountingTables;
    for (const TableRights& rights : all) {
        if (table.name == QLatin1StringView(rights.table)) {
            QString does = QLatin1StringView(rights.does);
            if (engine == Engine::SqlServer)
                does.replace(QRegularExpression("insert \\([^)]*\\)"), "insert");
            return does.isEmpty() ? "select" : "select, " + does;
        }
    }
    const bool hasAmount = std::any_of(table.columns.begin(), table.columns.end(),
                                       [](const Column& column) { return column.kind == ColumnKind::Number; });
    return hasAmount ? std::optional("select") : std::nullopt;
}

QString quotedLogin(QString login, Engine engine) {
    return engine == Engine::SqlServer ? QStringLiteral("[%1]").arg(login.replace(u']', "]]"))
                                       : QStringLiteral("\"%1\"").arg(login.replace(u'"', "\"\""));
}

} // namespace

QStringList rightsStatements(Engine engine, const QString& database, const QString& login) {
    const bool billing = database == "billing";
    if (engine == Engine::Sqlite || (!billing && database != "accounting"))
        return {};
    const QString to = quotedLogin(login, engine);
    QStringList statements = {"grant select on orvaneSchema to " + to};
    QList<const Table*> tables = Catalog::instance().tables(database);
    if (billing)
        tables += Catalog::instance().tables("audit");
    for (const Table* table : tables)
        if (const std::optional<QString> rights = rightsOn(*table, billing, engine))
            statements += QStringLiteral("grant %1 on %2 to %3").arg(*rights, table->name, to);
    for (const QString& view : Catalog::instance().views(database))
        statements += QStringLiteral("grant select on %1 to %2").arg(view, to);
    return statements;
}

QString rightsScript(Engine engine, const QString& database, const QString& login) {
    const QStringList statements = rightsStatements(engine, database, login);
    if (statements.isEmpty())
        return {};
    const QString end = engine == Engine::SqlServer ? "\ngo\n" : ";\n";
    return "\n-- The least rights that the program's login needs; its user is made beforehand.\n" +
           statements.join(end) + end;
}

} // namespace orvane
