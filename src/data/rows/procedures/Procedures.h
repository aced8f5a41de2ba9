#pragma once

#include "data/rows/Recordset.h"

#include <QVariantMap>

namespace orvane {

/// The body of a stored procedure, written once over the caller's connection, so that it exists on every engine.
using Procedure = Recordset (*)(Connection&, const QVariantMap&);

struct ProcedureEntry {
    const char* name;
    QStringList parameters; ///< in order, as the callers name them
    Procedure body;
};

/// All procedures by name; names compare without regard to case. Null when there is none of that name.
const ProcedureEntry* findProcedure(const QString& name);

} // namespace orvane
