#include "books/Bill.h"

#include "data/words/Money.h"

#include <QLocale>

namespace orvane {

void addBill(Books& books, const Bill& bill) {
    Recordset row(books.connection, Sql("select * from Billing where 1=2"));
    row.addNew();
    row.set("bdate", bill.date);
    row.set("billNo", bill.billNo);
    row.set("PNo", bill.pno);
    row.set("clientID", bill.clientID);
    row.set("Amountbilled", bill.amountBilled);
    row.set("AmountBIlledInWord", bill.words);
    row.set("AmountPaid", bill.amountPaid);
    row.set("profFee", bill.profFee);
    if (bill.broughtForward)
        row.set("AmtBF", *bill.broughtForward);
    row.set("billingMonth", QLocale::c().standaloneMonthName(bill.date.month()));
    row.set("billingYear", QString::number(bill.date.year()));
    row.set("diagnosis", bill.diagnosis);
    row.set("billType", bill.billType ? QVariant(*bill.billType) : QVariant());
    row.update();
}

bool hasBill(Connection& connection, const QString& billNo) {
    return !Recordset(connection, Sql("select billNo from billing where billNo='") << billNo << "'").eof();
}

bool isBillProcessed(Connection& connection, const QString& billNo) {
    return !Recordset(connection, Sql("select * from billing where isprocess=1 and billNo='") << billNo << "'").eof();
}

double refreshBillAmountPaid(Books& books, const QString& billNo) {
    const Recordset payments(books.connection,
                             Sql("select  BillNo,sum(AmountPaid) as AmountPaid from payments where billno='")
                                 << billNo << "' group by BillNo");
    if (payments.eof())
        return 0;
    const double paid = round2(payments.number("AmountPaid"));
    books.connection.execute(Sql("update  billing set AmountPaid= ") << paid << " where billno = '" << billNo << "'");
    return paid;
}

int isPaidFlag(double paid, double billed) {
    return round2(paid) >= round2(billed) ? 1 : 0;
}

} // namespace orvane
