#include "books/ManualReceipt.h"

#include "books/Bill.h"
#include "books/Limits.h"
#include "books/PatientAccount.h"
#include "books/Receipt.h"
#include "books/ReceiptNumber.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

/// The bill's row; what nobody has worded is marked so. Gives the bill's new total in naira.
Given<double> billPaper(Books& books, const ManualReceipt& paper) {
    return enlargeBill(books, {.date = paper.date,
                               .billNo = paper.billNo,
                               .pno = paper.pno,
                               .clientID = paper.clientID,
                               .amountBilled = paper.billed,
                               .amountPaid = paper.paid,
                               .words = "XXX",
                               .broughtForward = 0,
                               .diagnosis = "XXX",
                               .billType = "CASH"});
}

} // namespace

Given<QString> enterManualReceipt(Books& books, const ManualReceipt& paper) {
    if (const auto refusal = whyNotDated(books, paper.date))
        return *refusal;
    const QString receiptNo = paperReceiptNumber(paper.paperNo);
    const QString privateClient = books.settings().privateClient;
    const Given<double> total = billPaper(books, paper);
    if (!total)
        return total.refusal();
    postPatientTran(books, {paper.pno, paper.billNo, 0 - paper.billed, privateClient, "Payment"});
    // The remark is "CASH" whatever the pay type.
    addReceipt(books, {.date = paper.date,
                       .receiptNo = receiptNo,
                       .clinicID = paper.clinicID,
                       .billNo = paper.billNo,
                       .pno = paper.pno,
                       .purpose = paper.purpose,
                       .amountBilled = *total,
                       .amountPaid = paper.paid,
                       .words = paper.words,
                       .payType = paper.payType,
                       .receivedBy = paper.receivedBy,
                       .remarks = "CASH"});
    postPatientTran(books, {paper.pno, paper.billNo, paper.paid, privateClient, "Payment"});
    books.audit({"insert Payment for: " + paper.customer, paper.billNo, formatTwoDecimals(paper.paid)});
    books.record(receiptNo, paper.paid);
    return receiptNo;
}

} // namespace orvane
