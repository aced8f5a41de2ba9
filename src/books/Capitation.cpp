#include "books/Capitation.h"

#include "books/Bill.h"
#include "books/BillLine.h"
#include "books/ItemTrace.h"
#include "books/PatientAccount.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

/// What each line has charged, by the number of its item; naira.
QHash<qlonglong, double> chargesOf(Books& books, const QString& billNo) {
    QHash<qlonglong, double> charges;
    for (Recordset lines(books.connection,
                         Sql("select SNo,drgName,SubTotal,billTo,Charged from billingdetails where BillNo = '")
                             << billNo << "'");
         !lines.eof(); lines.moveNext())
        charges.insert(lines.integer("SNo"), chargedFor(books, lines));
    return charges;
}

void emptyBill(Connection& connection, const QString& billNo) {
    connection.execute(Sql("delete from billingdetails where BillNo = '") << billNo << "'");
    connection.execute(Sql("update  billing set AmountBilled=0,AmountBilledInWord='XXX'  where BillNo = '")
                       << billNo << "'");
    connection.execute(Sql("update  BillAccum set Capitated='YES',isBilled=1,AttendedTo=1  where consultID = '")
                       << billNo << "'");
}

void traceCapitation(Books& books, const BillInHand& bill, const Recordset& item) {
    const QString name = item.text("drgName");
    const double qty = item.number("Qty");
    traceAdjustment(books,
                    {.sno = item.integer("SNo"),
                     .billNo = bill.consultID,
                     .pno = bill.pno,
                     .oldItem = name,
                     .newItem = name,
                     .oldQty = qty,
                     .newQty = qty,
                     .oldPrice = item.number("Price")},
                    "BILL Capitated");
    books.audit({"Capitated  Bill Item for " + bill.patient, bill.consultID,
                 "Item Capitated " + name + ": Qty:" + item.text("Qty") +
                     " Amount: " + formatTwoDecimals(item.number("SubTotal"))});
}

} // namespace

Given<Saved> capitateBill(Books& books, const BillInHand& bill) {
    if (const auto refusal = whyNotBilled(books.connection, bill))
        return *refusal;
    const QHash<qlonglong, double> charges = chargesOf(books, bill.consultID);
    emptyBill(books.connection, bill.consultID);
    QVector<AccountEntry> credits;
    double total = 0;
    for (Recordset items(books.connection, Sql("select * from billAccum where consultID='") << bill.consultID << "'");
         !items.eof(); items.moveNext()) {
        traceCapitation(books, bill, items);
        const double charge = charges.value(items.integer("SNo"));
        if (charge == 0)
            continue;
        credits.append({bill.pno, bill.consultID, charge, books.settings().privateClient,
                        "Bill Item Capitated: " + items.text("drgName")});
        total += charge;
    }
    postPatientTrans(books, credits);
    books.record(bill.consultID, round2(0 - total));
    return Saved{};
}

} // namespace orvane
