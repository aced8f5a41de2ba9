#pragma once

#include "data/rows/Connection.h"

namespace orvane {

/// Batches are of months of these years.
constexpr int firstBatchYear = 2011;
constexpr int lastBatchYear = 2050;

/// The two-digit code of an English month name, "01" of "January" to "12" of "December"; empty for any other text.
QString monthCode(const QString& monthName);

/// The month's English name, "January" of 1 to "December" of 12; empty for any other number.
QString monthName(int month);

/// The number of a batch, "2026/03": the year as it is shown, a slash, the month's code.
QString batchNumber(const QString& year, const QString& monthCode);

/// A batch number as a whole number by which batches are in order, 202603 of "2026/03"; 0 where it holds none.
int batchValue(const QString& batchNo);

/// A client's code as the tables have it, from the number that it is in a list: four digits with leading zeros, seven
/// when it has five or more. Digits beyond them are cut off in front.
QString paddedClientCode(qlonglong code);

/// The number of a client's invoice of one batch: "0007/2026/03". `clientCode` is the padded one.
QString invoiceNumber(const QString& clientCode, const QString& batchNo);

/// Whether invoices of a later batch are there, so that this one may not be processed any more. The newest batch itself
/// may, in several runs.
bool isBatchPast(Connection& connection, const QString& batchNo);

} // namespace orvane
