#include "books/Discount.h"

#include "books/Bill.h"
#include "books/BillLine.h"
#include "books/Limits.h"
#include "books/OutletBill.h"
#include "books/Words.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

void addDiscountRow(Books& books, const BillDiscount& discount) {
    Recordset row(books.connection, Sql("select * from billDiscounts where 1=2"));
    row.addNew();
    row.set("dtDate", books.today());
    row.set("dtTime", books.now().toString("HH:mm"));
    row.set("billNo", discount.billNo);
    row.set("Amount", discount.amount);
    row.set("Remarks", discount.name);
    row.set("entryBy", books.actor().user);
    row.update();
    books.note({"DISCOUNT", discount.billNo, 1, discount.amount});
}

void moveBill(Books& books, const QString& billNo, double amount) {
    std::optional<Bill> bill = readBill(books.connection, billNo);
    if (!bill)
        return;
    bill->amountBilled = round2(bill->amountBilled + amount);
    bill->words = getValInWord(bill->amountBilled);
    bill->isPaid = isPaidFlag(bill->amountPaid, bill->amountBilled) == 1;
    changeBill(books, *bill);
}

/// Naira; what a bill without its row has due is not known, and nothing.
double amountDue(Connection& connection, const QString& billNo) {
    const std::optional<Bill> bill = readBill(connection, billNo);
    return bill ? round2(bill->amountBilled - bill->amountPaid) : 0;
}

} // namespace

Given<Saved> addBillDiscount(Books& books, const BillDiscount& discount) {
    if (isBillProcessed(books.connection, discount.billNo))
        return Refusal::BillProcessed;
    if (const auto refusal = whyNotDated(books, discount.date))
        return *refusal;
    if (discount.isDiscount && discount.amount > amountDue(books.connection, discount.billNo))
        return Refusal::DiscountAboveDue;
    const double amount = discount.isDiscount ? -discount.amount : discount.amount;
    addLines(books, {{.billNo = discount.billNo,
                      .date = discount.date,
                      .pno = discount.pno,
                      .name = discount.name,
                      .price = amount,
                      .subTotal = amount,
                      .billType = "SERVICE",
                      .conID = 0}});
    if (discount.isDiscount)
        addDiscountRow(books, discount);
    moveBill(books, discount.billNo, amount);
    if (isOutletBill(discount.billNo))
        settleOutletDebt(books, discount.billNo, discount.date);
    books.audit({(discount.isDiscount ? "insert Discount: " : "insert Charge: ") + discount.name, discount.billNo,
                 formatTwoDecimals(amount)});
    books.record(discount.billNo, amount);
    return Saved{};
}

} // namespace orvane
