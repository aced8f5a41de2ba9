#include "receipts/ReceiptRows.h"

#include "data/words/Money.h"

namespace orvane {

namespace {

/// Less than this is no money, only what the doubles leave behind.
constexpr double nothingLeft = 1e-6;

/// One row of PaymentDetails, beside what the receipt says.
struct Share {
    qlonglong sno = 0; ///< 0 on the two summary rows
    QDate billDate;    ///< none on the summary rows
    QString billItem, accountNo, revType;
    double paid = 0, toPay = 0; ///< naira
};

void addShare(Connection& connection, const ReceiptEntry& receipt, const Share& share) {
    Recordset row(connection, Sql("select * from PaymentDetails where 1=2"));
    row.addNew();
    row.set("snoID", share.sno);
    row.set("ReceiptDate", receipt.receiptDate);
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

/// Money that no line takes goes to the suspense account.
void addSummaryShare(Program& program, Connection& connection, const ReceiptEntry& receipt, const QString& item,
                     double amount) {
    const Session& session = program.session;
    Share share;
    share.billItem = item;
    share.accountNo = session.gAcctSusp;
    share.revType = session.gAcctPostAuto ? session.gAcctSuspDesc : "OTHERS";
    share.paid = share.toPay = amount;
    addShare(connection, receipt, share);
}

} // namespace

void addPayment(Program& program, Connection& connection, const ReceiptEntry& receipt) {
    Recordset row(connection, Sql("select * from Payments where 1=2"));
    row.addNew();
    row.set("ReceiptDate", receipt.receiptDate);
    row.set("ReceiptNo", receipt.receiptNo);
    row.set("ClinicID", receipt.clinicID);
    row.set("billNo", receipt.billNo);
    row.set("PNo", receipt.pno);
    row.set("PaymentFor", receipt.paymentFor);
    row.set("Amountbilled", receipt.amountBilled);
    row.set("AmountPaid", receipt.amountPaid);
    row.set("AmountInWord", receipt.amountInWord);
    row.set("ReceivedBy", receipt.receivedBy.isEmpty() ? program.session.gEmpID : receipt.receivedBy);
    row.set("PayType", receipt.payType);
    if (!receipt.chequeNo.isEmpty())
        row.set("ChequeNo", receipt.chequeNo);
    row.set("rTime", receipt.time.toString("HH:mm"));
    row.set("Remarks", receipt.remarks);
    row.update();
}

void addPaymentTypes(Connection& connection, const ReceiptEntry& receipt, const QVector<PaymentWay>& ways) {
    Recordset row(connection, Sql("select * from PaymentTypes where 1=2"));
    for (const PaymentWay& way : ways) {
        if (way.amount <= 0)
            continue;
        row.addNew();
        row.set("ReceiptDate", receipt.receiptDate);
        row.set("ReceiptNo", receipt.receiptNo);
        row.set("AmountPaid", way.amount);
        row.set("PayType", way.payType);
        row.set("AccountNo", way.accountNo);
        row.set("isPost", 0);
        row.update();
    }
}

void distributePayment(Program& program, Connection& connection, const ReceiptEntry& receipt) {
    Recordset lines(
        connection,
        Sql("select SNo,billDate,BillItem,subtotal ,revtype,AccountNo from vwRctForAcctDetails where billno='")
            << receipt.billNo << "' order by SNo");
    if (lines.eof()) {
        addSummaryShare(program, connection, receipt, "DEPOSIT_PAYMENT", receipt.amountPaid);
        return;
    }
    double left = receipt.amountPaid;
    for (; !lines.eof(); lines.moveNext()) {
        const double subTotal = lines.number("subtotal");
        Share share;
        share.sno = lines.integer("SNo");
        share.billDate = lines.date("billDate");
        share.billItem = lines.text("BillItem");
        share.accountNo = lines.text("AccountNo");
        share.revType = lines.text("revtype");
        share.paid = left > subTotal - nothingLeft ? subTotal : left;
        share.toPay = subTotal;
        addShare(connection, receipt, share);
        // By name: a second line of the same item counts as covered with the first. By number too: a name that ends
        // in a blank is not found by its name.
        connection.execute(Sql("update BillAccum set isRct=1 where consultID = '")
                           << receipt.billNo << "' and (drgName ='" << share.billItem << "' or SNo=" << share.sno
                           << ")");
        connection.execute(Sql("update billingDetails set isRct=1 where billNo = '")
                           << receipt.billNo << "' and (drgName ='" << share.billItem << "' or SNo=" << share.sno
                           << ")");
        left -= share.paid;
        if (left < nothingLeft)
            return;
    }
    addSummaryShare(program, connection, receipt, "BALANCE_PAYMENT", left);
}

} // namespace orvane
