#include "books/Debtor.h"

namespace orvane {

void addDebtor(Books& books, const Debtor& debtor) {
    Recordset row(books.connection, Sql("select * from hdebtors  where 1=2"));
    row.addNew();
    row.set("entryDate", debtor.date);
    row.set("billNo", debtor.billNo);
    row.set("clientNo", debtor.clientNo);
    row.set("Amount", debtor.amount);
    row.set("isPaid", 0);
    row.set("Remarks", "DEBT");
    row.set("invNo", debtor.invNo);
    row.update();
}

void removeDebtors(Books& books, const QString& invNo) {
    books.connection.execute(Sql("delete from hdebtors where InvNo = '") << invNo << "'");
}

} // namespace orvane
