#include "books/ClientMaster.h"

#include "books/NextCode.h"

namespace orvane {

namespace {

bool isTaken(Connection& connection, const QString& code) {
    return !Recordset(connection, Sql("select retainID from hRetainership where retainID='")
                                      << code << "' or retainCode='" << code << "'")
                .eof();
}

void compose(Recordset& row, const ClientEntry& entry) {
    row.set("retainName", entry.name);
    row.set("ClientType", entry.type);
    row.set("clientcatID", entry.category);
    row.set("Contact", nullIfEmpty(entry.contact));
    row.set("Address", entry.address);
    row.set("PhoneNo", nullIfEmpty(entry.phone));
    row.set("Email", nullIfEmpty(entry.email));
    row.set("AcctID", nullIfEmpty(entry.account));
    row.set("Active", entry.active);
    row.set("BillEndDate", entry.billEndDay);
    row.update();
}

} // namespace

Given<QString> addClient(Books& books, const ClientEntry& entry) {
    const std::optional<QString> code =
        nextCode(books.connection, Sql("select max(retaincode) as ID from vwhRetainCode "), 4);
    if (!code)
        return Refusal::NoClientCode;
    if (isTaken(books.connection, *code))
        return Refusal::ClientCodeTaken;
    Recordset row(books.connection, Sql("select * from hRetainership where 1=2"));
    row.addNew();
    row.set("retainCode", *code);
    row.set("retainID", *code);
    compose(row, entry);
    books.record(*code, 0);
    return *code;
}

void changeClient(Books& books, const QString& retainID, const ClientEntry& entry) {
    Recordset row(books.connection, Sql("select * from hRetainership where RetainID='") << retainID << "'");
    if (row.eof())
        return;
    compose(row, entry);
    books.record(retainID, 0);
}

Given<Saved> deleteClient(Books& books, const QString& retainID) {
    const Recordset patient(books.connection, Sql("select TOP 1 * from hPatients where coyname ='") << retainID << "'");
    if (!patient.eof())
        return Refusal::ClientHasPatients;
    books.connection.execute(Sql("delete from hRetainership where retainID = '") << retainID << "'");
    books.connection.execute(Sql("delete from hRetainershipScheme where retainID = '") << retainID << "'");
    books.record(retainID, 0);
    return Saved{};
}

Given<Saved> exemptClient(Books& books, const QString& retainID) {
    if (!Recordset(books.connection, Sql("select * from hretainershipExempt where retainID = '") << retainID << "'")
             .eof())
        return Refusal::ClientExempt;
    Recordset row(books.connection, Sql("select * from hretainershipExempt where 1=2"));
    row.addNew();
    row.set("retainID", retainID);
    row.update();
    books.record(retainID, 0);
    return Saved{};
}

void endExemption(Books& books, const QString& retainID) {
    books.connection.execute(Sql("delete from hretainershipExempt where retainID = '") << retainID << "'");
    books.record(retainID, 0);
}

} // namespace orvane
