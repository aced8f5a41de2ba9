#include "data/rows/Transaction.h"
#include "data/rows/procedures/Bodies.h"

namespace orvane {

namespace {

Recordset raiseCounter(Connection& connection, const QString& counter) {
    // The update comes first: its lock keeps every other caller out until this one has read and ended.
    connection.execute(Sql("update IDgen set ID=ID+1 where DestName='") << counter << "'");
    const auto number = [&] {
        return Recordset(connection, Sql("select ID as getIDNo from IDgen where DestName='") << counter << "'");
    };
    const Recordset known = number();
    if (!known.eof())
        return known;
    // Nobody else makes it meanwhile: the transaction holds the money gate.
    connection.execute(Sql("insert into IDgen (DestName, ID) values ('") << counter << "', 1)");
    return number();
}

} // namespace

Recordset nextNumber(Connection& connection, const QVariantMap& parameters) {
    const QString counter = parameters.value("DestName").toString();
    if (connection.inTransaction())
        return raiseCounter(connection, counter);
    Transaction transaction(connection);
    Recordset number = raiseCounter(connection, counter);
    try {
        transaction.commit();
    } catch (const CommitUnknown& fault) {
        // Nothing bears this number yet, so it does not matter whether the counter keeps the step.
        throw DataError(QStringLiteral("The connection to the database server is lost. Nothing was saved. Please try "
                                       "again."),
                        fault.statement());
    }
    return number;
}

} // namespace orvane
