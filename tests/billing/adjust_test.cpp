#include "support/ScreenTest.h"

namespace orvane {
namespace {

const char* const processed = "This Bill is already processed! to Modify, unProcess the Batch";
const char* const billed = "Please Note! This Selected Item is Already Billed";

/// One item of the loaded bill is changed on "Bill Adjustment".
class Adjust : public SoundScreenTest {
protected:
    Adjust() : SoundScreenTest("frmBillingVerify") {}
    void SetUp() override {
        SoundScreenTest::SetUp();
        ws.run("update hRevenueType set Active='NO' where revType='OTHERS'");
    }
    /// Opens the item's adjustment from the grid; `acts`, with it in hand, must close it.
    void adjust(const QString& name, std::function<void()> acts) {
        row("grdData", name);
        ui.inModal("frmPriceAdjustVerify", [this, acts](Form& form) {
            takeInHand(form.name());
            acts();
            takeInHand("frmBillingVerify");
        });
        dblClick("grdData");
    }
    void remove() {
        ui.answer(true);
        click("cmdCancel");
        EXPECT_QUESTIONS(ui, {"Are you sure to Remove Bill Item"});
    }
    void change(const QString& name, const QString& qty, const QString& price, const QString& capitated = "NO") {
        adjust(name, [&] {
            set("txtQty", qty);
            set("txtPrice", price);
            set("cboCap", capitated);
            click("cmdSave");
        });
        ui.forgetBoxes();
    }
    QString words() { return rows("select Amountbilled, AmountBIlledInWord from Billing"); }
};
ORVANE_ON_EACH_ENGINE(Adjust);

TEST_P(Adjust, ChecksInOrder) {
    layVisit();
    layItem({.name = "WOUND DRESSING", .billType = "SERVICE", .revType = "", .price = 2500});
    load();
    adjust("WOUND DRESSING", [&] {
        EXPECT_EQ(ws.form("frmPriceAdjustVerify").caption(), "Adjust Bill for ADEYEMI BOLA");
        EXPECT_EQ(shown("txtDrug txtQty txtPrice lblSub cboCap cboRev cboPat cboAttend"),
                  "WOUND DRESSING|1|2500.00|2,500.00|NO|SERVICES|PRIVATE PATIENTS|YES");
        EXPECT_EQ(items("cboPat"), (QStringList{"", "PRIVATE PATIENTS"}));
        EXPECT_BOXES(ui, {billed});
        expectChecks({{"txtPrice", "a", " Please enter valid price ", "txtPrice"},
                      {"txtQty", ""},
                      {"txtPrice", "2500", " Please enter valid price "},
                      {"txtDrug", " "},
                      {"cboRev", "OTHERS"},
                      {"cboCap", ""},
                      {"txtQty", "1", "Please specify Capitation", "cboCap"},
                      {"cboCap", "NO", "Please specify Revenue Type!", "cboRev"},
                      {"cboRev", "SERVICES", "Please specify Item", "txtDrug"}},
                     "cmdSave");
        set("chkAll", "yes");
        EXPECT_EQ(state("txtPrice"), "visible disabled");
        click("CancelButton");
    });
    EXPECT_EQ(lines(), "WOUND DRESSING|2500");
    EXPECT_EQ(ws.tableCount("BillingDetailsAdjust"), 0);
}

TEST_P(Adjust, BillAndAccountFollowThePrice) {
    layVisit();
    const qlonglong sno = layItem({.price = 50, .qty = 10});
    layItem({.name = "MALARIA PARASITE", .price = 1500});
    load();
    const struct {
        const char *qty, *price, *total, *entry;
    } steps[] = {{"20", "50", "2500", "-500|-2500"},
                 {"3", "33.335", "1600.01", "899.99|-1600.01"},
                 {"1", "100", "1600", "0.01|-1600"}};
    for (const auto& step : steps) {
        change("PARACETAMOL 500MG", step.qty, step.price);
        EXPECT_EQ(ws.scalar("select Amountbilled from Billing"), step.total);
        EXPECT_EQ(account().section('\n', -1), QString(step.entry) + "|Adjusted Bill Item: PARACETAMOL 500MG");
        EXPECT_EQ(rows("select SubTotal from BillAccum where drgName='PARACETAMOL 500MG'"),
                  rows("select SubTotal from BillingDetails where drgName='PARACETAMOL 500MG'"));
    }
    EXPECT_EQ(ws.control<Grid>("frmBillingVerify.grdData").text("Service"), "PARACETAMOL 500MG");
    EXPECT_EQ(
        rows("select top 1 AdjustDate, billNo, BillItem, OldQty, newQty, OldPrice, newPrice, AdjustBy, Remarks from "
             "BillingDetailsAdjust order by SNo"),
        "2026-03-14|001OFL0000001|PARACETAMOL 500MG|10|20|50|50|amina.b|BILL ADJUST");
    EXPECT_EQ(audit("Bill Adjustment: %").section('\n', 0, 0),
              "Bill Adjustment: Item from: PARACETAMOL 500MG : => PARACETAMOL 500MG| Qty from: 10 : => 20 price from: "
              "50.00 : => 50.00");

    // Nothing changed: nothing is written about it.
    change("PARACETAMOL 500MG", "1", "100");
    EXPECT_EQ(ws.tableCount("Tranxaction") + ws.tableCount("BillingDetailsAdjust"), 8);
    EXPECT_EQ(ws.scalar("select SNo from BillAccum where drgName='PARACETAMOL 500MG'"), QString::number(sno));
    change("PARACETAMOL 500MG", "1", "100", "YES");
    EXPECT_EQ(account().section('\n', -1), "100|-1500|Bill Item Capitated: PARACETAMOL 500MG");
    EXPECT_EQ(lines(), "MALARIA PARASITE|1500") << "an item at no charge is taken away by the next collation";
}

TEST_P(Adjust, WaitingItemIsBilledOrLeavesTheBill) {
    layVisit({.category = "HMO", .client = "0201"}, {.category = "HMO", .client = "0201"});
    layItem({.name = "FIRST", .client = "0201", .price = 40, .capitated = "YES"});
    layItem({.name = "SECOND", .client = "0201", .price = 1200, .capitated = "YES"});
    load();
    adjust("FIRST", [&] {
        EXPECT_EQ(value("cboCap") + value("cboAttend"), "YESNO");
        click("cmdSave");
    });
    EXPECT_EQ(rows("select Capitated, attendedto, isBilled from BillAccum where drgName='FIRST'"), "YES|1|1");
    EXPECT_EQ(lines(), "");

    // The patient pays this one himself.
    adjust("SECOND", [&] {
        set("cboCap", "NO");
        set("cboPat", "PRIVATE PATIENTS");
        click("cmdSave");
    });
    EXPECT_EQ(
        rows("select dtDate, billNo, drgName, Price, Qty, SubTotal, dosage, BillType, Capitated, billTo, coyName, "
             "revType, BillBy from BillingDetails"),
        "2026-03-14|001OFL0000001|SECOND|1200|1|1200|N/A|SERVICE|NO|0001|0201|DRUGS|amina.b");
    EXPECT_EQ(rows("select attendedto, isBilled, billTo, Capitated from BillAccum where drgName='SECOND'"),
              "1|1|0001|NO");
    EXPECT_EQ(account(), "-1200|-1200|New Bill Item: SECOND");
    EXPECT_EQ(words(), "1200|ONE THOUSAND, TWO HUNDRED NAIRA");
    EXPECT_EQ(audit("insert BillDetails Item for %"), "insert BillDetails Item for ADEYEMI BOLA|SECOND: 1200.00");
}

TEST_P(Adjust, RemovalGivesBackWhatWasChargedAndNoMore) {
    layVisit();
    layItem({.name = "FIRST", .price = 700});
    layItem({.name = "SECOND", .price = 300.5, .qty = 2});
    load();
    adjust("SECOND", [&] {
        set("txtPrice", "9");
        remove();
    });
    EXPECT_BOXES(ui, {billed, " Bill Item successfully Removed"});
    EXPECT_EQ(account().section('\n', -1), "601|-700|Bill Item Removed: SECOND");
    EXPECT_EQ(words(), "700|SEVEN HUNDRED NAIRA");
    EXPECT_EQ(rows("select BillItem, OldQty, newQty, OldPrice, newPrice, Remarks from BillingDetailsAdjust"),
              "SECOND|2|0|300.5|0|BILL DELETED");
    EXPECT_EQ(audit("Remove Bill Item%"), "Remove Bill Item for ADEYEMI BOLA|SECOND: Qty:2 Amount: 601.00");
    layItem({.name = "NEVER CHARGED", .price = 50, .capitated = "YES"});
    ws.run("update BillAccum set attendedto=1 where drgName='NEVER CHARGED'");
    click("cmdRefresh");
    for (const char* name : {"NEVER CHARGED", "FIRST"})
        adjust(name, [&] { remove(); });
    EXPECT_EQ(rows("select Amountbilled from Billing") + debt(), "00");
    EXPECT_EQ(ws.tableCount("BillAccum") + ws.tableCount("BillingDetails"), 0);
    ui.forgetBoxes();
    EXPECT_EQ(told("cmdPrice"), "Please specify Item") << "nothing is left to adjust";
}

/// The batch, or another officer, comes between the look at the item and the press of the button.
TEST_P(Adjust, ProcessedOrChangedItemIsRefused) {
    layVisit();
    layItem({.price = 700});
    load();
    adjust("PARACETAMOL 500MG", [&] {
        set("txtPrice", "900");
        ws.run("update Billing set isProcess=1");
        click("cmdSave");
        click("cmdCancel");
        EXPECT_BOXES(ui, {billed, processed, processed});

        // Taken after the first look.
        for (const char* button : {"cmdSave", "cmdCancel"}) {
            ws.run("update Billing set isProcess=0");
            runBeforeTransaction("update Billing set isProcess=1");
            save(button);
            EXPECT_BOXES(ui, {processed}) << button;
        }
        ws.run("update Billing set isProcess=0");
        ws.run("update BillAccum set Price=750, SubTotal=750");
        save("cmdSave");
        save("cmdCancel");
        for (const QString& text : ui.takeBoxes())
            EXPECT_TRUE(text.startsWith("Row cannot be located for updating.")) << text.toStdString();
        ws.run("update BillAccum set Price=700, SubTotal=700");
        click("CancelButton");
    });
    EXPECT_EQ(lines(), "PARACETAMOL 500MG|700");
    EXPECT_EQ(debt(), "-700");
    EXPECT_EQ(ws.tableCount("BillingDetailsAdjust"), 0);
}

TEST_P(Adjust, AsksForTheTariffAndRemembersTheChoice) {
    layVisit({.category = "HMO", .client = "0201"}, {.category = "HMO", .client = "0201", .referal = "YES"});
    layItem({.client = "0201", .price = 40});
    ws.run("update BillAccum set Category='TABLETS'");
    load();
    adjust("PARACETAMOL 500MG", [&] {
        set("txtPrice", "45");
        set("cboRev", "SERVICES");
        set("cboPat", "PRIVATE PATIENTS");
        set("chkRct", "yes");
        click("cmdSave");
    });
    EXPECT_BOXES(ui, {billed, "Request Submitted"});
    EXPECT_EQ(rows("select ItemName, OldPrice, newPrice, revType, coyName, billNo, Category from TariffAdjust"),
              "PARACETAMOL 500MG|40|45|SERVICES|0201|001OFL0000001|TABLETS");
    EXPECT_EQ(rows("select Price, Capitated, RevType from DrugNHIS where drgName='PARACETAMOL 500MG' order by company"),
              "50|NO|DRUGS\n40|NO|SERVICES")
        << "the client's template takes the flags, and no template the price";
    EXPECT_EQ(rows("select billTo, revType from BillAccum"), "0201|SERVICES") << "a request moves no payer";
}

TEST_P(Adjust, CapitatedBillKeepsItsMark) {
    layVisit({.category = "HMO", .client = "0201"}, {.category = "HMO", .client = "0201"});
    layItem({.client = "0201", .price = 40, .qty = 10, .capitated = "NO"});
    load();
    save();
    save("cmdCap");
    EXPECT_EQ(words(), "0|XXX");
    change("PARACETAMOL 500MG", "5", "40", "YES");
    EXPECT_EQ(words(), "0|XXX");
    change("PARACETAMOL 500MG", "5", "40", "NO");
    EXPECT_EQ(words(), "200|TWO HUNDRED NAIRA");
    EXPECT_EQ(ws.tableCount("Tranxaction"), 0) << "a client's item leaves the patient's account alone";
}

/// The screens that change one row each: of the items, or of the lines of a collated bill.
class NarrowAdjust : public SoundScreenTest {
protected:
    NarrowAdjust() : SoundScreenTest("frmPriceAdjust") {}
    /// A company's bill with one line, which the row in hand names.
    void SetUp() override {
        SoundScreenTest::SetUp();
        layVisit({.category = "MTHLY", .client = "0102"}, {.category = "MTHLY", .client = "0102"});
        ws.program.session.lWorkSNo = layItem({.name = "MALARIA PARASITE",
                                               .billType = "INVESTIGATION",
                                               .revType = "LABORATORY",
                                               .client = "0102",
                                               .price = 1500,
                                               .qty = 2});
        layItem({.name = "OTHER", .client = "0102", .price = 100});
        load();
        save();
        ui.forgetBoxes();
    }
    /// The bill, its lines, its items and what was said about them.
    QString everything() {
        return QStringList{
            rows("select Amountbilled, AmountBIlledInWord from Billing"),
            rows("select drgName, Price, Qty, SubTotal, BillType, BillHead, billTo from BillingDetails order by SNo"),
            rows("select drgName, Price, Qty, SubTotal, Capitated, billTo from BillAccum order by SNo"),
            rows("select count(*) as n from Tranxaction"), rows("select count(*) as n from BillingDetailsAdjust")}
            .join('\n');
    }
};
ORVANE_ON_EACH_ENGINE(NarrowAdjust);

TEST_P(NarrowAdjust, PriceAdjustWritesTheItemOnly) {
    open("frmPriceAdjust");
    EXPECT_EQ(shown("txtDrug lblSub cboCap"), "MALARIA PARASITE|3,000.00|NO");
    expectChecks({{"cboCap", ""},
                  {"txtDrug", ""},
                  {"txtPrice", "1e999", " Please enter valid price "},
                  {"txtPrice", "1,600.50", "Please specify Capitation"},
                  {"cboCap", "YES", "Please specify Service/Drug"}},
                 "cmdSave");
    set("txtDrug", " O'NEILL'S TEST ");
    const QString before = rows("select * from BillingDetails order by SNo");
    click("cmdSave");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(rows("select drgName, Price, Qty, SubTotal, Capitated from BillAccum where Price > 1000"),
              "O'NEILL'S TEST|1600.5|2|3201|YES");
    EXPECT_EQ(rows("select * from BillingDetails order by SNo"), before);
    EXPECT_EQ(audit("Bill Adjustment%"), "");
}

TEST_P(NarrowAdjust, SplitWritesThePayerOnly) {
    open("frmPriceAdjustSplit");
    EXPECT_EQ(value("cboPat"), "HARMONY MILLS LTD");
    EXPECT_EQ(state("txtPrice"), "visible enabled locked");
    expectChecks({{"cboPat", "", "Please specify Bill To"}}, "cmdSave");
    const QString before = everything();
    set("cboPat", "PRIVATE PATIENTS");
    click("cmdSave");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(everything(), QString(before).replace("INVESTIGATION||0102", "INVESTIGATION||0001"));
}

TEST_P(NarrowAdjust, CustomMovesTheBillAndChargesThePayer) {
    open("frmPriceAdjustCustom");
    EXPECT_TRUE(items("cboHead").contains("LABORATORY"));
    expectChecks({{"txtDrug", ""},
                  {"txtQty", "", " Please enter valid price "},
                  {"txtQty", "2", "Please specify Item"},
                  {"txtDrug", "MALARIA TEST", "Please specify Rpt Heading for this Bill Item"}},
                 "cmdSave");
    set("cboHead", "LABORATORY");
    set("txtPrice", "1,750.25");
    click("cmdSave");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(rows("select drgName, Price, Qty, SubTotal, BillType, BillHead, billTo from BillingDetails where SNo=1"),
              "MALARIA TEST|1750.25|2|3500.5|LAB|LABORATORY|0102");
    EXPECT_EQ(rows("select Amountbilled, AmountBIlledInWord from Billing"),
              "3600.5|THREE THOUSAND, SIX HUNDRED NAIRA AND FIFTY KOBO ONLY");
    EXPECT_EQ(
        audit("Bill Adjustment%"),
        "Bill Adjustment/Customize: Item from: MALARIA PARASITE : => MALARIA TEST| Qty from: 2 : => 2 price from: "
        "1500.00 : => 1750.25");
    EXPECT_EQ(account(), "") << "the company pays";

    // A heading alone is no change of the amount; a private payer bears what he takes over.
    open("frmPriceAdjustCustom");
    set("cboHead", "INVESTIGATIONS ABROAD");
    click("cmdSave");
    EXPECT_EQ(ws.scalar("select BillHead from BillingDetails where SNo=1"), "INVESTIGATIONS ABROAD");
    open("frmPriceAdjustCustom");
    set("cboPat", "PRIVATE PATIENTS");
    set("txtPrice", "1700");
    click("cmdSave");
    EXPECT_EQ(account(), "-3400|-3400|Adjusted Bill Item: MALARIA TEST");
    EXPECT_EQ(audit("Bill Adjustment%").count('\n'), 1);
}

TEST_P(NarrowAdjust, ProcessedBillAndMissingRowChangeNothing) {
    for (const char* screen : {"frmPriceAdjust", "frmPriceAdjustSplit", "frmPriceAdjustCustom"}) {
        SCOPED_TRACE(screen);
        open(screen);
        if (QString(screen) == "frmPriceAdjustCustom")
            set("cboHead", "LABORATORY");
        if (QString(screen) == "frmPriceAdjustSplit")
            set("cboPat", "PRIVATE PATIENTS");
        else
            set("txtPrice", "9");
        const QString before = everything();
        ws.run("update Billing set isProcess=1");
        expectChecks({{nullptr, nullptr, processed}}, "cmdSave");
        EXPECT_TRUE(isOpen());
        ws.run("update Billing set isProcess=0");
        EXPECT_EQ(everything(), before);
        click("CancelButton");
        const qlonglong sno = std::exchange(ws.program.session.lWorkSNo, 999);
        open(screen);
        EXPECT_EQ(state("cmdSave"), "visible disabled");
        click("CancelButton");
        ws.program.session.lWorkSNo = sno;
    }
}

} // namespace
} // namespace orvane
