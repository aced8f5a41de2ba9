#include "books/PatientAccount.h"

#include "data/words/Money.h"

namespace orvane {

void postPatientTran(Books& books, const AccountEntry& entry) {
    if (entry.clientCode != books.settings().privateClient)
        return;
    const Recordset last(books.connection, Sql("select top 1 RunningTotal from Tranxaction where PNo='")
                                               << entry.pno << "' order by SNo Desc");
    const double runningTotal = round2((last.eof() ? 0.0 : last.number("RunningTotal")) + entry.amount);

    Recordset event(books.connection, Sql("select * from Tranxaction where 1=2"));
    event.addNew();
    event.set("entryDate", books.today());
    event.set("PNo", entry.pno);
    event.set("billNo", entry.billNo);
    event.set("Amount", entry.amount);
    event.set("RunningTotal", runningTotal);
    event.set("Remarks", entry.remarks);
    event.update();

    books.connection.execute(Sql("update hPatients set DebtBF=")
                             << runningTotal << "where pno = '" << entry.pno << "'");
}

} // namespace orvane
