#pragma once

#include "data/rows/Recordset.h"
#include "reports/Template.h"

namespace orvane {

/// The text object of a plain list that bears its title.
extern const QString listTitle;

/// The layout of a plain list: the title and heads on every page, a line for each row, columns as wide as their first
/// rows ask, numbers right aligned. It is turned when it is too wide, and its letters are shown smaller when it is
/// still. `summed`: the columns with a total at the end; those that there are not are passed over.
ReportTemplate listTemplate(const QString& file, const QString& title, const Recordset& rows,
                            const QStringList& summed);

} // namespace orvane
