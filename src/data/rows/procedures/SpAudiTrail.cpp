#include "data/dialect/Value.h"
#include "data/rows/procedures/Bodies.h"

namespace orvane {

namespace {

/// A text that is too long for the trail is cut: to refuse it would let somebody work without leaving a row.
QVariant forTrail(const QString& name, const QVariant& value) {
    const Column* column = Catalog::instance().table("AuditTrail")->column(name);
    return value.typeId() == QMetaType::QString && column ? cutTo(value.toString(), *column) : value;
}

} // namespace

Recordset storeAuditRow(Connection& connection, const QVariantMap& parameters) {
    Connection own = connection.beside(connection.engine() == Engine::Sqlite ? "Audit" : QString());
    Recordset trail(own, Sql("select * from AuditTrail where 1=2"));
    trail.addNew();
    for (auto parameter = parameters.begin(); parameter != parameters.end(); ++parameter)
        trail.set(parameter.key().mid(1), forTrail(parameter.key().mid(1), parameter.value()));
    trail.update();
    return {};
}

} // namespace orvane
