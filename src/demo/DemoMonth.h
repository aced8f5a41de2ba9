#pragma once

#include "play/QuietUi.h"
#include "session/Program.h"

namespace orvane {

// What the billing officer does with the clients' month, on the program's own screens. Each raises DataError when a
// step does not go as it must.

/// Reviews the batch, gives its lines their headings, and invoices all its clients.
void closeMonth(Program& program, QuietUi& ui, QDate month);

/// Posts the month's receipts, invoices and suppliers' entries to the ledger, names the consultants of its services and
/// closes its period.
void postMonth(Program& program, QuietUi& ui, QDate month);

/// Shifts the first bill of the day that a client of this name bears to the month that follows.
void shiftBill(Program& program, QuietUi& ui, QDate day, const QString& client);

/// Splits the first item off a bill of the day, which its patient pays himself.
void splitBill(Program& program, QuietUi& ui, QDate day, const QString& billNo);

} // namespace orvane
