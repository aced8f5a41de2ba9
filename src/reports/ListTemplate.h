#pragma once

#include "reports/ReportData.h"
#include "reports/Template.h"

namespace orvane {

/// The text objects of a plain list: its title, and what is said below its totals.
extern const QString listTitle, listSums;

/// The layout of a plain list: the title and heads on every page, a line for each row, columns as wide as their first
/// rows ask, numbers right aligned. It is turned when it is too wide, and its letters are shown smaller when it is
/// still. Amounts have their totals at the end; the hospital's name stands at the head where it is given as {Hospital}.
ReportTemplate listTemplate(const ReportInput& input);

} // namespace orvane
