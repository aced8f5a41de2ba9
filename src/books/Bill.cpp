#include "books/Bill.h"

#include "data/words/Money.h"

#include <QLocale>

namespace orvane {

namespace {

void setColumns(Recordset& row, const Bill& bill) {
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
}

} // namespace

void addBill(Books& books, const Bill& bill) {
    Recordset row(books.connection, Sql("select * from Billing where 1=2"));
    row.addNew();
    setColumns(row, bill);
    row.update();
}

Given<double> enlargeBill(Books& books, const Bill& stated) {
    Recordset row(books.connection, Sql("select * from billing where billNo='") << stated.billNo << "'");
    if (!row.eof() && row.integer("isProcess") != 0)
        return Refusal::BillProcessed;
    Bill bill = stated;
    if (row.eof()) {
        row.addNew();
    } else {
        bill.amountBilled = round2(row.number("Amountbilled") + stated.amountBilled);
        bill.amountPaid = round2(row.number("AmountPaid") + stated.amountPaid);
    }
    setColumns(row, bill);
    row.set("isPaid", isPaidFlag(bill.amountPaid, bill.amountBilled));
    row.update();
    return bill.amountBilled;
}

void payBill(Books& books, const QString& billNo, double amount) {
    Recordset bill(books.connection, Sql("select * from Billing where billno='") << billNo << "'");
    if (bill.eof())
        return;
    const double paid = round2(bill.number("AmountPaid") + amount);
    bill.set("AmountPaid", paid);
    bill.set("isPaid", isPaidFlag(paid, bill.number("Amountbilled")));
    bill.update();
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
