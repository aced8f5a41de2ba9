#include "books/Receipt.h"

namespace orvane {

void addReceipt(Books& books, const Receipt& receipt) {
    Recordset row(books.connection, Sql("select * from Payments where 1=2"));
    row.addNew();
    row.set("ReceiptDate", receipt.date);
    row.set("ReceiptNo", receipt.receiptNo);
    row.set("ClinicID", receipt.clinicID);
    row.set("billNo", receipt.billNo);
    row.set("PNo", receipt.pno);
    row.set("PaymentFor", receipt.purpose);
    row.set("Amountbilled", receipt.amountBilled);
    row.set("AmountPaid", receipt.amountPaid);
    row.set("AmountInWord", receipt.words);
    row.set("ReceivedBy", receipt.receivedBy.isEmpty() ? books.actor().empID : receipt.receivedBy);
    row.set("PayType", receipt.payType);
    if (!receipt.chequeNo.isEmpty())
        row.set("ChequeNo", receipt.chequeNo);
    row.set("rTime", books.now().toString("HH:mm"));
    row.set("Remarks", receipt.remarks);
    row.update();
    books.note({"RECEIPT", receipt.receiptNo, 1, receipt.amountPaid});
}

} // namespace orvane
