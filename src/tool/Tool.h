#pragma once

#include <QStringList>
#include <QTextStream>

namespace orvane {

/// The administrator's command line, orvane-db. `arguments`: without the program's name. Results go to `out`, refusals
/// to `errors`. Gives the exit code: 0 done, 1 findings or refused, 2 not understood.
int runDatabaseTool(const QStringList& arguments, QTextStream& out, QTextStream& errors);

} // namespace orvane
