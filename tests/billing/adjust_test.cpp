#include "VerifyTest.h"
#include "support/ChecksInOrder.h"

namespace orvane {

namespace {

const char* const processed = "This Bill is already processed! to Modify, unProcess the Batch";
const char* const billed = "Please Note! This Selected Item is Already Billed";

/// One item of the loaded bill is changed on "Bill Adjustment".
class Adjust : public SoundBillTest {
protected:
    void SetUp() override {
        SoundBillTest::SetUp();
        ws.run("update hRevenueType set Active='NO' where revType='OTHERS'");
    }
    /// Opens the item's adjustment from the grid; `acts` must close it.
    void adjust(const QString& name, std::function<void()> acts) {
        ws.row("frmBillingVerify.grdData", name);
        ui.inModal("frmPriceAdjustVerify", [acts](Form&) { acts(); });
        ws.dblClick("frmBillingVerify.grdData");
    }
    void put(const QString& control, const QString& text) { ws.set("frmPriceAdjustVerify." + control, text); }
    void press(const QString& button) { ws.click("frmPriceAdjustVerify." + button); }
    QString shown(const QString& control) { return ws.value("frmPriceAdjustVerify." + control); }
    void remove() {
        ui.answer(true);
        press("cmdCancel");
        EXPECT_QUESTIONS(ui, {"Are you sure to Remove Bill Item"});
    }
    void change(const QString& name, const QString& qty, const QString& price, const QString& capitated = "NO") {
        adjust(name, [&] {
            put("txtQty", qty);
            put("txtPrice", price);
            put("cboCap", capitated);
            press("cmdSave");
        });
        ui.forgetBoxes();
    }
    QString bill() { return rows("select Amountbilled, AmountBIlledInWord from Billing"); }
};

ORVANE_ON_EACH_ENGINE(Adjust);

TEST_P(Adjust, ChecksInOrder) {
    layVisit();
    item({.name = "WOUND DRESSING", .billType = "SERVICE", .revType = "", .price = 2500});
    load();
    adjust("WOUND DRESSING", [&] {
        EXPECT_EQ(ws.form("frmPriceAdjustVerify").caption(), "Adjust Bill for ADEYEMI BOLA");
        const QStringList shownValues = {
            shown("txtDrug"), shown("txtQty"),    shown("txtPrice"),
            shown("lblSub"),  shown("cboCap"),    shown("cboRev"),
            shown("cboPat"),  shown("cboAttend"), ws.items("frmPriceAdjustVerify.cboPat").join(',')};
        EXPECT_EQ(shownValues, (QStringList{"WOUND DRESSING", "1", "2500.00", "2,500.00", "NO", "SERVICES",
                                            "PRIVATE PATIENTS", "YES", ",PRIVATE PATIENTS"}));
        EXPECT_BOXES(ui, {billed});
        expectChecksInOrder(ws, "frmPriceAdjustVerify", "cmdSave",
                            {{"txtPrice", "a", " Please enter valid price ", "txtPrice"},
                             {"txtQty", ""},
                             {"txtPrice", "2500", " Please enter valid price "},
                             {"txtDrug", " "},
                             {"cboRev", "OTHERS"},
                             {"cboCap", ""},
                             {"txtQty", "1", "Please specify Capitation", "cboCap"},
                             {"cboCap", "NO", "Please specify Revenue Type!", "cboRev"},
                             {"cboRev", "SERVICES", "Please specify Item", "txtDrug"}});
        put("chkAll", "yes");
        EXPECT_EQ(ws.state("frmPriceAdjustVerify.txtPrice"), "visible disabled");
        press("CancelButton");
    });
    EXPECT_EQ(lines(), "WOUND DRESSING|2500");
    EXPECT_EQ(ws.tableCount("BillingDetailsAdjust"), 0);
}

TEST_P(Adjust, BillAndAccountFollowThePrice) {
    layVisit();
    const qlonglong sno = item({.price = 50, .qty = 10});
    item({.name = "MALARIA PARASITE", .price = 1500});
    load();
    const struct {
        const char *qty, *price, *total, *entry;
    } steps[] = {{"20", "50", "2500", "-500|-2500"},
                 {"20", "40.25", "2305", "195|-2305"},
                 {"3", "33.335", "1600.01", "704.99|-1600.01"},
                 {"-1", "100", "1400", "200.01|-1400"}};
    for (const auto& step : steps) {
        SCOPED_TRACE(step.total);
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
    EXPECT_EQ(audit("Bill Adjustment: ").section('\n', 0, 0),
              "Bill Adjustment: Item from: PARACETAMOL 500MG : => PARACETAMOL 500MG| Qty from: 10 : => 20 price from: "
              "50.00 : => 50.00");

    // Nothing changed: nothing is written about it.
    change("PARACETAMOL 500MG", "-1", "100");
    EXPECT_EQ(ws.tableCount("Tranxaction") + ws.tableCount("BillingDetailsAdjust"), 10);
    EXPECT_EQ(ws.scalar("select SNo from BillAccum where drgName='PARACETAMOL 500MG'"), QString::number(sno));
}

/// Turned capitated and back, an item is charged once and only while it is on the bill.
TEST_P(Adjust, CapitatedItemIsNotCharged) {
    layVisit();
    item({.price = 700});
    load();
    const struct {
        const char *capitated, *debt, *lines, *remark;
    } steps[] = {{"YES", "0", "", "Bill Item Capitated: PARACETAMOL 500MG"},
                 {"YES", "0", "", "Bill Item Capitated: PARACETAMOL 500MG"},
                 {"NO", "-700", "PARACETAMOL 500MG|700", "New Bill Item: PARACETAMOL 500MG"},
                 {"NO", "-700", "PARACETAMOL 500MG|700", "New Bill Item: PARACETAMOL 500MG"}};
    for (const auto& step : steps) {
        change("PARACETAMOL 500MG", "1", "700", step.capitated);
        EXPECT_EQ(debt(), step.debt);
        EXPECT_EQ(lines(), step.lines) << "an item at no charge is taken away by the next collation";
        EXPECT_EQ(ws.scalar("select top 1 Remarks from Tranxaction order by SNo desc"), step.remark);
    }
    EXPECT_EQ(ws.tableCount("Tranxaction"), 3);
}

TEST_P(Adjust, WaitingItemIsBilledOrLeavesTheBill) {
    layVisit({.category = "HMO", .client = "0201"}, {.category = "HMO", .client = "0201"});
    item({.name = "FIRST", .client = "0201", .price = 40, .capitated = "YES"});
    item({.name = "SECOND", .client = "0201", .price = 1200, .capitated = "YES"});
    load();
    adjust("FIRST", [&] {
        EXPECT_EQ(shown("cboCap") + shown("cboAttend"), "YESNO");
        press("cmdSave");
    });
    EXPECT_EQ(rows("select Capitated, attendedto, isBilled from BillAccum where drgName='FIRST'"), "YES|1|1");
    EXPECT_EQ(lines(), "");

    // The patient pays this one himself.
    adjust("SECOND", [&] {
        put("cboCap", "NO");
        put("cboPat", "PRIVATE PATIENTS");
        press("cmdSave");
    });
    EXPECT_EQ(
        rows("select dtDate, billNo, drgName, Price, Qty, SubTotal, dosage, BillType, Capitated, billTo, coyName, "
             "revType, BillBy from BillingDetails"),
        "2026-03-14|001OFL0000001|SECOND|1200|1|1200|N/A|SERVICE|NO|0001|0201|DRUGS|amina.b");
    EXPECT_EQ(rows("select attendedto, isBilled, billTo, Capitated from BillAccum where drgName='SECOND'"),
              "1|1|0001|NO");
    EXPECT_EQ(account(), "-1200|-1200|New Bill Item: SECOND");
    EXPECT_EQ(bill(), "1200|ONE THOUSAND, TWO HUNDRED NAIRA");
    EXPECT_EQ(audit("insert BillDetails Item for "), "insert BillDetails Item for ADEYEMI BOLA|SECOND: 1200.00");
}

TEST_P(Adjust, RemovalGivesBackWhatWasChargedAndNoMore) {
    layVisit();
    item({.name = "FIRST", .price = 700});
    item({.name = "SECOND", .price = 300.5, .qty = 2});
    load();
    adjust("SECOND", [&] {
        put("txtPrice", "9");
        remove();
    });
    EXPECT_BOXES(ui, {billed, " Bill Item successfully Removed"});
    EXPECT_EQ(account().section('\n', -1), "601|-700|Bill Item Removed: SECOND");
    EXPECT_EQ(bill(), "700|SEVEN HUNDRED NAIRA");
    EXPECT_EQ(rows("select BillItem, OldQty, newQty, OldPrice, newPrice, Remarks from BillingDetailsAdjust"),
              "SECOND|2|0|300.5|0|BILL DELETED");
    EXPECT_EQ(audit("Remove Bill Item"), "Remove Bill Item for ADEYEMI BOLA|SECOND: Qty:2 Amount: 601.00");

    item({.name = "NEVER CHARGED", .price = 50, .capitated = "YES"});
    ws.run("update BillAccum set attendedto=1 where drgName='NEVER CHARGED'");
    click("cmdRefresh");
    for (const char* name : {"NEVER CHARGED", "FIRST"})
        adjust(name, [&] { remove(); });
    EXPECT_EQ(rows("select Amountbilled from Billing") + debt(), "00");
    EXPECT_EQ(ws.tableCount("BillAccum") + ws.tableCount("BillingDetails"), 0);
    ui.forgetBoxes();
    click("cmdPrice");
    EXPECT_BOXES(ui, {"Please specify Item"}) << "nothing is left to adjust";
}

/// The batch, or another officer, comes between the look at the item and the press of the button.
TEST_P(Adjust, ProcessedOrChangedItemIsRefused) {
    layVisit();
    item({.price = 700});
    load();
    adjust("PARACETAMOL 500MG", [&] {
        put("txtPrice", "900");
        ws.run("update Billing set isProcess=1");
        press("cmdSave");
        press("cmdCancel");
        EXPECT_BOXES(ui, {billed, processed, processed});

        // Taken after the first look.
        ws.run("update Billing set isProcess=0");
        for (const char* button : {"cmdSave", "cmdCancel"}) {
            ws.program.data().setStatementHook([this](const QString& tsql) {
                if (tsql == "begin transaction") {
                    ws.program.data().setStatementHook({});
                    SecondHome otherHome(home);
                    Workstation(otherHome.folder()).run("update Billing set isProcess=1");
                }
            });
            if (QString(button) == "cmdCancel")
                ui.answer(true);
            press(button);
            EXPECT_BOXES(ui, {processed}) << button;
            ws.run("update Billing set isProcess=0");
        }
        ui.takeQuestions();

        ws.run("update BillAccum set Price=750, SubTotal=750");
        press("cmdSave");
        ui.answer(true);
        press("cmdCancel");
        for (const QString& text : ui.takeBoxes())
            EXPECT_TRUE(text.startsWith("Row cannot be located for updating.")) << text.toStdString();
        ws.run("update BillAccum set Price=700, SubTotal=700");
        press("CancelButton");
    });
    EXPECT_EQ(lines(), "PARACETAMOL 500MG|700");
    EXPECT_EQ(debt(), "-700");
    EXPECT_EQ(ws.tableCount("BillingDetailsAdjust"), 0);
}

TEST_P(Adjust, AsksForTheTariffAndRemembersTheChoice) {
    layVisit({.category = "HMO", .client = "0201"}, {.category = "HMO", .client = "0201", .referal = "YES"});
    item({.client = "0201", .price = 40});
    ws.run("update BillAccum set Category='TABLETS'");
    load();
    adjust("PARACETAMOL 500MG", [&] {
        put("txtPrice", "45");
        put("cboRev", "SERVICES");
        put("cboPat", "PRIVATE PATIENTS");
        put("chkRct", "yes");
        press("cmdSave");
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
    item({.client = "0201", .price = 40, .qty = 10, .capitated = "NO"});
    load();
    save();
    ui.answer(true);
    click("cmdCap");
    EXPECT_EQ(bill(), "0|XXX");
    change("PARACETAMOL 500MG", "5", "40", "YES");
    EXPECT_EQ(bill(), "0|XXX");
    change("PARACETAMOL 500MG", "5", "40", "NO");
    EXPECT_EQ(bill(), "200|TWO HUNDRED NAIRA");
    EXPECT_EQ(ws.tableCount("Tranxaction"), 0) << "a client's item leaves the patient's account alone";
}

} // namespace

} // namespace orvane
