#include "books/CashPosting.h"

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
                if (!waits(books.connection, first, last))
                    return Refusal::NothingToPost;
                noteNewest(books.connection, note);
                return readLegs(books.connection, first, last);
            },
            .trail = LedgerTrail{context.today,
                                 "ReceiptDate between " + first.toString(dayForm) + " and " + last.toString(dayForm),
                                 receipts}};
}

} // namespace orvane
