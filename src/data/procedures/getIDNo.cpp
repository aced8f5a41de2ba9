#include "data/Transaction.h"
#include "data/procedures/Bodies.h"

namespace orvane {

namespace {

Recordset raiseCounter(Connection& connection, const QString& counter) {
    // The update comes first: its lock keeps every other caller out until this one has read and ended.
    connection.execute(Sql("update IDgen set ID=ID+1 where DestName='") << counter << "'");
    return Recordset(connection, Sql("select ID as getIDNo from IDgen where DestName='") << counter << "'");
}

} // namespace

Recordset nextNumber(Connection& connection, const QVariantMap& parameters) {
    const QString counter = parameters.value(QStringLiteral("DestName")).toString();
    if (connection.inTransaction()) {
        return raiseCounter(connection, counter);
    }
    Transaction transaction(connection);
    Recordset number = raiseCounter(connection, counter);
    transaction.commit();
    return number;
}

} // namespace orvane
