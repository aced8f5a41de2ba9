#include "books/Voucher.h"

#include "data/words/Money.h"

namespace orvane {

namespace {

void addPayment(Books& books, const VoucherPayment& payment, const QString& remarks) {
    Recordset row(books.connection, Sql("Select * from hExpensePay where 1=2"));
    row.addNew();
    row.set("vouchNo", payment.voucher);
    row.set("PayDate", payment.date);
    row.set("PayTime", payment.time.toString("HH:mm:ss"));
    row.set("Amount", payment.total());
    row.set("Paidby", books.actor().user);
    row.set("Description", nullIfEmpty(payment.description));
    row.set("REcipient", payment.recipient);
    row.set("Remarks", remarks);
    row.update();
}

/// True: it is there and was not paid.
bool raiseAmountPaid(Books& books, const VoucherPayment& payment, const QString& remarks) {
    Recordset voucher(books.connection, Sql("select * from hExpenseApprvFinal where vouchNo='")
                                            << payment.voucher << "'");
    if (voucher.eof() || voucher.integer("isPaid") != 0)
        return false;
    voucher.set("AmountPaid", round2(voucher.number("AmountPaid") + payment.total()));
    voucher.set("Paidby", books.actor().user);
    voucher.set("Remarks", remarks);
    voucher.update();
    return true;
}

void addItem(Books& books, const VoucherPayment& payment, const VoucherItem& item) {
    Recordset row(books.connection, Sql("Select * from hExpensePayDetails where 1=2"));
    row.addNew();
    row.set("vouchNo", payment.voucher);
    row.set("PayDate", payment.date);
    row.set("PayTime", payment.time.toString("HH:mm:ss"));
    row.set("Description", nullIfEmpty(item.description));
    row.set("Qty", item.qty);
    row.set("Price", item.price);
    row.set("Amount", item.amount);
    row.set("AcctNoDebit", item.debit);
    row.set("AcctNoCreit", item.credit);
    if (!item.chequeNo.isEmpty()) {
        row.set("ChequeNo", item.chequeNo);
        row.set("ValueDate", item.valueDate);
    }
    row.set("PayType", item.chequeNo.isEmpty() ? "CASH" : "CHEQUE");
    row.set("ItemCode", nullIfEmpty(item.itemCode));
    row.set("isPost", 0);
    row.set("Remarks", paymentLine(payment.voucher, item));
    row.update();
    books.connection.execute(Sql("update hExpenseDetailsApprvFinal set AttendedTo=1,isApprv=1 where ExpID=")
                             << item.expID.toLongLong());
}

} // namespace

double VoucherPayment::total() const {
    double sum = 0;
    for (const VoucherItem& item : items)
        sum += item.amount;
    return round2(sum);
}

QString paymentLine(const QString& voucher, const VoucherItem& item) {
    if (item.chequeNo.isEmpty())
        return "Paid Cash:( Vouch No: " + voucher + ") for: " + item.description;
    return "Paid via Cheque ( Cheq No: " + item.chequeNo + " And Vouch No: " + voucher + ") for: " + item.description;
}

Given<Saved> payVoucher(Books& books, const VoucherPayment& payment) {
    const QString remarks = payment.items.isEmpty() ? QString() : paymentLine(payment.voucher, payment.items.last());
    addPayment(books, payment, remarks);
    if (!raiseAmountPaid(books, payment, remarks))
        return Refusal::VoucherPaid;
    for (const VoucherItem& item : payment.items)
        addItem(books, payment, item);
    books.connection.execute(Sql("update hExpenseApprvFinal set isPaid=1,isDone=1 where vouchNo='")
                             << payment.voucher << "'");
    books.record(payment.voucher, payment.total());
    return Saved{};
}

void flagInJournal(Books& books, qlonglong expID) {
    books.connection.execute(Sql("update hExpenseDetailsApprvFinal  set ispost=1 where ExpID=") << expID);
    books.record(QString::number(expID), 0);
}

} // namespace orvane
