// What no screen may enter: amounts that take money off a bill unseen, and days that no document bears.
#include "BooksTest.h"
#include "books/Adjustment.h"
#include "books/BillReceipt.h"
#include "books/Deposit.h"
#include "books/Discount.h"
#include "books/ItemEntry.h"
#include "books/Visit.h"
#include "support/Print.h"

namespace orvane {

class Limits : public BooksTest {
protected:
    template <typename T>
    QString told(const std::function<Given<T>(Books&)>& step) {
        const Given<T> given = save<T>(step);
        return given ? QString("saved") : refusalText(given.refusal());
    }
    QString addItem(const QString& name, double qty) {
        return told<Saved>([&](Books& books) {
            return addToVisit(
                books, {.consultID = billNo,
                        .pno = "P/0001",
                        .retainID = "0001",
                        .category = "PRIVATE",
                        .feeForService = "NO",
                        .date = day,
                        .company = "PRIVATE",
                        .items = {{name, {}, 100, qty, qty * 100, {}, "NO", "SERVICE", "0001", "0001", "DRUGS"}}});
        });
    }
    QString discount(double amount, bool isDiscount, QDate on) {
        return told<Saved>([&](Books& books) {
            return addBillDiscount(books, {billNo, "P/0001", on, "GOODWILL", amount, isDiscount});
        });
    }

    const QDate day{2026, 3, 14};
    const QString lessThanNothing = refusalText(Refusal::LessThanNothing);
};

ORVANE_ON_EACH_ENGINE(Limits);

TEST_P(Limits, NoItemTakesMoneyOffABill) {
    EXPECT_EQ(addItem("DRESSING", 3), "saved");
    EXPECT_EQ(addItem("DRESSING", -11), lessThanNothing);
    EXPECT_EQ(addItem("PREVIOUS CREDIT", -1), "saved");
    EXPECT_EQ(lines(), "DRESSING|300\nPREVIOUS CREDIT|-100");
    const auto sno = rows("select SNo from BillAccum where drgName='DRESSING'").toLongLong();
    const ItemChange change{sno, billNo, "P/0001", "DRESSING", "DRESSING", 3, -4, 100, 100};
    for (const auto& step : std::initializer_list<std::function<Given<Saved>(Books&)>>{
             [&](Books& books) {
                 return adjustItem(books, {change, false, "DRUGS", {}, "X"});
             },
             [&](Books& books) { return adjustPrice(books, change, "NO"); },
             [&](Books& books) { return customiseLine(books, change, "HEAD", {}); }})
        EXPECT_EQ(told<Saved>(step), lessThanNothing);
    EXPECT_EQ(lines(), "DRESSING|300\nPREVIOUS CREDIT|-100");
}

TEST_P(Limits, ADiscountIsNotAboveWhatIsDue) {
    run("insert into Billing (billNo, PNo, Amountbilled, AmountPaid) values ('001OFL0000001','P/0001',1680,1000)");
    EXPECT_EQ(discount(5'000'000, true, day), refusalText(Refusal::DiscountAboveDue));
    EXPECT_EQ(discount(680.01, true, day), refusalText(Refusal::DiscountAboveDue));
    EXPECT_EQ(discount(680, true, day), "saved");
    EXPECT_EQ(discount(5'000, false, day), "saved") << "a further charge";
}

TEST_P(Limits, ADocumentBearsADayOfOurTime) {
    const QString wrong = refusalText(Refusal::WrongYear);
    for (const QDate& on : {QDate(1989, 12, 31), QDate(2028, 1, 1), QDate(2206, 3, 14)}) {
        EXPECT_EQ(discount(1, false, on), wrong);
        EXPECT_EQ(told<QString>([&](Books& books) {
                      return takeReceipt(books, {billNo, {}, {}, on, 0, 0, {}, {}, {}});
                  }),
                  wrong);
        EXPECT_EQ(told<QString>([&](Books& books) {
                      return takeDeposit(books, {billNo, {}, {}, {}, on, 0, 0, 0, {}, {}, {}, {}});
                  }),
                  wrong);
        EXPECT_EQ(told<QString>([&](Books& books) {
                      return enterVisit(books, {on, "P/0001", {}, {}, {}, {}, {}, {}}, QDateTime(on, QTime(9, 0)), {});
                  }),
                  wrong);
    }
    EXPECT_EQ(discount(1, false, QDate(1990, 1, 1)), "saved");
    EXPECT_EQ(discount(1, false, QDate(2027, 12, 31)), "saved");
}

} // namespace orvane
