#include "BooksTest.h"
#include "books/CashSpread.h"
#include "support/Print.h"

namespace orvane {

class CashSpread : public BooksTest {
public:
    void SetUp() override {
        BooksTest::SetUp();
        context.settings.wayAccounts = {{"CASH", "1001"}, {"POS", "1003"}};
    }
    void pay(const QString& number, double amount, const QString& purpose = "DRUGS", const QString& payType = "CASH") {
        run(QStringLiteral("insert into Payments (ReceiptDate, ReceiptNo, billNo, AmountPaid, PaymentFor, PayType) "
                           "values ('2026-03-14', '%1', '%2', %3, '%4', '%5')")
                .arg(number, billNo)
                .arg(amount)
                .arg(purpose, payType));
    }
    void rebuild() {
        save<Saved>([this](Books& books) -> Given<Saved> {
            rebuildPaymentTypes(books, day, day);
            rebuildPaymentDetails(books, day, day);
            books.record("TEST", 0);
            return Saved{};
        });
    }
    QString ways() { return rows("select ReceiptNo, AmountPaid, PayType, AccountNo from PaymentTypes order by SNo"); }
    QString shares() { return rows("select ReceiptNo, AmountPaid, revType from PaymentDetails order by SNo"); }

    const QDate day{2026, 3, 14};
};

INSTANTIATE_TEST_SUITE_P(On, CashSpread, ::testing::ValuesIn(testEngines()),
                         [](const auto& test) { return engineName(test.param); });

TEST_P(CashSpread, ARebuildAddsWhatReceiptsLackAndLeavesTheRest) {
    run(QStringLiteral("insert into BillingDetails (SNo, billNo, dtDate, drgName, SubTotal, revType) values "
                       "(1, '%1', '2026-03-14', 'A', 100.10, 'DRUGS'), (2, '%1', '2026-03-14', 'B', 50, 'LAB')")
            .arg(billNo));
    pay("1", 120.10);
    pay("2", -120.10, "REVERSAL for RctNo: 1");
    pay("3", 40, "DRUGS", "POS/CASH");
    pay("4", 25);
    // Half by hand and posted, its bank account corrected.
    run("insert into PaymentDetails (ReceiptDate, ReceiptNo, AmountPaid, revType, isPost) values "
        "('2026-03-14', '4', 30, 'WARD', 1)");
    run("insert into PaymentTypes (ReceiptDate, ReceiptNo, AmountPaid, PayType, AccountNo, isPost) values "
        "('2026-03-14', '4', 20, 'CASH', '1002', 1)");
    rebuild();
    EXPECT_EQ(ways(), "4|20|CASH|1002\n1|120.1|CASH|1001\n2|-120.1|CASH|1001\n3|40|POS|1003\n4|5|CASH|1001");
    EXPECT_EQ(shares(), "4|30|WARD\n1|100.1|DRUGS\n1|20|LAB\n2|-100.1|DRUGS\n2|-20|LAB\n3|40|SUSPENSE\n4|-5|SUSPENSE");
    const CashTotals totals = readCashTotals(billing, day, day);
    EXPECT_EQ(totals.received, 65);
    EXPECT_EQ(totals.byWay, 65);
    EXPECT_EQ(totals.distributed, 65);
    // A reversal of a receipt that was spread in part, on a day before: one rebuild makes its whole.
    run("insert into PaymentDetails (ReceiptDate, ReceiptNo, AmountPaid, revType) values "
        "('2026-03-01', '8', 6, 'LAB')");
    pay("9", -22, "REVERSAL for RctNo: 8");
    rebuild();
    EXPECT_TRUE(shares().endsWith("9|-6|LAB\n9|-16|SUSPENSE")) << shares().toStdString();
    const QString before = ways() + shares();
    rebuild();
    EXPECT_EQ(ways() + shares(), before);
}

} // namespace orvane
