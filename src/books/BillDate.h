#pragma once

#include "books/BillInHand.h"

namespace orvane {

/// Settles hRecords.BillDate, which sends a bill to its monthly batch. The date set so far (the discharge, or the day
/// of the visit) holds; a visit after the day on which the client's billing month ends, or one without a date so far,
/// goes by the visit's day and that rule; and a date in a month that the client's batches have passed becomes the first
/// day of the month after the newest batch.
void settleBillDate(Books& books, const BillInHand& bill);

/// The rule by itself. `billDate`: the date set so far, empty for none. `billEndDay`: 0, as where the client has none,
/// is before every day of a month. `newestBatch`: year and month as YYYYMM, 0 for none.
QDate billDateFor(QDate recDate, QDate billDate, int billEndDay, int newestBatch);

} // namespace orvane
