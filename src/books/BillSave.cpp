#include "books/BillSave.h"

#include "books/Bill.h"
#include "books/BillDate.h"
#include "books/Collate.h"
#include "books/Fees.h"
#include "books/Limits.h"
#include "books/PatientAccount.h"
#include "books/Words.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

void saveVisit(Connection& connection, const BillToSave& bill) {
    const QString& consultID = bill.visit.consultID;
    connection.execute(Sql("update  hrecords set diagnosis='")
                       << bill.diagnosis.trimmed().toUpper() << "' where consultID = '" << consultID << "'");
    if (bill.admitted.isValid())
        connection.execute(Sql("update  hrecords set exitDate='")
                           << bill.discharged << "', BillDate='" << bill.discharged << "'  where consultID = '"
                           << consultID << "'");
    else
        connection.execute(Sql("update  hrecords set exitDate=recdate, BillDate=recdate  where consultID = '")
                           << consultID << "'");
}

/// Its amount is that of the lines, never the sum on a screen.
void saveBillRow(Books& books, const BillToSave& bill) {
    const QString& billNo = bill.visit.consultID;
    const std::optional<Bill> before = readBill(books.connection, billNo);
    Bill row = before.value_or(Bill{});
    const std::optional<double> total = billDetailsTotal(books.connection, billNo);
    row.billNo = billNo;
    row.date = bill.date;
    row.pno = bill.visit.pno;
    row.clientID = bill.visit.retainID;
    row.amountBilled = total.value_or(row.amountBilled);
    if (total || row.words != "XXX")
        row.words = getValInWord(row.amountBilled);
    row.profFee = professionalFees(books.connection, billNo);
    row.diagnosis = bill.diagnosis;
    row.billType = std::nullopt;
    if (bill.admitted.isValid()) {
        row.admitted = bill.admitted;
        row.discharged = bill.discharged;
    }
    if (bill.receipt)
        row.amountPaid = round2(row.amountPaid + bill.receipt->row.amountPaid);
    if (before)
        changeBill(books, row);
    else
        addBill(books, row);
}

void saveReceipt(Books& books, const ReceiptInSave& receipt) {
    const Receipt& row = receipt.row;
    addReceipt(books, row);
    addPaymentTypes(books, row, receipt.ways);
    distributePayment(books, row);
    postPatientTran(books, {row.pno, row.billNo, row.amountPaid, books.settings().privateClient, "Payment"});
    books.audit({"insert Bill Summ for: " + receipt.customer, row.billNo, formatTwoDecimals(row.amountBilled)});
    books.audit({"insert Payment for: " + receipt.customer, row.billNo, formatTwoDecimals(row.amountPaid)});
}

} // namespace

Given<Saved> saveBill(Books& books, const BillToSave& bill) {
    for (const QDate& day : {bill.date, bill.receipt ? bill.receipt->row.date : QDate()})
        if (const auto refusal = whyNotDated(books, day))
            return *refusal;
    const BillInHand& visit = bill.visit;
    if (const auto refusal = whyNotBilled(books.connection, visit))
        return *refusal;
    saveVisit(books.connection, bill);
    billWaitingItems(books, visit);
    saveBillRow(books, bill);
    if (bill.receipt)
        saveReceipt(books, *bill.receipt);
    settleBillDate(books, visit, bill.admitted.isValid());
    if (bill.receipt)
        books.record(bill.receipt->row.receiptNo, bill.receipt->row.amountPaid);
    else
        books.record(visit.consultID, billDetailsTotal(books.connection, visit.consultID).value_or(0));
    return Saved{};
}

} // namespace orvane
