// One patient's money on several screens: what one of them has written is what the next one works on.
#include "support/Entries.h"
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class Account : public SoundScreenTest {
protected:
    Account() : SoundScreenTest("frmReceiptDeposit") {}

    /// What stands on the bill: billed, paid, and whether that settles it.
    QString bill() { return rows("select round(Amountbilled, 2), round(AmountPaid, 2), isPaid from Billing"); }
};
ORVANE_ON_EACH_ENGINE(Account);

TEST_P(Account, GoesFromDepositToReversalWithoutLosingAKobo) {
    layVisit();
    layItem({.price = 0.7, .qty = 3});
    layItem({.name = "MALARIA PARASITE", .billType = "LAB", .revType = "LABORATORY", .price = 1499.95});

    enterDeposit(ws.program, billNo, "500.10");
    breakAt("into [Tranxaction]", true);
    save();
    EXPECT_BOXES(ui, {"disk full"});
    EXPECT_EQ(rows("select * from Payments") + bill() + account() + debt(), "0") << "a half of a deposit";
    EXPECT_TRUE(isOpen());
    save();
    EXPECT_EQ(debt(), "500.1");
    EXPECT_EQ(audit("%Payment%", "TranCode, Remarks"), "001OFL0000001|500.10");

    loadBill(ws.program, billNo);
    open("frmBillingVerify");
    save();
    EXPECT_EQ(bill(), "1502.05|500.1|0");
    EXPECT_EQ(debt(), "-1001.95");

    enterReceipt(ws.program, billNo, "1,001.95");
    open("frmReceiptTemp");
    save();
    EXPECT_EQ(bill(), "1502.05|1502.05|1");
    EXPECT_EQ(debt(), "0");

    enterReversal(ws.program);
    save();
    EXPECT_EQ(bill(), "1502.05|500.1|0");
    EXPECT_EQ(debt(), "-1001.95");
    EXPECT_EQ(account().section('\n', -2), "1001.95|0|Payment\n-1001.95|-1001.95|Payment");
    ui.forgetBoxes();
}

} // namespace
} // namespace orvane
