#include "RecordedStatements.h"
#include "data/dialect/Catalog.h"
#include "data/rows/Recordset.h"
#include "support/Print.h"
#include "support/TestHome.h"

#include <QRegularExpression>
#include <QSet>

namespace orvane {

namespace {

const QSet<QString>& growingTables() {
    static const QSet<QString> tables = {
        "hpatients",          "hpatientspublic", "hrecords",         "hrecordspublic", "hconsulting",
        "hadmission",         "hreferal",        "happrvcode",       "billaccum",      "billing",
        "billingdetails",     "payments",        "paymenttypes",     "paymentdetails", "tranxaction",
        "useractivities",     "drugnhis",        "labservicenhis",   "hservicenhis",   "stockentryretail",
        "hconsultingdetails", "hinjanddressing", "hmedchartmonitor", "hinvestigate",   "hinvestigatefindings"};
    return tables;
}

/// What reads a table whole by design: the newest row by its key, the few rows that a partial index holds, a sum of
/// all, a revenue type that is given another name, or the look for outlet visits before a hospital's first one.
bool readsFewRows(const QString& statement, const QString& step) {
    const bool sqlite = step.startsWith("SCAN");
    return statement.contains(" where revType='") || statement.contains("from qryidgenConPublic") ||
           (statement.startsWith("select top 1 SNO") && (sqlite || step.contains("Limit"))) ||
           step.contains("ixRecordsUnbilled", Qt::CaseInsensitive) ||
           step.contains("ixConsultingOpen", Qt::CaseInsensitive) ||
           statement.startsWith("select sum(AmountBilled) as totAmt"); // of all bills there are
}

/// The tables that each alias (or table name) in the statement and in the views under it may stand for, in lower case.
QMultiHash<QString, QString> tablesByAlias(const QString& statement) {
    static const QRegularExpression source("\\b(?:from|join|update)\\s+(\\w+)(?:\\s+(\\w+))?",
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression word("\\w+");
    QStringList texts = {statement};
    for (const QString& definition : Catalog::instance().statements("billing")) {
        const qsizetype at = definition.indexOf("create view ");
        const QString name = at < 0 ? QString() : word.match(definition, at + 12).captured();
        if (!name.isEmpty() && statement.contains(name, Qt::CaseInsensitive))
            texts += definition;
    }
    QMultiHash<QString, QString> tables;
    for (const QString& text : texts) {
        for (auto matches = source.globalMatch(text); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            tables.insert(match.captured(1).toLower(), match.captured(1).toLower());
            tables.insert(match.captured(2).toLower(), match.captured(1).toLower());
        }
    }
    return tables;
}

/// SQLite: "SCAN h" and "SCAN h USING INDEX ..." read all of h; "SEARCH h ..." does not.
QStringList fullScansOfSqlite(Connection& connection, const QString& statement) {
    static const QRegularExpression scan("^SCAN (\\w+)");
    const QMultiHash<QString, QString> tables = tablesByAlias(statement);
    QStringList scans;
    for (Recordset plan = connection.run("explain query plan " + statement); !plan.eof(); plan.moveNext()) {
        const QString step = plan.text("detail");
        const QRegularExpressionMatch match = scan.match(step);
        if (!match.hasMatch())
            continue;
        const QStringList candidates = tables.values(match.captured(1).toLower());
        const bool grows = std::any_of(candidates.begin(), candidates.end(),
                                       [](const QString& table) { return growingTables().contains(table); });
        if (grows && !readsFewRows(statement, step))
            scans += step;
    }
    return scans;
}

/// PostgreSQL with sequential scans priced out: a scan is full when it is sequential all the same, or walks an index
/// with no condition on it.
QStringList fullScansOfPostgresql(Connection& connection, const QString& statement) {
    static const QRegularExpression scan("(Seq Scan|Index Scan|Index Only Scan).* on (\\w+)");
    QStringList steps;
    for (Recordset plan = connection.run("explain " + statement); !plan.eof(); plan.moveNext())
        steps += plan.text(0);
    QStringList scans;
    for (qsizetype i = 0; i < steps.size(); ++i) {
        const QRegularExpressionMatch match = scan.match(steps[i]);
        if (!match.hasMatch() || !growingTables().contains(match.captured(2)))
            continue;
        bool conditioned = false;
        for (qsizetype k = i + 1; k < steps.size() && !steps[k].contains("->"); ++k)
            conditioned = conditioned || steps[k].contains("Index Cond");
        const QString context = (i > 0 ? steps[i - 1] : QString()) + steps[i];
        if (!conditioned && !readsFewRows(statement, context))
            scans += steps[i];
    }
    return scans;
}

} // namespace

class Plan : public EngineTest {};

TEST_P(Plan, NoStatementOnAVisitABillOrAReceiptReadsAGrowingTableWhole) {
    const bool sqlite = GetParam() == Engine::Sqlite;
    if (!sqlite)
        billing.run("select set_config('enable_seqscan', 'off', false)");
    const auto fullScans = sqlite ? fullScansOfSqlite : fullScansOfPostgresql;
    EXPECT_EQ(fullScans(billing, "select * from qryhVisits where Remarks='REVIEW'").size(), 1)
        << "a filter that no index serves must be seen";
    EXPECT_GT(recordedStatements().size(), 100);
    for (const QString& statement : recordedStatements()) {
        SCOPED_TRACE(statement.toStdString());
        EXPECT_EQ(fullScans(billing, statement), QStringList());
    }
}

ORVANE_ON_EACH_ENGINE(Plan);

} // namespace orvane
