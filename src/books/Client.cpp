#include "books/Client.h"

#include "books/Bill.h"
#include "books/BillLine.h"
#include "data/words/Money.h"

namespace orvane {

QString clientName(Connection& connection, const QString& clientID) {
    const Recordset client(connection, Sql("select retainName from hRetainership where retainID='") << clientID << "'");
    return client.eof() ? clientID : client.text("retainName");
}

std::optional<QString> clientOfCode(Connection& connection, const QString& code) {
    const Recordset client(connection, Sql("select retainname from hretainership  where retainCode ='") << code << "'");
    return client.eof() ? std::nullopt : std::optional(client.text("retainName"));
}

std::optional<QString> addClientDebt(Books& books, const QString& code, double amount) {
    Recordset client(books.connection, Sql("select * from hretainership  where retainCode ='") << code << "'");
    if (client.eof())
        return std::nullopt;
    client.set("Debt", round2(client.number("Debt") + amount));
    client.update();
    return client.text("retainName");
}

void lessenClientDebt(Books& books, const QString& code, double amount) {
    books.connection.execute(Sql("update  hretainership set debt=debt-")
                             << amount << " where retainCode = '" << code << "'");
}

// The columns that are called the client's name hold his id.
Given<Saved> moveToClient(Books& books, const ClientMove& move) {
    Connection& connection = books.connection;
    if (isBillProcessed(connection, move.billNo))
        return Refusal::BillProcessed;
    keepCharges(books, move.billNo);
    connection.execute(Sql("update hPatients set coyname='") << move.clientID << "', clientCatID ='" << move.category
                                                             << "'   where pno ='" << move.pno << "'");
    connection.execute(Sql("update hRecords set coyname='") << move.clientID << "', clientCat ='" << move.category
                                                            << "'   where consultID ='" << move.billNo << "'");
    connection.execute(Sql("update billingDetails set coyname='") << move.clientID << "', billto ='" << move.clientCode
                                                                  << "'   where billno ='" << move.billNo << "'");
    connection.execute(Sql("update billing set ClientID='")
                       << move.clientID << "'  where billno ='" << move.billNo << "'");
    connection.execute(Sql("update billAccum set coyname='") << move.clientID << "', billto ='" << move.clientCode
                                                             << "'   where consultID ='" << move.billNo << "'");
    books.record(move.billNo, 0);
    return Saved{};
}

} // namespace orvane
