#include "attendance/ConsultID.h"

#include "data/rows/Recordset.h"

namespace orvane {

namespace {

qlonglong highestSerial(Connection& connection, const Sql& sql) {
    const Recordset highest(connection, sql);
    return highest.eof() ? 0 : highest.integer("ID");
}

bool isInUse(Connection& connection, const QString& id) {
    return !Recordset(connection, Sql("select SNo from BillAccum where consultID='") << id << "'").eof() ||
           !Recordset(connection, Sql("select billNo from Billing where billNo='") << id << "'").eof();
}

} // namespace

QString genConsultID(Connection& connection, const QString& hospital) {
    qlonglong serial = highestSerial(
        connection, Sql("select MAX(cast(SUBSTRING(consultID, 7, 7)as bigint))  as ID from hRecords WHERE   "
                        "(SUBSTRING(consultID, 4, 3) = 'OFL') and (SUBSTRING(consultID, 1, 3)='")
                        << hospital << " ')");
    if (serial < 1)
        serial = highestSerial(connection, Sql("select MAX(SUBSTRING(consultID, 4, 7)) AS ID From hRecords WHERE     "
                                               "(SUBSTRING(consultID, 1, 3) = 'OFL')"));
    QString id;
    do
        id = hospital + "OFL" + ("0000000" + QString::number(++serial)).right(7);
    while (isInUse(connection, id));
    return id;
}

} // namespace orvane
