#include "data/rows/Transaction.h"
#include "data/rows/procedures/Bodies.h"

namespace orvane {

namespace {

/// An item master and the column that names its items.
struct Master {
    SqlLiteral table;
    SqlLiteral item;
};

constexpr Master masters[] = {{"drugMaster", "drgName"}, {"labservices", "Drgname"}, {"hservices", "service"}};

Sql withoutType() {
    return Sql("(revType is null or revType in ('','OTHERS'))");
}

/// "(select max(m.revType) from MASTER m where m.ITEM = TARGET.drgName and m.revType <> '')"
Sql typeOf(const Master& master, SqlLiteral target) {
    return Sql("(select max(m.revType) from ")
           << master.table << " m where m." << master.item << "=" << target << ".drgName and m.revType <> '')";
}

void fill(Connection& connection, const Master& master, SqlLiteral target, const Sql& rows) {
    connection.execute(Sql("update ") << target << " set revType=" << typeOf(master, target) << " where " << rows
                                      << " and " << withoutType() << " and " << typeOf(master, target)
                                      << " is not null");
}

/// What was invoiced keeps the types that it was invoiced with.
Sql isOpen(const QString& visit) {
    return Sql("not exists (select 1 from Billing b where b.billNo='") << visit << "' and b.isProcess=1)";
}

void fillAll(Connection& connection, const QString& visit) {
    for (const Master& master : masters) {
        fill(connection, master, "BillAccum", Sql("consultID='") << visit << "' and " << isOpen(visit));
        fill(connection, master, "BillingDetails", Sql("billNo='") << visit << "' and " << isOpen(visit));
    }
}

} // namespace

Recordset fillRevenueTypes(Connection& connection, const QVariantMap& parameters) {
    const QString visit = parameters.value("@ConsultID").toString();
    const Recordset open(connection, Sql("select SNo from BillAccum where consultID='")
                                         << visit << "' and " << withoutType()
                                         << " union all select SNo from BillingDetails where billNo='" << visit
                                         << "' and " << withoutType());
    if (open.eof())
        return {};
    if (connection.inTransaction()) {
        fillAll(connection, visit);
        return {};
    }
    Transaction transaction(connection);
    fillAll(connection, visit);
    transaction.commit();
    return {};
}

} // namespace orvane
