#pragma once

#include "session/Program.h"

namespace orvane {

/// The lines at the head of the hospital's papers, those of its receipts, as any template may ask for them: {Hospital}
/// is the first, {Head2} to {Head4} follow. A line that is missing is empty. Raises DataError.
QHash<QString, QString> letterhead(Program& program);

/// Shows rows as a plain list whose layout the program bears itself. `name`: the report's, by which scripts know it.
/// `sums`: what is said below the totals of its amounts.
void viewList(Program& program, const QString& name, const QString& title, const Recordset& rows,
              const QString& sums = {});

} // namespace orvane
