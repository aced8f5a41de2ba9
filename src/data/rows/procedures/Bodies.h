#pragma once

#include "data/rows/Recordset.h"

#include <QVariantMap>

namespace orvane {

/// SpAudiTrail: one row of AuditTrail over a connection of its own, so that it stays when the caller rolls back. The
/// embedded engine keeps the trail in a file of its own: a second writer of one file would wait for the caller's
/// transaction, which waits for it.
Recordset storeAuditRow(Connection& connection, const QVariantMap& parameters);

/// getIDNo: raises the counter DestName of IDgen by one and gives it in the column "getIDNo". A counter that is missing
/// is made, and gives 1.
Recordset nextNumber(Connection& connection, const QVariantMap& parameters);

/// updateRevType: gives the items of a visit and of its bill that bear no revenue type, or only "OTHERS", the type of
/// the item master that knows the item: drugMaster, else labservices, else hservices. A processed bill stays as it is.
Recordset fillRevenueTypes(Connection& connection, const QVariantMap& parameters);

/// SpRptHeaderCursor: gives the lines of a batch's bills that stand under no heading of the invoice their own, of the
/// client @coyCode or, with "(ALL)", of every one. A heading that a person gave stays; a line whose revenue type is not
/// in use has none after it either.
Recordset fillHeadings(Connection& connection, const QVariantMap& parameters);

/// getTranID: gives the next transaction id of the ledger in the column "tranID". In the caller's transaction, whose gate
/// of the accounting database keeps every other one out until it has ended.
Recordset nextTranID(Connection& connection, const QVariantMap& parameters);

/// AccountOpenPeriods_Insert: opens the month behind the newest period, "2026/04" with its last day as PrdClose; where
/// there is none, the current period.
Recordset openNextPeriod(Connection& connection, const QVariantMap& parameters);

/// InsertTranxaction: writes one leg to Tranxaction when @Period is the current period by the database's own word, and to
/// TranxactionTemp else.
Recordset storeLeg(Connection& connection, const QVariantMap& parameters);

/// getTrialBalance: makes the tables of the ledger's reports what the ledger is, and gives the days of its first and
/// last entry, FirstDay and LastDay; no row where nothing was posted yet.
Recordset ledgerDays(Connection& connection, const QVariantMap& parameters);

/// BillingDetailsForRevRpt: the billed lines of the days @Date1 to @Date2, of the client or the client type
/// @ClientCat or, with "(ALL)", of everybody.
Recordset billedLines(Connection& connection, const QVariantMap& parameters);

/// getBilling: the lines of the bill @billNo as an in-patient's bill shows them: without the consultation fee of a client
/// who is not to see it.
Recordset billOnPaper(Connection& connection, const QVariantMap& parameters);

} // namespace orvane
