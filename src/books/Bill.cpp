#include "books/Bill.h"

#include "books/Words.h"
#include "data/words/Money.h"

#include <QLocale>

namespace orvane {

namespace {

Sql amountChange(const QString& billNo, double amount) {
    return Sql("update  billing set AmountBilledInWord='")
           << getValInWord(amount) << "', amountBilled= " << amount << " where billno = '" << billNo << "'";
}

void compose(Recordset& row, const Bill& bill) {
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
    row.set("admdate", bill.admitted);
    row.set("DischDate", bill.discharged);
    row.set("isPaid", int(bill.isPaid));
}

Recordset rowOf(Connection& connection, const QString& billNo) {
    return Recordset(connection, Sql("select * from billing where billNo='") << billNo << "'");
}

} // namespace

std::optional<Bill> readBill(Connection& connection, const QString& billNo) {
    const Recordset row = rowOf(connection, billNo);
    if (row.eof())
        return std::nullopt;
    Bill bill{.date = row.date("bdate"),
              .billNo = row.text("billNo"),
              .pno = row.text("PNo"),
              .clientID = row.text("clientID"),
              .amountBilled = row.number("Amountbilled"),
              .amountPaid = row.number("AmountPaid"),
              .profFee = row.number("profFee"),
              .words = row.text("AmountBIlledInWord"),
              .diagnosis = row.text("diagnosis"),
              .admitted = row.date("admdate"),
              .discharged = row.date("DischDate"),
              .isPaid = row.integer("isPaid") == 1};
    if (!row.isNull("AmtBF"))
        bill.broughtForward = row.number("AmtBF");
    if (!row.isNull("billType"))
        bill.billType = row.text("billType");
    return bill;
}

void addBill(Books& books, const Bill& bill) {
    Recordset row(books.connection, Sql("select * from Billing where 1=2"));
    row.addNew();
    compose(row, bill);
    row.update();
    books.note({"BILL", bill.billNo, 1, 0});
}

void changeBill(Books& books, const Bill& bill) {
    Recordset row = rowOf(books.connection, bill.billNo);
    compose(row, bill);
    row.update();
}

Given<double> enlargeBill(Books& books, const Bill& stated) {
    if (isBillProcessed(books.connection, stated.billNo))
        return Refusal::BillProcessed;
    const std::optional<Bill> before = readBill(books.connection, stated.billNo);
    Bill bill = stated;
    if (before) {
        bill.amountBilled = round2(before->amountBilled + stated.amountBilled);
        bill.amountPaid = round2(before->amountPaid + stated.amountPaid);
        bill.admitted = before->admitted;
        bill.discharged = before->discharged;
    }
    bill.isPaid = isPaidFlag(bill.amountPaid, bill.amountBilled) == 1;
    if (before)
        changeBill(books, bill);
    else
        addBill(books, bill);
    return bill.amountBilled;
}

void payBill(Books& books, const QString& billNo, double amount) {
    Recordset row = rowOf(books.connection, billNo);
    if (row.eof())
        return;
    const double paid = round2(row.number("AmountPaid") + amount);
    row.set("AmountPaid", paid);
    row.set("isPaid", isPaidFlag(paid, row.number("Amountbilled")));
    row.update();
}

bool hasBill(Connection& connection, const QString& billNo) {
    return !Recordset(connection, Sql("select billNo from billing where billNo='") << billNo << "'").eof();
}

bool isBillProcessed(Connection& connection, const QString& billNo) {
    return !Recordset(connection, Sql("select * from billing where isprocess=1 and billNo='") << billNo << "'").eof();
}

std::optional<double> billDetailsTotal(Connection& connection, const QString& billNo) {
    const Recordset total(connection, Sql("select  PNo,Subtotal from vwBillingProcessDetailsGrouped where billno='")
                                          << billNo << "'");
    if (total.eof())
        return std::nullopt;
    return round2(total.number("SubTotal"));
}

void setBillAmount(Books& books, const QString& billNo, double amount) {
    books.connection.execute(amountChange(billNo, amount));
}

void processBills(Books& books, const QString& invNo, const QVector<BillToProcess>& bills) {
    QVector<Sql> changes;
    for (const BillToProcess& bill : bills) {
        if (bill.total)
            changes.append(amountChange(bill.billNo, *bill.total));
        changes.append(Sql("update Billing set isprocess=1, invNo='")
                       << invNo << "'where billno = '" << bill.billNo << "'");
    }
    books.connection.executeAll(changes);
}

void releaseBills(Books& books, const QString& invNo) {
    books.connection.execute(Sql("update  billing set isprocess=0,InvNo= 0 where InvNo = '") << invNo << "'");
}

std::optional<double> refreshBillTotal(Books& books, const QString& billNo) {
    const std::optional<double> total = billDetailsTotal(books.connection, billNo);
    if (total)
        setBillAmount(books, billNo, *total);
    return total;
}

void refreshBillFromLines(Books& books, const QString& billNo) {
    if (refreshBillTotal(books, billNo))
        return;
    const std::optional<Bill> bill = readBill(books.connection, billNo);
    if (bill && bill->amountBilled != 0)
        setBillAmount(books, billNo, 0);
}

std::optional<double> sumOfPayments(Connection& connection, const QString& billNo) {
    const Recordset payments(connection,
                             Sql("select  BillNo,sum(AmountPaid) as AmountPaid from payments where billno='")
                                 << billNo << "' group by BillNo");
    if (payments.eof())
        return std::nullopt;
    return round2(payments.number("AmountPaid"));
}

double refreshBillAmountPaid(Books& books, const QString& billNo) {
    const std::optional<double> paid = sumOfPayments(books.connection, billNo);
    if (paid)
        books.connection.execute(Sql("update  billing set AmountPaid= ")
                                 << *paid << " where billno = '" << billNo << "'");
    return paid.value_or(0);
}

int isPaidFlag(double paid, double billed) {
    return round2(paid) >= round2(billed) ? 1 : 0;
}

} // namespace orvane
