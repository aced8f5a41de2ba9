#include "books/Payment.h"

#include "data/words/Money.h"

namespace orvane {

namespace {

/// What one row of PaymentDetails says beside the receipt.
struct Share {
    qlonglong sno = 0;   ///< 0 on the two summary rows
    QDate billDate = {}; ///< none on the summary rows
    QString billItem, accountNo, revType;
    double paid = 0, toPay = 0; ///< naira
};

void addShare(Books& books, const Receipt& receipt, const Share& share) {
    Recordset row(books.connection, Sql("select * from PaymentDetails where 1=2"));
    row.addNew();
    row.set("snoID", share.sno);
    row.set("ReceiptDate", receipt.date);
    row.set("BillDate", share.billDate);
    row.set("ReceiptNo", receipt.receiptNo);
    row.set("billNo", receipt.billNo);
    row.set("AmountPaid", share.paid);
    row.set("AmountToPay", share.toPay);
    row.set("AccountNo", share.accountNo);
    row.set("revType", share.revType);
    row.set("BillItem", share.billItem);
    row.set("isPost", 0);
    row.update();
}

/// By name: a second line of the same item counts as covered with the first. By number too: a name that ends in a blank
/// is not found by its name.
void markCovered(Books& books, const QString& billNo, const Share& share) {
    books.connection.execute(Sql("update BillAccum set isRct=1 where consultID = '")
                             << billNo << "' and (drgName ='" << share.billItem << "' or SNo=" << share.sno << ")");
    books.connection.execute(Sql("update billingDetails set isRct=1 where billNo = '")
                             << billNo << "' and (drgName ='" << share.billItem << "' or SNo=" << share.sno << ")");
}

} // namespace

void addPaymentTypes(Books& books, const Receipt& receipt, const QVector<WayOfPayment>& ways) {
    for (const WayOfPayment& way : ways)
        if (way.amount > 0)
            addPaymentType(books, receipt, way);
}

void addPaymentType(Books& books, const Receipt& receipt, const WayOfPayment& way) {
    Recordset row(books.connection, Sql("select * from PaymentTypes where 1=2"));
    row.addNew();
    row.set("ReceiptDate", receipt.date);
    row.set("ReceiptNo", receipt.receiptNo);
    row.set("AmountPaid", way.amount);
    row.set("PayType", way.payType);
    row.set("AccountNo", way.accountNo);
    row.set("isPost", 0);
    row.update();
}

void addSummaryShare(Books& books, const Receipt& receipt, const QString& item, double amount) {
    addShare(books, receipt,
             {.billItem = item,
              .accountNo = books.settings().suspenseAccount,
              .revType = books.settings().suspenseRevenue,
              .paid = amount,
              .toPay = amount});
}

std::optional<double> takeBackShares(Books& books, const Receipt& reversal, const QString& reversedNo) {
    Recordset share(books.connection,
                    Sql("select snoID,BillDate,BillItem,AccountNo,revType,AmountPaid,AmountToPay from PaymentDetails "
                        "where ReceiptNo='")
                        << reversedNo << "' order by SNo");
    if (share.eof())
        return std::nullopt;
    double taken = 0;
    for (; !share.eof(); share.moveNext()) {
        taken -= share.number("AmountPaid");
        addShare(books, reversal,
                 {.sno = share.integer("snoID"),
                  .billDate = share.date("BillDate"),
                  .billItem = share.text("BillItem"),
                  .accountNo = share.text("AccountNo"),
                  .revType = share.text("revType"),
                  .paid = -share.number("AmountPaid"),
                  .toPay = -share.number("AmountToPay")});
    }
    return round2(taken);
}

QMap<QString, double> incomeByWay(Connection& connection, QDate day) {
    QMap<QString, double> income;
    Recordset shares(connection, Sql("select PayType, AmountPaid from PaymentTypes where ReceiptDate = '")
                                     << day
                                     << "' union all select y.PayType, y.AmountPaid from Payments y where "
                                        "y.ReceiptDate = '"
                                     << day
                                     << "' and not exists (select 1 from PaymentTypes t where t.ReceiptNo = "
                                        "y.ReceiptNo and t.ReceiptDate = y.ReceiptDate)");
    for (; !shares.eof(); shares.moveNext())
        income[shares.text("PayType").trimmed().toUpper()] += shares.number("AmountPaid");
    erase_if(income, [](std::pair<const QString&, double&> way) { return round2(way.second) == 0; });
    return income;
}

void distributePayment(Books& books, const Receipt& receipt) {
    Recordset lines(
        books.connection,
        Sql("select SNo,billDate,BillItem,subtotal ,revtype,AccountNo from vwRctForAcctDetails where billno='")
            << receipt.billNo << "' order by SNo");
    if (lines.eof()) {
        addSummaryShare(books, receipt, "DEPOSIT_PAYMENT", receipt.amountPaid);
        return;
    }
    double left = round2(receipt.amountPaid);
    for (; !lines.eof(); lines.moveNext()) {
        const double toPay = round2(lines.number("subtotal"));
        const Share share{.sno = lines.integer("SNo"),
                          .billDate = lines.date("billDate"),
                          .billItem = lines.text("BillItem"),
                          .accountNo = lines.text("AccountNo"),
                          .revType = lines.text("revtype"),
                          .paid = left >= toPay ? toPay : left,
                          .toPay = toPay};
        addShare(books, receipt, share);
        markCovered(books, receipt.billNo, share);
        left = round2(left - share.paid);
        if (left <= 0)
            return;
    }
    addSummaryShare(books, receipt, "BALANCE_PAYMENT", left);
}

} // namespace orvane
