#include "VerifyTest.h"
#include "support/ChecksInOrder.h"

namespace orvane {

class DiscountTest : public SoundBillTest {
protected:
    /// A bill of 2,500 naira of which 2,000 are paid.
    void SetUp() override {
        SoundBillTest::SetUp();
        layVisit();
        item({.name = "WOUND DRESSING", .price = 2500});
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
        if (!ws.program.loadedForm("frmBillDiscount"))
            ws.open("frmBillDiscount");
        for (const char* picker : {"DTPicker1", "DTPicker2", "dtDate"})
            ws.set("frmBillDiscount." + QLatin1StringView(picker), ws.scalar("select bdate from Billing"));
        ws.click("frmBillDiscount.cmdInv");
        ws.pick("frmBillDiscount.cboVehNo", QString::fromLatin1(billNo));
        ws.set("frmBillDiscount.cboClinic", type);
        ws.set("frmBillDiscount.cboCat", type);
        ws.set("frmBillDiscount.txtHt", amount);
    }
    void give(const QString& type, const QString& amount) {
        fill(type, amount);
        ui.answer(true);
        ws.click("frmBillDiscount.OKButton");
        ui.takeQuestions();
        EXPECT_BOXES(ui, {"Record Succesfully saved"});
    }
    QString bill() { return rows("select Amountbilled, isPaid from Billing"); }
};

TEST_P(DiscountTest, ChecksInOrder) {
    fill("DISCOUNT", "");
    EXPECT_EQ(ws.value("frmBillDiscount.Label5"), "Bill/Discount for: ADEYEMI BOLA");
    EXPECT_EQ(ws.value("frmBillDiscount.txtDue") + '|' + ws.value("frmBillDiscount.lblAmt"), "500.00|2,000.00");
    expectChecksInOrder(ws, "frmBillDiscount", "OKButton",
                        {{"dtDate", "", "Please enter  Amount", "txtHt"},
                         {"txtHt", "10", "Please enter date", "dtDate"},
                         {"cboClinic", "", "Please Specify Entry type", "cboClinic"},
                         {"cboClinic", "BILL"},
                         {"dtDate", "2026-03-14", "Please enter Remarks", "cboCat"},
                         {"cboClinic", "DISCOUNT"},
                         {"txtHt", "-10", "Please enter  Amount"},
                         {"txtHt", "0.001", "Please enter  Amount"},
                         {"txtHt", "ten", "Please enter  Amount"}});
    EXPECT_EQ(ws.value("frmBillDiscount.cboCat"), "DISCOUNT");
    ws.click("frmBillDiscount.cmdInv");
    expectChecksInOrder(ws, "frmBillDiscount", "OKButton", {{"txtHt", "10", "Please enter Amount Due"}});
    EXPECT_EQ(lines(), "WOUND DRESSING|2500");
}

TEST_P(DiscountTest, ProcessedBillAndFaultChangeNothing) {
    fill("DISCOUNT", "100");
    ws.run("update Billing set isProcess=1");
    const auto press = [&](const char* text, bool asks) {
        if (asks)
            ui.answer(true);
        ws.click("frmBillDiscount.OKButton");
        ui.takeQuestions();
        ws.program.data().setStatementHook({});
        EXPECT_BOXES(ui, {text});
        EXPECT_EQ(lines(), "WOUND DRESSING|2500");
        EXPECT_EQ(bill(), "2500|0");
        EXPECT_EQ(ws.tableCount("billDiscounts"), 0);
        EXPECT_EQ(ws.value("frmBillDiscount.txtHt"), "100");
    };
    press("This Bill is already processed! to Modify, unProcess the Batch", false);
    ws.run("update Billing set isProcess=0");
    breakAt(ws.program, "isPaid");
    press("disk full", true);
    ui.answer(true);
    ws.click("frmBillDiscount.OKButton");
    ui.forgetBoxes();
    EXPECT_EQ(bill(), "2400|0");
}

/// What a receipt pays is spread over the lines that are left, the discount among them: the shares add up to it.
TEST_P(DiscountTest, ReceiptOverADiscountAddsUp) {
    give("DISCOUNT", "300");
    item({.name = "MALARIA PARASITE", .price = 1500});
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
    EXPECT_EQ(bill(), "3500|0") << "isPaid is the receipt screens' matter";
}

ORVANE_ON_EACH_ENGINE(DiscountTest);

} // namespace orvane
