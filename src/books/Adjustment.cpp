#include "books/Adjustment.h"

#include "books/Bill.h"
#include "books/BillItem.h"
#include "books/BillLine.h"
#include "books/Limits.h"
#include "books/PatientAccount.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

Recordset itemOf(Books& books, const ItemChange& change) {
    return Recordset(books.connection, Sql("select * from BillAccum where SNO=") << change.sno);
}

Recordset lineOf(Books& books, const ItemChange& change) {
    return Recordset(books.connection, Sql("select * from BillingDetails where SNO=") << change.sno);
}

/// Of a line whose patient the screen does not know.
QString patientOf(Books& books, const ItemChange& change) {
    const std::optional<Bill> bill = readBill(books.connection, change.billNo);
    return bill ? bill->pno : QString();
}

void setAmounts(Recordset& item, const ItemChange& change) {
    item.set("Price", change.newPrice);
    item.set("Qty", change.newQty);
    item.set("SubTotal", change.newAmount());
    item.set("drgName", change.newItem);
}

void saveItem(Recordset& item, const ItemAdjustment& now) {
    setAmounts(item, now.change);
    item.set("Capitated", now.capitated ? "YES" : "NO");
    item.set("attendedto", 1);
    item.set("isBilled", 1);
    if (!now.billTo.isEmpty())
        item.set("billTo", now.billTo);
    item.set("revType", now.revType);
    item.update();
}

/// An item that waited is billed by its adjustment.
void addLineOf(Books& books, const Recordset& item, const ItemAdjustment& now) {
    const ItemChange& change = now.change;
    addLines(books, {{.sno = change.sno,
                      .billNo = change.billNo,
                      .date = item.date("dtDate"),
                      .pno = change.pno,
                      .name = change.newItem,
                      .price = change.newPrice,
                      .qty = change.newQty,
                      .subTotal = change.newAmount(),
                      .billType = "SERVICE",
                      .conID = 0,
                      .dosage = "N/A",
                      .coyName = item.text("coyName"),
                      .billTo = item.text("billTo"),
                      .revType = now.revType,
                      .capitated = "NO",
                      .billBy = books.actor().user,
                      .remarks = "New Bill Item: " + change.newItem}});
    books.audit({"insert BillDetails Item for " + now.patient, change.billNo,
                 change.newItem + ": " + formatNumber(change.newAmount(), "0.00")});
    if (isCarriedBalance(change.newItem))
        reviewCarriedBalance(books, change, change.newItem, change.newPrice);
}

/// A carried balance is charged by no one, so renaming an item to one, or back, moves its whole charge.
void changeLineOf(Books& books, Recordset& line, const ItemAdjustment& now) {
    const ItemChange& change = now.change;
    const bool wasCarried = isCarriedBalance(line.text("drgName"));
    const bool isCarried = isCarriedBalance(change.newItem);
    changeLine(books, line,
               {.name = change.newItem,
                .price = now.capitated ? 0 : change.newPrice,
                .qty = change.newQty,
                .subTotal = now.capitated ? 0 : change.newAmount(),
                .billTo = now.billTo.isEmpty() ? line.text("billTo") : now.billTo,
                .revType = now.revType},
               change.pno, (now.capitated ? "Bill Item Capitated: " : "Adjusted Bill Item: ") + change.newItem);
    if (wasCarried || isCarried)
        reviewCarriedBalance(books, change, isCarried ? change.newItem : change.oldItem, change.newPrice);
}

} // namespace

Given<Saved> adjustItem(Books& books, const ItemAdjustment& now) {
    const ItemChange& change = now.change;
    if (isBillProcessed(books.connection, change.billNo))
        return Refusal::BillProcessed;
    if (const auto refusal = whyNotCharged(change.newItem, change.newAmount(), change.oldAmount()))
        return *refusal;
    Recordset item = itemOf(books, change);
    requireUnchanged(item, change);
    saveItem(item, now);
    if (change.newAmount() != change.oldAmount()) {
        auditAdjustment(books, change, "Bill Adjustment: Item from: ");
        traceAdjustment(books, change, "BILL ADJUST");
    }
    Recordset line = lineOf(books, change);
    if (!line.eof())
        changeLineOf(books, line, now);
    else if (!now.capitated)
        addLineOf(books, item, now);
    refreshBillFromLines(books, change.billNo);
    books.record(change.billNo, round2(change.newAmount() - change.oldAmount()));
    return Saved{};
}

Given<Saved> removeItem(Books& books, const ItemChange& change) {
    if (isBillProcessed(books.connection, change.billNo))
        return Refusal::BillProcessed;
    requireUnchanged(itemOf(books, change), change);
    const Recordset line = lineOf(books, change);
    const double charged = line.eof() ? 0 : chargedFor(books, line);
    removeLines(books, line.eof() ? change.billNo : line.text("billNo"), [&] {
        books.connection.execute(Sql("delete from billingdetails where SNO = '") << change.sno << "'");
    });
    books.connection.execute(Sql("delete from billAccum where SNO = '") << change.sno << "'");
    ItemChange gone = change;
    gone.newItem = gone.oldItem;
    gone.newQty = gone.newPrice = 0;
    traceAdjustment(books, gone, "BILL DELETED");
    if (isCarriedBalance(change.oldItem))
        reviewCarriedBalance(books, change, change.oldItem, change.oldPrice);
    if (charged != 0)
        postPatientTran(books, {change.pno, change.billNo, charged, books.settings().privateClient,
                                "Bill Item Removed: " + change.oldItem});
    refreshBillFromLines(books, change.billNo);
    books.record(change.billNo, round2(0 - change.oldAmount()));
    return Saved{};
}

Given<Saved> adjustPrice(Books& books, const ItemChange& change, const QString& capitated) {
    if (isBillProcessed(books.connection, change.billNo))
        return Refusal::BillProcessed;
    if (const auto refusal = whyNotCharged(change.newItem, change.newAmount(), change.oldAmount()))
        return *refusal;
    Recordset item = itemOf(books, change);
    requireUnchanged(item, change);
    setAmounts(item, change);
    item.set("Capitated", capitated);
    item.update();
    books.record(change.billNo, round2(change.newAmount() - change.oldAmount()));
    return Saved{};
}

Given<Saved> splitPayer(Books& books, const ItemChange& change, const QString& billTo) {
    if (isBillProcessed(books.connection, change.billNo))
        return Refusal::BillProcessed;
    Recordset line = lineOf(books, change);
    requireUnchanged(line, change);
    changePayer(books, line, billTo);
    books.record(change.billNo, change.oldAmount());
    return Saved{};
}

Given<Saved> customiseLine(Books& books, const ItemChange& change, const QString& heading, const QString& billTo) {
    if (isBillProcessed(books.connection, change.billNo))
        return Refusal::BillProcessed;
    if (const auto refusal = whyNotCharged(change.newItem, change.newAmount(), change.oldAmount()))
        return *refusal;
    Recordset line = lineOf(books, change);
    requireUnchanged(line, change);
    const double before = line.number("SubTotal");
    const QString billType = line.text("BillType");
    changeLine(books, line,
               {.name = change.newItem,
                .price = change.newPrice,
                .qty = change.newQty,
                .subTotal = change.newAmount(),
                .billTo = billTo.isEmpty() ? line.text("billTo") : billTo,
                .billType = billType == "INVESTIGATION" ? QString("LAB") : billType,
                .billHead = heading},
               patientOf(books, change), "Adjusted Bill Item: " + change.newItem);
    refreshBillFromLines(books, change.billNo);
    if (change.newAmount() != before)
        auditAdjustment(books, change, "Bill Adjustment/Customize: Item from: ");
    books.record(change.billNo, round2(change.newAmount() - before));
    return Saved{};
}

void requestTariff(Books& books, const TariffRequest& request) {
    const ItemChange& change = request.change;
    Recordset row(books.connection, Sql("select * from TariffAdjust where 1=2"));
    row.addNew();
    row.set("SNo", change.sno);
    row.set("ItemName", change.newItem);
    row.set("OldPrice", change.oldPrice);
    row.set("newPrice", change.newPrice);
    row.set("revType", request.revType);
    row.set("coyName", request.coyName);
    row.set("billNo", change.billNo);
    row.set("Category", request.category);
    row.update();
}

} // namespace orvane
