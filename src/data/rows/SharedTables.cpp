#include "data/rows/SharedTables.h"

#include "data/dialect/Catalog.h"
#include "data/rows/Recordset.h"
#include "data/rows/Transaction.h"

namespace orvane {

namespace {

using Row = QMap<QString, QVariant>; ///< by column

/// The rows without the key that each database counts for itself.
QList<Row> rowsOf(Connection& connection, const Table& table) {
    QList<Row> rows;
    for (Recordset row = connection.run("select * from [" + table.name + ']'); !row.eof(); row.moveNext()) {
        Row values;
        for (const Column& column : table.columns)
            if (!column.identity)
                values.insert(column.name, row.isNull(column.name) ? QVariant() : row.value(column.name));
        rows += values;
    }
    return rows;
}

const Table& tableOf(const QString& name) {
    return *Catalog::instance().table(name, "billing");
}

} // namespace

const QStringList& sharedTables() {
    static const QStringList names = {"AccountMonth", "ChartOfAccounts"};
    return names;
}

void copySharedTables(Connection& billing, Connection& accounting) {
    Transaction transaction(billing);
    for (const QString& name : sharedTables()) {
        const QList<Row> home = rowsOf(accounting, tableOf(name));
        if (home.isEmpty())
            continue;
        billing.run("delete from [" + name + ']');
        Recordset copy = billing.run("select * from [" + name + "] where 1=2");
        for (const Row& row : home) {
            copy.addNew();
            for (auto value = row.begin(); value != row.end(); ++value)
                copy.set(value.key(), value.value());
            copy.update();
        }
    }
    transaction.commit();
}

QStringList sharedTableDifferences(Connection& billing, Connection& accounting) {
    QStringList differences;
    for (const QString& name : sharedTables()) {
        const QList<Row> repeated = rowsOf(billing, tableOf(name));
        const QList<Row> home = rowsOf(accounting, tableOf(name));
        if (home.isEmpty())
            continue;
        const auto missing = std::count_if(
            home.begin(), home.end(), [&](const Row& row) { return !repeated.contains(row); });
        const auto extra =
            std::count_if(repeated.begin(), repeated.end(), [&](const Row& row) { return !home.contains(row); });
        if (missing + extra > 0) {
            differences += QStringLiteral("%1 of the billing database lacks %2 row(s) of the accounting database and "
                                          "has %3 that it has not")
                               .arg(name)
                               .arg(missing)
                               .arg(extra);
        }
    }
    return differences;
}

} // namespace orvane
