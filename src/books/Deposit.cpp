#include "books/Deposit.h"

#include "books/Bill.h"
#include "books/Limits.h"
#include "books/PatientAccount.h"
#include "books/Receipt.h"
#include "books/ReceiptNumber.h"
#include "data/words/Money.h"

namespace orvane {

Given<QString> takeDeposit(Books& books, const Deposit& deposit) {
    if (const auto refusal = whyNotDated(books, deposit.date))
        return *refusal;
    if (hasBill(books.connection, deposit.billNo))
        return Refusal::BillExists;
    const Given<ReceiptNumber> receipt =
        clinicReceiptNumber(books.connection, books.settings().hospital, deposit.billNo);
    if (!receipt)
        return receipt.refusal();

    addBill(books, {.date = deposit.date,
                    .billNo = deposit.billNo,
                    .pno = deposit.pno,
                    .clientID = deposit.clientID,
                    .amountBilled = deposit.due,
                    .amountPaid = deposit.amount,
                    .broughtForward = deposit.broughtForward,
                    .diagnosis = deposit.diagnosis});
    addReceipt(books, {.date = deposit.date,
                       .receiptNo = receipt->number,
                       .clinicID = receipt->clinicID,
                       .billNo = deposit.billNo,
                       .pno = deposit.pno,
                       .purpose = deposit.purpose,
                       .amountBilled = deposit.due,
                       .amountPaid = deposit.amount,
                       .words = deposit.words,
                       .payType = deposit.payType,
                       .remarks = "DEPOSIT/ADVANCE"});
    postPatientTran(books, {deposit.pno, deposit.billNo, deposit.amount, books.settings().privateClient, "Deposit"});
    books.audit({"insert Payment for: " + deposit.customer, deposit.billNo, formatTwoDecimals(deposit.amount)});
    books.record(receipt->number, deposit.amount);
    return receipt->number;
}

} // namespace orvane
