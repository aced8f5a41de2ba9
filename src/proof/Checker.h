#pragma once

#include "data/rows/Recordset.h"
#include "proof/Check.h"
#include "proof/CheckTable.h"

namespace orvane {

struct Table;

/// Runs checks on one database.
class Checker {
public:
    Checker(Connection& connection, const QString& database);

    /// `told`: the report's findings or its notices. Of one check a score of sentences is told; the rest is counted in
    /// `remarks`.
    void run(std::span<const Check> checks, QStringList& told, QStringList& remarks);
    /// Money and quantities of every table that are infinite or no number at all; a text in a number column sorts above
    /// all numbers.
    void runNumbers(QStringList& findings);
    /// Money that must be stated: without it a sum leaves the row out silently.
    void runDemanded(QStringList& findings);

    static QStringList amountCheckNames();

private:
    void count(const QString& check, const QString& table, const QString& condition, const QString& column,
               QStringList& findings);
    QStringList columnsThere(const Table& table);

    Connection& m_connection;
    QString m_database;
    int m_version;
};

} // namespace orvane
