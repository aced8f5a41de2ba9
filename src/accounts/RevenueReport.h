#pragma once

#include "session/Program.h"

namespace orvane {

/// A report on revenue as a screen asks for it.
struct RevenueReport {
    QString mode; ///< "SUMMARY", "DETAIL", "CONS-DETAIL" or "CASH"
    Sql rows;
    QString client; ///< whom it is about, in words
    QDate from, to;
};

/// Hands the report to its viewer, which is opened anew.
void showRevenueReport(Program& program, const RevenueReport& report);

/// Writes rows into a workbook of this name and opens it.
void exportRows(Program& program, const Recordset& rows, const QString& name);

/// Writes the billed lines of these days, of a client (his code), a client type or, with "(ALL)", of everybody, into a
/// workbook and opens it. Says so where there are none.
void exportRevenue(Program& program, QDate from, QDate to, const QString& whose);

} // namespace orvane
