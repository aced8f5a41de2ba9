#include "books/Debtor.h"

namespace orvane {

namespace {

void compose(Recordset& row, const Debtor& debtor, const QString& remarks) {
    row.set("entryDate", debtor.date);
    row.set("billNo", debtor.billNo);
    row.set("clientNo", debtor.clientNo);
    row.set("Amount", debtor.amount);
    row.set("Remarks", remarks);
}

} // namespace

void addDebtor(Books& books, const Debtor& debtor) {
    Recordset row(books.connection, Sql("select * from hdebtors  where 1=2"));
    row.addNew();
    compose(row, debtor, "DEBT");
    row.set("isPaid", 0);
    row.set("invNo", debtor.invNo);
    row.update();
}

void settleBillDebtor(Books& books, const Debtor& debtor) {
    Recordset row(books.connection, Sql("select * from hDebtors where billno = '") << debtor.billNo << "'");
    const bool isNew = row.eof();
    if (isNew && debtor.amount <= 0)
        return;
    if (isNew) {
        row = Recordset(books.connection, Sql("select * from hDebtors where 1=2"));
        row.addNew();
    }
    compose(row, debtor, debtor.amount > 0 ? "DEBIT" : "CREDIT");
    row.set("isPaid", int(debtor.amount <= 0));
    row.update();
}

void removeDebtors(Books& books, const QString& invNo) {
    books.connection.execute(Sql("delete from hdebtors where InvNo = '") << invNo << "'");
}

} // namespace orvane
