// What a line has charged goes back to the account that bore it, whoever the line names when it goes or changes.
#include "BooksTest.h"

#include "books/Adjustment.h"
#include "books/Bill.h"
#include "books/BillLine.h"
#include "books/Capitation.h"
#include "books/Collate.h"
#include "books/Discount.h"
#include "data/words/Money.h"

namespace orvane {
namespace {

class Charge : public BooksTest {
public:
    /// The item as it stands.
    ItemChange item() {
        const Recordset row(billing, Sql("select * from BillAccum"));
        return {.sno = row.integer("SNo"),
                .billNo = billNo,
                .pno = "P/0001",
                .oldItem = row.text("drgName"),
                .newItem = row.text("drgName"),
                .oldQty = row.number("Qty"),
                .newQty = row.number("Qty"),
                .oldPrice = row.number("Price"),
                .newPrice = row.number("Price")};
    }
    ItemChange priced(double price) {
        ItemChange change = item();
        change.newPrice = price;
        return change;
    }
    /// One billed item of 1000 naira.
    void layBilled(const QString& payer) {
        strike();
        const bool isPrivate = payer == "0001";
        moveVisit(isPrivate ? "PRIVATE" : "HMO", payer, isPrivate ? "NO" : "YES");
        makeItem(billing, {.name = "THEATRE", .client = payer, .price = 1000});
        run("insert into Billing (billNo, PNo, Amountbilled) values ('001OFL0000001','P/0001',1000)");
        save<double>([&](Books& books) { return collateBillItems(books, inHand(payer)); });
        ASSERT_EQ(lines(), "THEATRE|1000");
    }
    BillInHand inHand(const QString& payer) const { return visit(payer == "0001" ? "PRIVATE" : "HMO", payer); }
    void adjust(const ItemChange& change, bool capitated, const QString& billTo) {
        save<Saved>([&](Books& books) { return adjustItem(books, {change, capitated, "DRUGS", billTo, "X"}); });
    }
    /// Does to the item what a screen of this name does. `payer`: whom it names; empty: nobody else.
    void act(const QString& screen, const ItemChange& change, const QString& payer, const QString& client) {
        save<Saved>([&](Books& books) -> Given<Saved> {
            if (screen == "split")
                return splitPayer(books, change, payer);
            if (screen == "custom")
                return customiseLine(books, change, "HEAD", payer);
            if (screen == "remove")
                return removeItem(books, change);
            if (screen == "capitate all")
                return capitateBill(books, inHand(client));
            if (screen != "none")
                return adjustItem(books, {change, screen == "capitate", "DRUGS", payer, "X"});
            return Saved{};
        });
    }
};
ORVANE_ON_EACH_ENGINE(Charge);

TEST_P(Charge, GoesBackToWhoBoreIt) {
    const std::pair<const char*, bool> changes[] = {{"none", true},
                                                    {"split", false},
                                                    {"custom", true},
                                                    {"adjust", true}}; // whether the charge moves with the payer
    const std::pair<const char*, double> ends[] = {
        {"remove", 0}, {"capitate all", 0}, {"capitate", 0}, {"adjust", 1500.5}, {"custom", 1500.5}}; // what is left
    for (const char* client : {"0001", "0201"})
        for (const auto& [change, moves] : changes)
            for (const auto& [end, left] : ends)
                for (bool known : {true, false}) {
                    SCOPED_TRACE(std::string(client) + ", " + change + ", " + end +
                                 (known ? "" : ", billed before Charged was kept"));
                    layBilled(client);
                    if (!known)
                        run("update BillingDetails set Charged=null");
                    const QString other = QString(client) == "0001" ? "0201" : "0001";
                    const QString payer = QString(change) == "none" ? QString(client) : other;
                    act(change, item(), payer, client);
                    EXPECT_EQ(scalar("select billTo from BillingDetails"), payer);
                    EXPECT_EQ(scalar("select isnull(sum(Amount),0) from Tranxaction"),
                              (moves ? payer : QString(client)) == "0001" ? "-1000" : "0");
                    if (QString(change) == "adjust")
                        EXPECT_EQ(scalar("select billTo from BillAccum"), payer) << "item and line agree";
                    act(end, left > 0 ? priced(left) : item(), {}, client);
                    const double borne = payer == "0001" ? 0 - left : 0;
                    EXPECT_EQ(scalar("select isnull(sum(Amount),0) from Tranxaction").toDouble(), borne);
                    EXPECT_EQ(scalar("select DebtBF from hPatients").toDouble(), borne);
                    EXPECT_EQ(scalar("select Amountbilled from Billing").toDouble(), left);
                    EXPECT_EQ(scalar("select isnull(sum(Charged),0) from BillingDetails").toDouble(), -borne);
                }
}

/// A client move names another payer by one statement: with the charges kept, nothing seems to have moved.
TEST_P(Charge, IsKeptBeforeManyPayersChange) {
    layBilled("0001");
    run("update BillingDetails set Charged=null");
    save<Saved>([](Books& books) -> Given<Saved> {
        keepCharges(books, billNo);
        return Saved{};
    });
    run("update BillingDetails set billTo='0201'");
    save<Saved>([&](Books& books) { return removeItem(books, item()); });
    EXPECT_EQ(account(), "-1000|-1000|THEATRE\n1000|0|Bill Item Removed: THEATRE");
}

/// What a carried balance leaves in hDebtReview, by its name and price; the account is left alone.
TEST_P(Charge, CarriedBalanceGoesToTheReview) {
    const struct {
        const char* name;
        double price;
        const char* review;
    } cases[] = {{"PREVIOUS DEBT", 250, "-250|-250|0"},
                 {"PREVIOUS DEBT", -250, "-250|-250|0"},
                 {"PREVIOUS CREDIT", -80, "-80|-80|0"},
                 {"PREVIOUS CREDIT", 80, "80|80|0"}};
    for (const auto& c : cases)
        for (bool removed : {false, true}) {
            SCOPED_TRACE(std::string(c.name) + std::to_string(c.price) + (removed ? " removed" : " adjusted"));
            strike();
            makeItem(billing, {.name = c.name, .price = removed ? c.price : 300});
            if (removed)
                save<Saved>([&](Books& books) { return removeItem(books, item()); });
            else
                adjust(priced(c.price), false, {});
            EXPECT_EQ(rows("select Debt, adjustTo, attendedto from hDebtReview"), c.review);
            EXPECT_EQ(account(), "");
        }
}

/// A discount bears its own key below zero, is charged to nobody, and moves the bill.
TEST_P(Charge, DiscountMovesTheBillAlone) {
    layBilled("0001");
    run("update Billing set AmountPaid=800.3");
    const struct {
        bool isDiscount;
        double amount;
        const char* bill; ///< billed, isPaid
    } steps[] = {{true, 199.6, "800.4|0"}, {true, 0.1, "800.3|1"}, {false, 100, "900.3|0"}};
    for (const auto& step : steps) {
        save<Saved>([&](Books& books) {
            return addBillDiscount(books, {billNo, "P/0001", context.today, "EXTRA", step.amount, step.isDiscount});
        });
        EXPECT_EQ(rows("select Amountbilled, isPaid from Billing"), step.bill);
        EXPECT_EQ(*billDetailsTotal(billing, billNo), scalar("select Amountbilled from Billing").toDouble());
    }
    EXPECT_EQ(rows("select SubTotal, Charged from BillingDetails where SNo=0-detID order by detID"),
              "-199.6|0\n-0.1|0\n100|0");
    EXPECT_EQ(rows("select dtDate, dtTime, Amount, Remarks, entryBy from billDiscounts where Amount=0.1"),
              "2026-03-14|09:30|0.1|EXTRA|amina.b");
    EXPECT_EQ(scalar("select DebtBF from hPatients"), "-1000");
}

} // namespace
} // namespace orvane
