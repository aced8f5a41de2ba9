#include "support/ScreenTest.h"

namespace orvane {
namespace {

class Fees : public SoundScreenTest {
protected:
    Fees() : SoundScreenTest("frmBillingVerify") {}
    void chargeScheme(const QString& percent, const QString& text = "SCHEME FEE") {
        set("txtNHIS", percent);
        ui.answer(text);
        click("cmdNHIS");
        EXPECT_QUESTIONS(ui, {"Enter Item Description"});
    }
};
ORVANE_ON_EACH_ENGINE(Fees);

TEST_P(Fees, SchemeFeeOnNothingLeavesNoLine) {
    layVisit();
    load();
    chargeScheme("10");
    EXPECT_EQ(lines(), "") << "a line of 0 is taken away by the collation";
    EXPECT_EQ(debt(), "0");
    for (const char* wrong : {"", "ten", "-5"}) {
        set("txtNHIS", wrong);
        EXPECT_EQ(told("cmdNHIS"), "Specify NHIS fee! Numeric Only");
    }
    set("txtNHIS", "5");
    ui.answerCancel();
    click("cmdNHIS");
    EXPECT_EQ(ws.tableCount("BillAccum"), 1);
    ui.takeQuestions();
}

/// Its collation fails behind it: a user who read that nothing was saved would charge it twice.
TEST_P(Fees, AFaultBehindASavedFeeSaysThatItIsSaved) {
    layVisit();
    layItem({.name = "DRUG", .price = 1000});
    load();
    set("txtProf", "10");
    breakAt("into [BillingDetails]");
    EXPECT_EQ(told("cmdBill"), "The entry was saved. Only what follows it could not be done:\ndisk full");
    ws.program.data().setStatementHook({});
    load();
    EXPECT_EQ(lines() + value("lblCurr"), "DRUG|1000\nProf Fee (10%)|1001,100.00");
    EXPECT_EQ(audit("insert Prof Fee%"), "insert Prof Fee (10%) for: ADEYEMI BOLA|100.00");
    EXPECT_EQ(ws.tableCount("BillAccum"), 2);
}

class DiscountTest : public SoundScreenTest {
protected:
    DiscountTest() : SoundScreenTest("frmBillDiscount") {}
    /// A bill of 2,500 naira of which 2,000 are paid.
    void SetUp() override {
        SoundScreenTest::SetUp();
        layVisit();
        layItem({.name = "WOUND DRESSING", .price = 2500});
        load();
        save();
        ui.forgetBoxes();
        pay(2000);
    }
    /// Takes a receipt on the loaded bill.
    void pay(double amount) {
        load();
        set("chkRct", "yes");
        set("cboPayFor", "DRUGS");
        set("txtAmt(0)", QString::number(amount));
        save();
        ui.forgetBoxes();
    }
    void fill(const QString& type, const QString& amount) {
        open("frmBillDiscount");
        for (const char* picker : {"DTPicker1", "DTPicker2", "dtDate"})
            set(picker, ws.scalar("select bdate from Billing"));
        click("cmdInv");
        pick("cboVehNo", billNo);
        set("cboClinic", type);
        set("cboCat", type);
        set("txtHt", amount);
    }
    void give(const QString& type, const QString& amount) {
        fill(type, amount);
        save();
        EXPECT_BOXES(ui, {"Record Succesfully saved"});
    }
};
ORVANE_ON_EACH_ENGINE(DiscountTest);

TEST_P(DiscountTest, ChecksInOrder) {
    fill("DISCOUNT", "");
    EXPECT_EQ(value("Label5"), "Bill/Discount for: ADEYEMI BOLA");
    EXPECT_EQ(shown("txtDue lblAmt"), "500.00|2,000.00");
    expectChecks({{"dtDate", "", "Please enter  Amount", "txtHt"},
                  {"txtHt", "10", "Please enter date", "dtDate"},
                  {"cboClinic", "", "Please Specify Entry type", "cboClinic"},
                  {"cboClinic", "BILL"},
                  {"dtDate", "2026-03-14", "Please enter Remarks", "cboCat"},
                  {"cboClinic", "DISCOUNT"},
                  {"txtHt", "-10", "Please enter  Amount"},
                  {"txtHt", "0.001", "Please enter  Amount"},
                  {"txtHt", "ten", "Please enter  Amount"}});
    EXPECT_EQ(value("cboCat"), "DISCOUNT");
    click("cmdInv");
    expectChecks({{"txtHt", "10", "Please enter Amount Due"}});
    EXPECT_EQ(lines(), "WOUND DRESSING|2500");
}

TEST_P(DiscountTest, ProcessedBillTakesNone) {
    fill("DISCOUNT", "100");
    ws.run("update Billing set isProcess=1");
    expectChecks({{nullptr, nullptr, "This Bill is already processed! to Modify, unProcess the Batch"}});
    EXPECT_EQ(lines() + bill() + value("txtHt"), "WOUND DRESSING|2500"
                                                 "2500|2000|0"
                                                 "100");
    ws.run("update Billing set isProcess=0"); // no invoice holds it
}

/// What a receipt pays is spread over the lines that are left, the discount among them: the shares add up to it.
TEST_P(DiscountTest, ReceiptOverADiscountAddsUp) {
    give("DISCOUNT", "300");
    layItem({.name = "MALARIA PARASITE", .price = 1500});
    pay(1200);
    EXPECT_EQ(
        rows("select BillItem, AmountPaid, AmountToPay from PaymentDetails where ReceiptNo=(select max(ReceiptNo) "
             "from Payments) order by SNo"),
        "DISCOUNT|-300|-300\nMALARIA PARASITE|1500|1500");
    EXPECT_EQ(rows("select Amountbilled, AmountPaid from Billing"), "3700|3200");
    give("DISCOUNT", "200");
    pay(300);
    EXPECT_EQ(
        rows("select BillItem, AmountPaid from PaymentDetails where ReceiptNo=(select max(ReceiptNo) from Payments) "
             "order by SNo"),
        "DISCOUNT|-200\nBALANCE_PAYMENT|500");
    EXPECT_EQ(bill(), "3500|3500|0") << "isPaid is the receipt screens' matter";
}

} // namespace
} // namespace orvane
