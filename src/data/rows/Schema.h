#pragma once

#include "data/engine/SchemaVersion.h"
#include "data/rows/Connection.h"

#include <QStringList>

namespace orvane {

/// The statements, in the engine's own words and in order, that make the schema of "billing", "accounting" or "audit":
/// what the engine lacks, then tables, indexes and views, then the stamp of the version. On a server the audit trail's
/// table is part of "billing".
QStringList schemaStatements(Engine engine, const QString& database);
/// The same as one script, for reading and for a server's own tools.
QString schemaScript(Engine engine, const QString& database);

/// Makes the schema in a database that DataSource::create has made.
void createSchema(Connection& connection, const QString& database);

/// The number of the schema that the database has; 0 when it has none of this program's.
int schemaVersion(Connection& connection);
/// Brings the schema of "billing", "accounting" or "audit" to the present number by the steps from its own, in one
/// transaction: raises DataError, and changes nothing, when one fails. Views are dropped and made again; logins that
/// could read the schema's number have the rights that the program needs again. The rows keep every amount.
void upgradeSchema(Connection& connection, const QString& database);

/// Takes all indexes away from a database that is about to be loaded, and makes them again: on rows that are there an
/// index costs a fraction of one that follows every row. Raises DataError, and changes nothing, when one fails.
void dropIndexes(Connection& connection, const QString& database);
void createIndexes(Connection& connection, const QString& database);

/// Creates the billing and the accounting database (and on the embedded engine the audit trail's file) with their
/// schema.
void createDatabases(DataSource& source, const QString& billingConnectionString,
                     const QString& accountingConnectionString);

} // namespace orvane
