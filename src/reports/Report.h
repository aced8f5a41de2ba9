#pragma once

#include "forms/PageSource.h"
#include "reports/ReportData.h"

#include <memory>

namespace orvane {

/// The report of a template in the program's folder. Raises DataError with one line that says what is wrong with it and
/// where.
std::shared_ptr<PageSource> openReport(const ReportInput& input);

/// A report whose layout the program bears itself: its own where it has one, else a plain list.
std::shared_ptr<PageSource> openDataReport(const QString& name, const QString& title, const Recordset& rows);

} // namespace orvane
