#include "data/rows/procedures/Bodies.h"

namespace orvane {

// The tables of the reports are views over the legs: a copy that this filled would be old as soon as another
// workstation posts, and two that print at once would fill it in turn.
Recordset ledgerDays(Connection& connection, const QVariantMap&) {
    return Recordset(connection,
                     Sql("select min(d.Day) as FirstDay,max(d.Day) as LastDay from ("
                         "select min(TranDate) as Day from Tranxaction union all "
                         "select max(TranDate) as Day from Tranxaction union all "
                         "select min(TranDate) as Day from TranxactionTemp union all "
                         "select max(TranDate) as Day from TranxactionTemp) d having max(d.Day) is not null"));
}

} // namespace orvane
