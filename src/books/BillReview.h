#pragma once

#include "books/Books.h"

namespace orvane {

/// Takes an item and its line off a collated bill and brings the bill in step, a processed one too. What the line had
/// charged goes back to the account that bore it.
void removeFromDetails(Books& books, const QString& billNo, qlonglong sno);

/// Writes over the diagnosis of a bill.
void diagnoseBill(Books& books, const QString& billNo, const QString& diagnosis);

/// The diagnoses of the consultations of each bill of the batch, in capitals, each followed by CR LF, become the
/// bill's; a bill without a consultation keeps its own. `moving` is called now and then, inside the transaction.
void diagnoseBatch(Books& books, const QString& batchNo, const std::function<void()>& moving);

/// A heading of the invoice for each line of the batch that has none; see the procedure SpRptHeaderCursor.
void assignHeadings(Books& books, const QString& batchNo);

} // namespace orvane
