#pragma once

#include "books/BillInHand.h"

namespace orvane {

/// Settles hRecords.BillDate, which sends a bill to its monthly batch. An in-patient's is the day of his discharge;
/// without one it is the day of the visit, or the first of the next month where the client's billing month had ended by
/// then; and a date in a month that the client's batches have passed becomes the first day of the month after the
/// newest batch.
void settleBillDate(Books& books, const BillInHand& bill, bool isInPatient);

/// The rule by itself. `discharged`: empty for an out-patient and while an in-patient stays. `billEndDay`: 0, as where
/// the client has none, is before every day of a month. `newestBatch`: year and month as YYYYMM, 0 for none.
QDate billDateFor(QDate recDate, QDate discharged, int billEndDay, int newestBatch);

/// The first day of the month that lies so many months after that of the batch, before it for a negative number. None
/// where no batch can be of that month.
std::optional<QDate> shiftedBillDate(const QString& batchNo, int months);

/// Sends the bills to the month of this date. Refuses all of them when one is processed or has lost its visit. Gives
/// their number; `moving` is told how many are done, inside the transaction.
Given<int> shiftBills(Books& books, const QVector<ListedBill>& bills, QDate date,
                      const std::function<void(int)>& moving);

/// Visits of these days that are billed in another month of the year than they took place in are billed on their own
/// day. A processed bill is frozen and keeps its date.
void billOnDayOfVisit(Books& books, QDate from, QDate to);

} // namespace orvane
