#pragma once

#include "data/rows/Connection.h"

namespace orvane {

/// AccountMonth and ChartOfAccounts have their home in the accounting database. The start-up and the pick lists read
/// them over the billing connection, where they are repeated: no engine offers a view across both databases. Whoever
/// changes one at home calls copySharedTables afterwards; nothing else writes the repeated rows.
const QStringList& sharedTables();

/// Makes the repeated tables of the billing database what they are at home, in one transaction on `billing`; a table
/// that is empty at home, where nobody has begun the ledger, stays. Raises DataError, and leaves them as they were.
void copySharedTables(Connection& billing, Connection& accounting);

/// One sentence for each repeated table that is not what it is at home, where that has rows.
QStringList sharedTableDifferences(Connection& billing, Connection& accounting);

} // namespace orvane
