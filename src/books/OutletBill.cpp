#include "books/OutletBill.h"

#include "books/Bill.h"
#include "books/BillLine.h"
#include "books/Debtor.h"
#include "books/Receipt.h"
#include "books/ReceiptNumber.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

QVector<BillLine> waitingLines(Books& books, const OutletBill& bill) {
    QVector<BillLine> lines;
    for (Recordset item(books.connection, Sql("select * from qryBillAccumPublic where attendedTo=0 and consultID='")
                                              << bill.billNo << "' order by SNo");
         !item.eof(); item.moveNext())
        lines.append({.sno = item.integer("SNo"),
                      .billNo = bill.billNo,
                      .date = bill.date,
                      .pno = bill.pno,
                      .name = item.text("Service"),
                      .price = item.number("UnitPrice"),
                      .qty = item.number("Qty"),
                      .subTotal = round2(item.number("Subtotal")),
                      .billType = item.text("billtype"),
                      .conID = item.value("conID"),
                      .coyName = books.settings().privateTariff,
                      .revType = item.text("revType"),
                      .capitated = "NO",
                      .billBy = books.actor().empID});
    return lines;
}

double sumOf(const QVector<BillLine>& lines) {
    double sum = 0;
    for (const BillLine& line : lines)
        sum += line.subTotal;
    return round2(sum);
}

void takeOutletReceipt(Books& books, const OutletBill& bill, const QString& receiptNo) {
    const OutletReceipt& receipt = *bill.receipt;
    addReceipt(books, {.date = bill.date,
                       .receiptNo = receiptNo,
                       .clinicID = receipt.clinicID,
                       .billNo = bill.billNo,
                       .pno = bill.pno,
                       .purpose = receipt.purpose,
                       .amountBilled = receipt.due,
                       .amountPaid = receipt.paid,
                       .words = receipt.words,
                       .payType = receipt.payType,
                       .chequeNo = receipt.payType == "CHEQUE" ? receipt.chequeNo : QString(),
                       .remarks = receipt.paid > receipt.due ? "DEPOSIT" : "PAYMENT"});
    books.audit({"Outsider: insert Payment for: " + bill.customer, bill.billNo, formatTwoDecimals(receipt.paid)});
}

} // namespace

Given<QString> saveOutletBill(Books& books, const OutletBill& bill) {
    const QVector<BillLine> lines = waitingLines(books, bill);
    if (lines.isEmpty())
        return Refusal::NothingToCollate;
    const double fresh = sumOf(lines);
    if (fresh != round2(bill.listed))
        return Refusal::OutletItemsMoved;
    QString receiptNo;
    if (bill.receipt) {
        const Given<ReceiptNumber> next = outletReceiptNumber(books.connection, books.settings().hospital, bill.billNo);
        if (!next)
            return next.refusal();
        receiptNo = next->number;
    }
    const Given<double> total = enlargeBill(books, {.date = bill.date,
                                                    .billNo = bill.billNo,
                                                    .pno = bill.pno,
                                                    .clientID = books.settings().privateTariff,
                                                    .amountBilled = fresh,
                                                    .amountPaid = bill.receipt ? bill.receipt->paid : 0,
                                                    .words = "XXX",
                                                    .broughtForward = 0,
                                                    .diagnosis = bill.diagnosis.isEmpty() ? "XXX" : bill.diagnosis,
                                                    .billType = "CASH"});
    if (!total)
        return total.refusal();
    addLines(books, lines);
    refreshBillTotal(books, bill.billNo);
    if (bill.receipt)
        takeOutletReceipt(books, bill, receiptNo);
    settleOutletDebt(books, bill.billNo, bill.date);
    books.connection.execute(Sql("update BillAccum set attendedTo=1 where consultID = '") << bill.billNo << "'");
    books.audit({"Outsider: insert Bill Summ for: " + bill.customer, bill.billNo, formatTwoDecimals(fresh)});
    books.record(bill.receipt ? receiptNo : bill.billNo, bill.receipt ? bill.receipt->paid : fresh);
    return receiptNo;
}

bool isOutletBill(const QString& billNo) {
    return billNo.size() > 6 && billNo.at(6) == QLatin1Char('/');
}

void settleOutletDebt(Books& books, const QString& billNo, QDate date) {
    const std::optional<Bill> bill = readBill(books.connection, billNo);
    if (!bill)
        return;
    settleBillDebtor(books, {.date = date,
                             .billNo = billNo,
                             .clientNo = books.settings().privateTariff,
                             .amount = round2(bill->amountBilled - bill->amountPaid)});
}

} // namespace orvane
