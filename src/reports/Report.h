#pragma once

#include "forms/PageSource.h"
#include "reports/ReportData.h"

#include <memory>

namespace orvane {

/// The report of a template in the program's folder. Raises DataError with one line that says what is wrong with it and
/// where.
std::shared_ptr<PageSource> openReport(const ReportInput& input);

/// A report whose layout the program bears itself, a plain list under the input's title; its file names no file.
/// `sums`: what is said below the totals of its amounts.
std::shared_ptr<PageSource> openDataReport(const ReportInput& input, const QString& sums = {});

} // namespace orvane
