#include "books/VoucherPosting.h"

namespace orvane {

namespace {

const QString expense = "EXPENSE";

Given<QVector<LedgerEntry>> readItems(Books& books, const PostingNote& note) {
    QVector<LedgerEntry> entries;
    Recordset row(books.connection, Sql("select SNo,PayDate,VouchNo,Description,Amount,AcctNoCreit,AcctNoDebit from "
                                        "hExpensePayDetails where isPost=0 and VouchNo='")
                                        << note.source << "'  order by SNo ");
    for (; !row.eof(); row.moveNext()) {
        const QDate paid = row.date("PayDate");
        const double amount = row.number("Amount");
        const QString description = row.text("Description");
        entries.append({{{paid, row.text("AcctNoDebit"), amount, description},
                         {paid, row.text("AcctNoCreit"), -amount, description}}});
    }
    if (entries.isEmpty())
        return Refusal::NothingToPost;
    return entries;
}

/// Whether the ledger has entries of the voucher whose items are not flagged. A voucher may be approved and paid again:
/// the items of its next payment are then no part of what the ledger has.
bool hasUnflaggedEntries(const Desk& billing, Connection& accounting, const PostingNote& note) {
    Connection connection = billing.open();
    const Recordset flagged(connection, Sql("select count(*) as n from hExpensePayDetails where isPost=1 and VouchNo='")
                                            << note.source << "'");
    constexpr qlonglong legsOfItem = 2;
    return countLegs(accounting, note.source, note.kind) > legsOfItem * flagged.integer("n");
}

QString flagKnownVoucher(const Desk& billing, Connection& accounting, const PostingNote& note) {
    if (!hasUnflaggedEntries(billing, accounting, note))
        return {};
    billing.save<Saved>("FLAG VOUCHER", [&](Books& books) -> Given<Saved> {
        flagPosted(books, note);
        books.record(note.source, 0);
        return Saved{};
    });
    return QStringLiteral("The voucher %1 was in the ledger already: it is flagged as posted now.").arg(note.source);
}

} // namespace

Posting voucherPosting(const QString& voucher, QDate paid) {
    const PostingNote note{.kind = expense, .source = voucher, .firstDay = paid, .lastDay = paid};
    return {.action = "POST VOUCHER",
            .note = note,
            .read = [](Books& books, PostingNote& noted) { return readItems(books, noted); },
            .trail = LedgerTrail{paid, voucher, expense},
            .flagKnown = [note](const Desk& billing,
                                Connection& accounting) { return flagKnownVoucher(billing, accounting, note); }};
}

Given<QStringList> postVouchersLeftOver(LedgerDesk& ledgerDesk) {
    Connection billing = ledgerDesk.billing().open();
    QStringList posted;
    for (Recordset row(billing, Sql("select VouchNo,max(PayDate) as PayDate from hExpensePayDetails where isPost=0 "
                                    "group by VouchNo order by VouchNo"));
         !row.eof(); row.moveNext()) {
        const Given<int> legs = ledgerDesk.post(voucherPosting(row.text("VouchNo"), row.date("PayDate")));
        if (legs)
            posted << row.text("VouchNo");
        else if (legs.refusal() != Refusal::NothingToPost)
            return legs.refusal();
    }
    return posted;
}

} // namespace orvane
