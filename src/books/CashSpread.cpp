#include "books/CashSpread.h"

#include "books/BillReceipt.h"
#include "books/Payment.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

double totalOf(Connection& connection, Sql&& select, QDate first, QDate last) {
    const Recordset row(connection, select << first << "' and '" << last << "'");
    return round2(row.number("totAmt"));
}

/// A receipt, and what its rows have spread so far.
struct SpreadReceipt {
    Receipt receipt;
    double spread = 0; ///< naira
    bool isSpread = false;
};

/// Those of the days whose rows do not make what was paid. Receipts of one number and day are taken together, under the
/// newest.
QVector<SpreadReceipt> unlikeReceipts(Connection& connection, const Sql& sql) {
    QVector<SpreadReceipt> found;
    for (Recordset row(connection, sql); !row.eof(); row.moveNext()) {
        SpreadReceipt one;
        one.receipt.date = row.date("ReceiptDate");
        one.receipt.receiptNo = row.text("ReceiptNo");
        one.receipt.billNo = row.text("billNo");
        one.receipt.purpose = row.text("PaymentFor");
        one.receipt.payType = row.text("PayType");
        one.receipt.amountPaid = round2(row.number("Paid"));
        one.isSpread = !row.isNull("Spread");
        one.spread = one.isSpread ? round2(row.number("Spread")) : 0;
        if (one.spread != one.receipt.amountPaid)
            found.append(one);
    }
    return found;
}

Receipt receiptOf(Connection& connection, const QString& receiptNo) {
    const Recordset row(connection, Sql("select top 1 ReceiptDate,billNo,AmountPaid from Payments where ReceiptNo='")
                                        << receiptNo << "' order by SNo desc");
    Receipt receipt;
    receipt.receiptNo = receiptNo;
    if (!row.eof()) {
        receipt.date = row.date("ReceiptDate");
        receipt.billNo = row.text("billNo");
        receipt.amountPaid = round2(row.number("AmountPaid"));
    }
    return receipt;
}

/// The reversed receipt is spread first where it is not, so that both stand under the same revenue types.
std::optional<double> takeBackReversed(Books& books, const Receipt& reversal) {
    const QString reversedNo = reversedReceipt(reversal.purpose);
    if (reversedNo.isEmpty())
        return std::nullopt;
    if (const std::optional<double> taken = takeBackShares(books, reversal, reversedNo))
        return taken;
    const Receipt reversed = receiptOf(books.connection, reversedNo);
    if (reversed.amountPaid <= 0)
        return std::nullopt;
    distributePayment(books, reversed);
    return takeBackShares(books, reversal, reversedNo);
}

/// What the shares of the reversed receipt leave of a reversal is of the suspense account.
void spreadReversal(Books& books, const Receipt& reversal) {
    const double left = round2(reversal.amountPaid - takeBackReversed(books, reversal).value_or(0));
    if (left != 0)
        addSummaryShare(books, reversal, "BALANCE_PAYMENT", left);
}

void spread(Books& books, const SpreadReceipt& one) {
    if (one.isSpread)
        addSummaryShare(books, one.receipt, "BALANCE_PAYMENT", round2(one.receipt.amountPaid - one.spread));
    else if (one.receipt.amountPaid < 0)
        spreadReversal(books, one.receipt);
    else
        distributePayment(books, one.receipt);
}

void rebuild(const Desk& desk, QDate first, QDate last, bool details, bool types) {
    desk.save<Saved>(
        "REBUILD CASH",
        [&](Books& books) -> Given<Saved> {
            if (details)
                rebuildPaymentDetails(books, first, last);
            if (types)
                rebuildPaymentTypes(books, first, last);
            books.record(first.toString(Qt::ISODate) + " - " + last.toString(Qt::ISODate), 0);
            return Saved{};
        });
}

QVector<SpreadReceipt> unlikeByWay(Connection& connection, QDate first, QDate last) {
    return unlikeReceipts(
        connection,
        Sql("select p.ReceiptDate,p.ReceiptNo,max(p.billNo) as billNo,max(p.PaymentFor) as PaymentFor,max(p.PayType) "
            "as PayType,sum(p.AmountPaid) as Paid,(select sum(t.AmountPaid) from PaymentTypes t where "
            "t.ReceiptNo=p.ReceiptNo and t.ReceiptDate=p.ReceiptDate) as Spread from Payments p where p.ReceiptDate "
            "between '")
            << first << "' and '" << last << "' group by p.ReceiptDate,p.ReceiptNo order by max(p.SNo)");
}

QVector<SpreadReceipt> unlikeByType(Connection& connection, QDate first, QDate last) {
    return unlikeReceipts(
        connection,
        Sql("select p.ReceiptDate,p.ReceiptNo,max(p.billNo) as billNo,max(p.PaymentFor) as PaymentFor,max(p.PayType) "
            "as PayType,sum(p.AmountPaid) as Paid,(select sum(d.AmountPaid) from PaymentDetails d where "
            "d.ReceiptNo=p.ReceiptNo and d.ReceiptDate=p.ReceiptDate) as Spread from Payments p where p.ReceiptDate "
            "between '")
            << first << "' and '" << last << "' group by p.ReceiptDate,p.ReceiptNo order by max(p.SNo)");
}

void addWay(Books& books, const SpreadReceipt& one) {
    const QMap<QString, QString>& accounts = books.settings().wayAccounts;
    const QString payType = one.receipt.payType.section(u'/', 0, 0).trimmed().toUpper();
    addPaymentType(books, one.receipt,
                   {.payType = payType,
                    .accountNo = accounts.value(payType, accounts.value("CASH")),
                    .amount = round2(one.receipt.amountPaid - one.spread)});
}

bool isAny(Connection& connection, Sql&& select, QDate first, QDate last) {
    return !Recordset(connection, select << first << "' and '" << last << "'").eof();
}

} // namespace

CashTotals readCashTotals(Connection& connection, QDate first, QDate last) {
    return {totalOf(connection, Sql("select sum(AmountPaid) as totAmt from payments where receiptDate between '"),
                    first, last),
            totalOf(connection, Sql("select sum(AmountPaid) as totAmt from paymentTypes where receiptDate between '"),
                    first, last),
            totalOf(connection, Sql("select sum(AmountPaid) as totAmt from paymentDetails where receiptDate between '"),
                    first, last)};
}

void rebuildPaymentTypes(Books& books, QDate first, QDate last) {
    for (const SpreadReceipt& one : unlikeByWay(books.connection, first, last))
        addWay(books, one);
}

void rebuildPaymentDetails(Books& books, QDate first, QDate last) {
    for (const SpreadReceipt& one : unlikeByType(books.connection, first, last))
        spread(books, one);
}

void rebuildCash(const Desk& desk, QDate first, QDate last) {
    rebuild(desk, first, last, true, true);
}

void rebuildUnlike(const Desk& desk, QDate first, QDate last) {
    const auto unlike = [&](Connection&& connection) {
        const CashTotals totals = readCashTotals(connection, first, last);
        return std::pair(totals.received != totals.distributed, totals.received != totals.byWay);
    };
    const auto [details, types] = unlike(desk.open());
    if (details || types)
        rebuild(desk, first, last, details, types);
}

void spreadUnspread(Books& books, QDate first, QDate last) {
    Connection& connection = books.connection;
    if (isAny(connection,
              Sql("select top 1 p.SNo from Payments p where p.isPost=0 and p.AmountPaid<>0 and not exists (select "
                  "d.SNo from PaymentDetails d where d.ReceiptNo=p.ReceiptNo) and p.ReceiptDate between '"),
              first, last))
        for (const SpreadReceipt& one : unlikeByType(connection, first, last))
            if (!one.isSpread)
                spread(books, one);
    if (isAny(connection,
              Sql("select top 1 p.SNo from Payments p where p.isPost=0 and p.AmountPaid<>0 and not exists (select "
                  "t.SNo from PaymentTypes t where t.ReceiptNo=p.ReceiptNo) and p.ReceiptDate between '"),
              first, last))
        for (const SpreadReceipt& one : unlikeByWay(connection, first, last))
            if (!one.isSpread)
                addWay(books, one);
}

} // namespace orvane
