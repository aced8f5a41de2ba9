#include "books/BillReceipt.h"

#include "books/Bill.h"
#include "books/Limits.h"
#include "books/OutletBill.h"
#include "books/PatientAccount.h"
#include "books/Receipt.h"
#include "books/ReceiptNumber.h"
#include "books/User.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

const QString clinic = "SALES"; ///< of every receipt against a bill
const QString reversing = "REVERSAL for RctNo: ";

/// Writes the receipt under the next number. `audited`: the action in the audit trail.
Given<QString> enter(Books& books, Receipt receipt, const QString& audited) {
    const Given<ReceiptNumber> next = generatedReceiptNumber(books.connection);
    if (!next)
        return next.refusal();
    receipt.receiptNo = next->number;
    addReceipt(books, receipt);
    // An outlet's customer has no running account: what he owes stands in hDebtors.
    const bool outlet = isOutletBill(receipt.billNo);
    if (!outlet)
        postPatientTran(books, {.pno = receipt.pno,
                                .billNo = receipt.billNo,
                                .amount = receipt.amountPaid,
                                .clientCode = books.settings().privateClient,
                                .remarks = "Payment"});
    books.audit({audited, receipt.billNo, formatTwoDecimals(receipt.amountPaid)});
    payBill(books, receipt.billNo, receipt.amountPaid);
    if (outlet)
        settleOutletDebt(books, receipt.billNo, receipt.date);
    books.record(receipt.receiptNo, receipt.amountPaid);
    return receipt.receiptNo;
}

} // namespace

Given<QString> takeReceipt(Books& books, const BillReceipt& receipt) {
    ORVANE_ASSERT(receipt.amount >= 0);
    if (const auto refusal = whyNotDated(books, receipt.date))
        return *refusal;
    return enter(books,
                 {.date = receipt.date,
                  .receiptNo = {},
                  .clinicID = clinic,
                  .billNo = receipt.billNo,
                  .pno = receipt.pno,
                  .purpose = receipt.purpose,
                  .amountBilled = receipt.due,
                  .amountPaid = receipt.amount,
                  .words = receipt.words,
                  .payType = receipt.payType,
                  .remarks = "PAYMENT"},
                 "insert Payment for: " + receipt.customer);
}

Given<QString> reverseReceipt(Books& books, const Reversal& reversal) {
    if (!holdsRole(books, "MANAGEMENT"))
        return Refusal::NoReversalRight;
    const QString purpose = reversalPurpose(reversal.receiptNo);
    return enter(books,
                 {.date = reversal.date,
                  .receiptNo = {},
                  .clinicID = clinic,
                  .billNo = reversal.billNo,
                  .pno = reversal.pno,
                  .purpose = purpose,
                  .amountBilled = 0 - reversal.billed,
                  .amountPaid = 0 - reversal.paid,
                  .words = reversal.words,
                  .payType = "CASH",
                  .remarks = purpose},
                 "Reversal Entry (Payment) for: " + reversal.customer);
}

QString reversalPurpose(const QString& receiptNo) {
    return reversing + receiptNo;
}

QString reversedReceipt(const QString& purpose) {
    return purpose.startsWith(reversing) ? purpose.mid(reversing.size()) : QString();
}

} // namespace orvane
