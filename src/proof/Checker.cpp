#include "proof/Checker.h"

#include "data/dialect/Catalog.h"
#include "data/rows/Schema.h"

namespace orvane {

namespace {

/// Of one check at most so many sentences are told; the rest is counted.
constexpr int toldFindings = 20;

constexpr const char* demandedMoney[][2] = {
    {"Tranxaction", "Amount"},      {"Tranxaction", "RunningTotal"},  {"Payments", "AmountPaid"},
    {"PaymentTypes", "AmountPaid"}, {"PaymentDetails", "AmountPaid"}, {"BillAccum", "SubTotal"},
    {"BillingDetails", "SubTotal"},
};

const QString nullMoney = "amount that is not stated";
const QString noNumber = "amount that is no number";

QString shown(const Recordset& row, int column) {
    return row.value(column).typeId() == QMetaType::Double ? QString::number(row.value(column).toDouble(), 'f', 2)
                                                           : row.text(column);
}

} // namespace

Checker::Checker(Connection& connection, const QString& database)
    : m_connection(connection), m_database(database), m_version(schemaVersion(connection)) {}

void Checker::run(std::span<const Check> checks, QStringList& told, QStringList& remarks) {
    for (const Check& check : checks) {
        if (check.since > m_version)
            continue;
        const QString name = QString::fromLatin1(check.name);
        const Recordset rows(m_connection, Sql(check.statement));
        int count = 0;
        for (Recordset row = rows; !row.eof() && count < toldFindings; row.moveNext(), ++count) {
            QString sentence = QString::fromLatin1(check.sentence);
            for (int column = 0; column < int(row.columns().size()); ++column)
                sentence.replace(u'%' + QString::number(column + 1), shown(row, column));
            told.append(name + ": " + sentence);
        }
        if (rows.count() > count)
            remarks.append(QStringLiteral("%1: and %2 more").arg(name).arg(rows.count() - count));
    }
}

void Checker::runNumbers(QStringList& findings) {
    for (const Table* table : Catalog::instance().tables(m_database)) {
        const QStringList there = m_version == kSchemaVersion ? table->columnNames : columnsThere(*table);
        for (const Column& column : table->columns) {
            if (column.kind == ColumnKind::Number && there.contains(column.name, Qt::CaseInsensitive))
                count(noNumber, table->name, QStringLiteral("[%1] > 1e300 or [%1] < -1e300").arg(column.name),
                      column.name, findings);
        }
    }
}

void Checker::runDemanded(QStringList& findings) {
    for (const auto& [table, column] : demandedMoney) {
        const QString name = QString::fromLatin1(column);
        count(nullMoney, QString::fromLatin1(table), QStringLiteral("[%1] is null").arg(name), name, findings);
    }
}

QStringList Checker::amountCheckNames() {
    return {nullMoney, noNumber};
}

void Checker::count(const QString& check, const QString& table, const QString& condition, const QString& column,
                    QStringList& findings) {
    const Recordset counted =
        m_connection.run(QStringLiteral("select count(*) as N from [%1] where %2").arg(table, condition));
    if (const qlonglong rows = counted.integer("N"); rows > 0)
        findings.append(QStringLiteral("%1: %2.%3 in %4 row(s)").arg(check, table, column).arg(rows));
}

/// The columns that a table of an earlier schema has; none when it is not there.
QStringList Checker::columnsThere(const Table& table) {
    const QString asked = m_connection.engine() == Engine::Sqlite
                              ? QStringLiteral("select name from pragma_table_info('%1')").arg(table.name)
                              : QStringLiteral("select column_name as name from information_schema.columns "
                                               "where lower(table_name) = lower('%1')")
                                    .arg(table.name);
    QStringList names;
    for (Recordset row = m_connection.run(asked); !row.eof(); row.moveNext())
        names += row.text(0);
    return names;
}

} // namespace orvane
