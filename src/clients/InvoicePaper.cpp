#include "clients/InvoicePaper.h"

#include "data/rows/Recordset.h"

namespace orvane {

namespace {

QHash<QString, QString> sentTo(const QString& name, const Recordset& row, std::initializer_list<const char*> columns) {
    QStringList lines;
    for (const char* column : columns)
        if (!row.eof() && !row.text(QLatin1String(column)).trimmed().isEmpty())
            lines << row.text(QLatin1String(column)).trimmed();
    return {{"ToName", name}, {"ToLines", lines.join('\n')}};
}

} // namespace

QHash<QString, QString> sentToClient(Connection& connection, const QString& name, const QString& code) {
    const Recordset client(
        connection, Sql("select Contact,Address,PhoneNo,Email from vwhretainership where RetainCode='") << code << "'");
    return sentTo(name, client, {"Contact", "Address", "PhoneNo", "Email"});
}

QHash<QString, QString> sentToPatient(Connection& connection, const QString& name, const QString& pno) {
    const Recordset patient(connection, Sql("select homeAddress,pPhoneNo from hPatients where PNo='") << pno << "'");
    return sentTo(name, patient, {"homeAddress", "pPhoneNo"});
}

} // namespace orvane
