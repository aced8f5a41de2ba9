#include "VerifyTest.h"

namespace orvane {

class DiscountTest : public VerifyTest {
protected:
    /// A bill of 2,500 naira of which 2,000 are paid.
    void SetUp() override {
        VerifyTest::SetUp();
        layVisit();
        item({.name = "WOUND DRESSING", .price = 2500});
        load();
        save();
        ui.forgetBoxes();
        ws.run("update Billing set AmountPaid=2000");
    }
    void give(const QString& type, const QString& amount) {
        if (!ws.program.loadedForm("frmBillDiscount"))
            ws.open("frmBillDiscount");
        for (const char* picker : {"DTPicker1", "DTPicker2", "dtDate"})
            ws.set(QStringLiteral("frmBillDiscount.") + QLatin1StringView(picker),
                   ws.scalar("select bdate from Billing"));
        ws.click("frmBillDiscount.cmdInv");
        ws.pick("frmBillDiscount.cboVehNo", QString::fromLatin1(billNo));
        ws.set("frmBillDiscount.cboClinic", type);
        ws.set("frmBillDiscount.cboCat", type);
        ws.set("frmBillDiscount.txtHt", amount);
        ui.answer(true);
        ws.click("frmBillDiscount.OKButton");
        ui.takeQuestions();
        EXPECT_BOXES(ui, {"Record Succesfully saved"});
    }
    QString bill() { return rows("select Amountbilled, isPaid from Billing"); }
};

TEST_P(DiscountTest, MovesTheBillByANegativeLine) {
    give("DISCOUNT", "499.5");
    EXPECT_EQ(bill(), "2000.5|0");
    give("DISCOUNT", "0.5");
    EXPECT_EQ(bill(), "2000|1") << "paid at exactly the amount";
    EXPECT_EQ(rows("select Amount from billDiscounts order by SNo"), "499.5\n0.5");
    give("BILL", "100");
    EXPECT_EQ(bill(), "2100|0");
    EXPECT_EQ(rows("select count(*) as n from billDiscounts"), "2");
    EXPECT_EQ(ws.scalar("select SubTotal from vwBillingProcessDetailsGrouped where billno='001OFL0000001'"), "2100");
}

TEST_P(DiscountTest, ALineWithoutItemStandsApartFromEveryItem) {
    give("DISCOUNT", "100");
    give("DISCOUNT", "100");
    EXPECT_EQ(rows("select count(distinct SNo) as n from BillingDetails where SNo < 0"), "2");
    // Items that come later are collated, and the discounts stay.
    item({.name = "MALARIA PARASITE", .price = 1500});
    load();
    EXPECT_EQ(rows("select drgName, SubTotal from BillingDetails where SNo > 0 order by SNo"),
              "WOUND DRESSING|2500\nMALARIA PARASITE|1500");
    EXPECT_EQ(bill(), "3800|0");
}

ORVANE_ON_EACH_ENGINE(DiscountTest);

} // namespace orvane
