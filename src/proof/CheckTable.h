#pragma once

#include "data/dialect/Sql.h"

#include <span>

namespace orvane {

/// One check of a database: its statement gives a row for each fault; the sentence takes the row's columns in order as
/// %1, %2, ...
struct Check {
    const char* name;
    SqlLiteral statement;
    const char* sentence;
    int since = 1; ///< the schema's number from which on the statement can run
};

// Of the billing database, by subject.
std::span<const Check> numberChecks();
std::span<const Check> billChecks();
std::span<const Check> receiptChecks();
std::span<const Check> accountChecks();
std::span<const Check> noticeChecks(); ///< what actions of the program leave and a person may want to know
std::span<const Check> monthChecks();
std::span<const Check> monthNotices();
std::span<const Check> voucherChecks();
std::span<const Check> stockChecks();
std::span<const Check> stockNotices();
/// Of the accounting database.
std::span<const Check> ledgerChecks();
std::span<const Check> ledgerNotices();

} // namespace orvane
