#pragma once

#include <QList>
#include <QString>

namespace orvane {

/// One change of the schema since its number 1. A database whose number is lower takes it when it is upgraded.
struct SchemaStep {
    int number;           ///< of the schema that has the change
    const char* database; ///< "billing", "accounting" or "audit"
    const char* what;     ///< for the administrator
    const char* tsql;     ///< statements that end at a line of "go"; views need none, they are made anew
};

/// The steps of a database from the schema `from` on, in order.
QList<SchemaStep> schemaSteps(const QString& database, int from);

} // namespace orvane
