#include "data/rows/procedures/Bodies.h"

namespace orvane {

Recordset storeAuditRow(Connection& connection, const QVariantMap& parameters) {
    Connection own = connection.beside(connection.engine() == Engine::Sqlite ? "Audit" : QString());
    Recordset trail(own, Sql("select * from AuditTrail where 1=2"));
    trail.addNew();
    for (auto parameter = parameters.begin(); parameter != parameters.end(); ++parameter)
        trail.set(parameter.key().mid(1), parameter.value());
    trail.update();
    return {};
}

} // namespace orvane
