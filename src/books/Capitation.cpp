#include "books/Capitation.h"

#include "books/Bill.h"
#include "books/BillLine.h"
#include "books/ItemTrace.h"
#include "books/PatientAccount.h"
#include "books/User.h"
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

void emptyBill(Books& books, const QString& billNo) {
    Connection& connection = books.connection;
    removeLines(books, billNo,
                [&] { connection.execute(Sql("delete from billingdetails where BillNo = '") << billNo << "'"); });
    connection.execute(Sql("update  billing set AmountBilled=0,AmountBilledInWord='XXX'  where BillNo = '")
                       << billNo << "'");
    connection.execute(Sql("update  BillAccum set Capitated='YES',isBilled=1,AttendedTo=1  where consultID = '")
                       << billNo << "'");
}

/// An item that falls under the contract, at what it was at so far.
ItemChange capitated(const BillInHand& bill, const Recordset& item) {
    const QString name = item.text("drgName");
    const double qty = item.number("Qty");
    return {.sno = item.integer("SNo"),
            .billNo = bill.consultID,
            .pno = bill.pno,
            .oldItem = name,
            .newItem = name,
            .oldQty = qty,
            .newQty = qty,
            .oldPrice = item.number("Price")};
}

QString qtyAndAmount(const Recordset& item) {
    return ": Qty:" + item.text("Qty") + " Amount: " + formatTwoDecimals(item.number("SubTotal"));
}

void auditCapitation(Books& books, const BillInHand& bill, const QString& remarks) {
    books.audit({"Capitated  Bill Item for " + bill.patient, bill.consultID, remarks});
}

/// A line that a receipt covers, or that is in the ledger.
bool hasSettledLine(Connection& connection, const QString& billNo) {
    return !Recordset(connection, Sql("select top 1 SNo from billingdetails where (isRct=1 or isPost=1) and BillNo = '")
                                      << billNo << "'")
                .eof();
}

using Trace = void (*)(Books&, const BillInHand&, const Recordset& item);

void traceAtNoPrice(Books& books, const BillInHand& bill, const Recordset& item) {
    traceAdjustment(books, capitated(bill, item), "BILL Capitated");
    auditCapitation(books, bill, "Item Capitated " + item.text("drgName") + qtyAndAmount(item));
}

/// The month's trace keeps the price as the new one too.
void traceAtItsPrice(Books& books, const BillInHand& bill, const Recordset& item) {
    ItemChange change = capitated(bill, item);
    change.newPrice = change.oldPrice;
    traceAdjustmentOfPatient(books, change, "BILL Capitated");
    auditCapitation(books, bill,
                    "Bill Item Capitated: " + item.text("drgName") + "; Item Capitated" + qtyAndAmount(item));
}

/// Gives what goes back to the patient's account, in naira.
double capitate(Books& books, const BillInHand& bill, Trace trace) {
    const QHash<qlonglong, double> charges = chargesOf(books, bill.consultID);
    emptyBill(books, bill.consultID);
    QVector<AccountEntry> credits;
    double total = 0;
    for (Recordset items(books.connection, Sql("select * from billAccum where consultID='") << bill.consultID << "'");
         !items.eof(); items.moveNext()) {
        trace(books, bill, items);
        const double charge = charges.value(items.integer("SNo"));
        if (charge == 0)
            continue;
        credits.append({bill.pno, bill.consultID, charge, books.settings().privateClient,
                        "Bill Item Capitated: " + items.text("drgName")});
        total += charge;
    }
    postPatientTrans(books, credits);
    return total;
}

} // namespace

Given<Saved> capitateBill(Books& books, const BillInHand& bill) {
    if (!holdsRole(books, "MANAGEMENT"))
        return Refusal::NotManager;
    if (const auto refusal = whyNotBilled(books.connection, bill))
        return *refusal;
    books.record(bill.consultID, round2(0 - capitate(books, bill, traceAtNoPrice)));
    return Saved{};
}

Given<int> capitateBills(Books& books, const QString& batchNo, const QVector<ListedBill>& bills,
                         const std::function<void(int)>& moving) {
    QVector<BillInHand> inHand;
    double billed = 0;
    for (const ListedBill& listed : bills) {
        const std::optional<Bill> row = readBill(books.connection, listed.billNo);
        if (!row)
            return Refusal::NoBill;
        if (isBillProcessed(books.connection, listed.billNo))
            return Refusal::BillProcessed;
        if (hasSettledLine(books.connection, listed.billNo))
            return Refusal::LineSettled;
        BillInHand bill;
        bill.consultID = row->billNo;
        bill.pno = row->pno;
        bill.patient = listed.patient;
        inHand.append(bill);
        billed += row->amountBilled;
    }
    int done = 0;
    for (const BillInHand& bill : inHand) {
        capitate(books, bill, traceAtItsPrice);
        moving(++done);
    }
    books.record(batchNo, round2(0 - billed));
    return done;
}

} // namespace orvane
