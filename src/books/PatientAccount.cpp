#include "books/PatientAccount.h"

#include "data/Assert.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

void addEvent(Books& books, const AccountEntry& entry, double runningTotal) {
    Recordset event(books.connection, Sql("select * from Tranxaction where 1=2"));
    event.addNew();
    event.set("entryDate", books.today());
    event.set("PNo", entry.pno);
    event.set("billNo", entry.billNo);
    event.set("Amount", entry.amount);
    event.set("RunningTotal", runningTotal);
    event.set("Remarks", entry.remarks);
    event.update();
}

} // namespace

void postPatientTran(Books& books, const AccountEntry& entry) {
    postPatientTrans(books, {entry});
}

void postPatientTrans(Books& books, const QVector<AccountEntry>& entries) {
    std::optional<double> balance;
    for (const AccountEntry& entry : entries) {
        ORVANE_ASSERT(entry.pno == entries.first().pno);
        if (entry.clientCode != books.settings().privateClient)
            continue;
        if (!balance) {
            const Recordset last(books.connection, Sql("select top 1 RunningTotal from Tranxaction where PNo='")
                                                       << entry.pno << "' order by SNo Desc");
            balance = last.eof() ? 0.0 : last.number("RunningTotal");
        }
        balance = round2(*balance + entry.amount);
        addEvent(books, entry, *balance);
    }
    if (balance)
        books.connection.execute(Sql("update hPatients set DebtBF=")
                                 << *balance << "where pno = '" << entries.first().pno << "'");
}

} // namespace orvane
