#include "books/CashPosting.h"

#include "books/CashSpread.h"

namespace orvane {

namespace {

const QString receipts = "RECEIPT";
const QString dayForm = "dd/MM/yyyy";

bool waits(Connection& billing, QDate first, QDate last) {
    return !Recordset(billing,
                      Sql("select ReceiptDate,AccountToDebit,AmountPaid,PayType from vwPaymentTypesSummGrid where "
                          "ispost=0 and ReceiptDate between '")
                          << first << "' and '" << last << "'")
                .eof();
}

QVector<LedgerEntry> readLegs(Connection& billing, QDate first, QDate last) {
    QVector<LedgerEntry> entries;
    Recordset row(billing, Sql("select ReceiptDate,AccountNo,AmountPaid,RevType,Remarks from "
                               "vwPaymentDetailsSummForCashPosting where ispost=0 and ReceiptDate between '")
                               << first << "' and '" << last << "'");
    for (; !row.eof(); row.moveNext()) {
        const bool credit = row.text("Remarks") == QLatin1String("CREDIT");
        if (!credit && row.text("Remarks") != QLatin1String("DEBIT"))
            continue;
        const double amount = row.number("AmountPaid");
        entries.append({{{row.date("ReceiptDate"), row.text("AccountNo"), credit ? -amount : amount,
                          (credit ? "Amount Recvd for " : "Payment through ") + row.text("RevType")}}});
    }
    return entries;
}

/// The newest rows that there are behind the gate: what comes later is of another posting.
void noteNewest(Connection& billing, PostingNote& note) {
    const Recordset newest(billing, Sql("select (select max(SNo) from PaymentDetails) as Detail,(select max(SNo) from "
                                        "PaymentTypes) as Type,(select max(SNo) from Payments) as Receipt"));
    note.lastDetail = newest.integer("Detail");
    note.lastType = newest.integer("Type");
    note.lastReceipt = newest.integer("Receipt");
}

} // namespace

Posting cashPosting(const BookContext& context, QDate first, QDate last) {
    return {.action = "POST CASH",
            .note = {.kind = receipts, .firstDay = first, .lastDay = last},
            .read = [first, last](Books& books, PostingNote& note) -> Given<QVector<LedgerEntry>> {
                spreadUnspread(books, first, last);
                if (!waits(books.connection, first, last))
                    return Refusal::NothingToPost;
                noteNewest(books.connection, note);
                return readLegs(books.connection, first, last);
            },
            .trail = LedgerTrail{context.today,
                                 "ReceiptDate between " + first.toString(dayForm) + " and " + last.toString(dayForm),
                                 receipts}};
}

Given<Saved> changeCashAccount(Books& books, const DayOfCash& cash, const QString& account) {
    if (isBeingPosted(books.connection, receipts, cash.date, cash.date))
        return Refusal::BeingPosted;
    books.connection.execute(Sql("update paymentTypes set  AccountNo='")
                             << account << "' where receiptDate='" << cash.date << "'and AccountNo='" << cash.account
                             << "' and PayType='" << cash.payType << "'");
    books.record(cash.date.toString(Qt::ISODate) + ' ' + cash.payType, 0);
    return Saved{};
}

void addHandShare(Books& books, const HandShare& share) {
    Recordset row(books.connection, Sql("select * from paymentDetails where 1=2"));
    row.addNew();
    row.set("ReceiptNo", share.receiptNo);
    row.set("billNo", share.billNo);
    row.set("ReceiptDate", share.date);
    row.set("AmountPaid", share.amount);
    row.set("AccountNo", "");
    row.set("revType", share.revType);
    row.set("isPost", 0);
    row.set("AmountToPay", share.amount);
    row.update();
    books.record(share.receiptNo, share.amount);
}

} // namespace orvane
