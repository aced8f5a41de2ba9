#include "VerifyTest.h"

namespace orvane {

namespace {

class Fees : public SoundBillTest {
protected:
    void chargeScheme(const QString& percent, const QString& text = "SCHEME FEE") {
        set("txtNHIS", percent);
        ui.answer(text);
        click("cmdNHIS");
        EXPECT_QUESTIONS(ui, {"Enter Item Description"});
    }
    QString fee() {
        return rows(
            "select a.Price, a.SubTotal, d.SubTotal, a.revType, d.revType, a.Category, a.billType, a.Capitated, "
            "a.attendedto, a.isBilled, a.suppres, a.conID, d.BillBy from BillAccum a inner join BillingDetails d "
            "on d.SNo=a.SNo where a.drgName='SCHEME FEE'");
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
        click("cmdNHIS");
        EXPECT_BOXES(ui, {"Specify NHIS fee! Numeric Only"});
    }
    set("txtNHIS", "5");
    ui.answerCancel();
    click("cmdNHIS");
    EXPECT_EQ(ws.tableCount("BillAccum"), 1);
    ui.takeQuestions();
}

TEST_P(Fees, ProfessionalFeeIsWholeKoboAndBilledOnce) {
    layVisit();
    item({.name = "DRUG", .price = 1000.55});
    load();
    set("txtProf", "7.5");
    click("cmdBill");
    EXPECT_BOXES(ui, {"7.5% Prof fee of 1,000.55 Added\nProf Fee is based on Current Bill\nProf Fee Charged is 75.04"});
    EXPECT_EQ(rows("select drgName, Price, Qty, SubTotal, billType, Category, Capitated, PNo, coyName, billTo, suppres "
                   "from BillAccum where drgName like 'Prof%'"),
              "Prof Fee (7.5%)|75.04|1|75.04|SERVICE|CONSULTATION|NO|P/0001|0001|0001|0");
    EXPECT_EQ(account(), "-1000.55|-1000.55|DRUG\n-75.04|-1075.59|Prof Fee (7.5%)");
    click("cmdRefresh");
    EXPECT_EQ(value("lblCurr"), "1,075.59");
    EXPECT_EQ(audit("insert Prof Fee"), "insert Prof Fee (7.5%) for: ADEYEMI BOLA|75.04");
}

/// Its collation fails behind it: a user who read that nothing was saved would charge it twice.
TEST_P(Fees, AFaultBehindASavedFeeSaysThatItIsSaved) {
    layVisit();
    item({.name = "DRUG", .price = 1000});
    load();
    set("txtProf", "10");
    breakAt(ws.program, "into [BillingDetails]");
    click("cmdBill");
    EXPECT_BOXES(ui, {"The entry was saved. Only what follows it could not be done:\ndisk full"});
    ws.program.data().setStatementHook({});
    load();
    EXPECT_EQ(lines(), "DRUG|1000\nProf Fee (10%)|100");
    EXPECT_EQ(ws.tableCount("BillAccum"), 2);
}

/// Until the user comes back for the answer, another screen may have worked on another visit.
TEST_P(Fees, UnknownCommitIsFollowedOnTheBillOfTheScreen) {
    layVisit();
    layVisit({.pno = "P/0002", .surname = "OTHER"}, {.consultID = "001OFL0000002", .pno = "P/0002"});
    item({.name = "DRUG", .price = 1000});
    load();
    set("txtProf", "10");
    bool feeWritten = false;
    ws.program.data().setStatementHook([&feeWritten](const QString& tsql) {
        feeWritten = feeWritten || tsql.contains("Prof Fee");
        if (feeWritten && tsql == "transaction committed")
            throw DataError("the cable was pulled");
    });
    click("cmdBill");
    EXPECT_TRUE(ui.takeBoxes().join('|').contains("It is not known whether it was saved."));
    ws.program.data().setStatementHook({});
    ws.program.session.gConsultID = "001OFL0000002";
    ws.program.session.sBillPno = "P/0002";
    ws.program.session.gSearchBillNo = "001OFL0000002";
    ws.open("frmBillingVerify");
    EXPECT_EQ(ui.takeBoxes().size(), 2) << "the worklist's hand-over asks for the answer too";
    ws.open("frmBillingVerify");
    EXPECT_EQ(value("lblBill"), billNo);
    EXPECT_EQ(value("lblCurr"), "1,100.00");
    EXPECT_EQ(value("lblAmtDue"), "1,100.00");
    EXPECT_EQ(rows("select billNo, PNo, Amountbilled from Billing order by ID"), "001OFL0000001|P/0001|1100");
    EXPECT_EQ(lines(), "DRUG|1000\nProf Fee (10%)|100");
}

} // namespace

} // namespace orvane
