#include "VerifyTest.h"

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
    EXPECT_EQ(ws.scalar("select AmountBIlledInWord from Billing"), "TWO THOUSAND, ONE HUNDRED NAIRA");
    EXPECT_EQ(rows("select dtDate, billNo, Remarks, entryBy from billDiscounts where Amount=0.5"),
              "2026-03-14|001OFL0000001|DISCOUNT|amina.b");
    EXPECT_EQ(rows("select drgName, Price, Qty, SubTotal from BillingDetails where SNo < 0 order by detID"),
              "DISCOUNT|-499.5|1|-499.5\nDISCOUNT|-0.5|1|-0.5\nBILL|100|1|100");
}

TEST_P(DiscountTest, ChecksInOrder) {
    fill("DISCOUNT", "");
    EXPECT_EQ(ws.value("frmBillDiscount.Label5"), "Bill/Discount for: ADEYEMI BOLA");
    EXPECT_EQ(ws.value("frmBillDiscount.txtDue") + '|' + ws.value("frmBillDiscount.lblAmt"), "500.00|2,000.00");
    const auto refused = [&](const char* text) {
        ws.click("frmBillDiscount.OKButton");
        EXPECT_BOXES(ui, {text});
    };
    ws.set("frmBillDiscount.dtDate", "");
    refused("Please enter  Amount");
    ws.set("frmBillDiscount.txtHt", "10");
    refused("Please enter date");
    ws.set("frmBillDiscount.cboClinic", "");
    refused("Please Specify Entry type");
    ws.set("frmBillDiscount.cboClinic", "BILL");
    ws.set("frmBillDiscount.dtDate", "2026-03-14");
    EXPECT_EQ(ws.value("frmBillDiscount.cboCat"), "") << "a further charge is named freely";
    refused("Please enter Remarks");
    ws.set("frmBillDiscount.cboClinic", "DISCOUNT");
    EXPECT_EQ(ws.value("frmBillDiscount.cboCat"), "DISCOUNT");
    for (const char* amount : {"-10", "0", "0.001", "ten"}) {
        ws.set("frmBillDiscount.txtHt", amount);
        refused("Please enter  Amount");
    }
    ws.click("frmBillDiscount.cmdInv");
    ws.set("frmBillDiscount.txtHt", "10");
    refused("Please enter Amount Due");
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

    // A commit that nobody saw may have saved it: the next press looks, and the same line is not given again.
    fill("DISCOUNT", "100");
    breakAt(ws.program, "transaction committed");
    ui.answer(true);
    ws.click("frmBillDiscount.OKButton");
    ui.takeQuestions();
    EXPECT_TRUE(ui.takeBoxes().join('|').contains("It is not known whether it was saved."));
    ws.program.data().setStatementHook({});
    ws.click("frmBillDiscount.OKButton");
    EXPECT_BOXES(
        ui, {"The entry was saved before the connection broke. It is not saved again.", "Record Succesfully saved"});
    ws.click("frmBillDiscount.OKButton");
    EXPECT_BOXES(ui, {"Please enter  Amount"});
    EXPECT_EQ(bill(), "2300|0");
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
