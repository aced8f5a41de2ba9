#include "support/Print.h"
#include "support/ScreenTest.h"

namespace orvane {

/// A batch of two bills of an HMO and one of a company, on the review screen.
class Review : public ScreenTest {
protected:
    Review() : ScreenTest("frmBillProcess") {}

    void SetUp() override {
        ScreenTest::SetUp();
        const std::pair<const char*, const char*> bills[] = {{"A", "0201"}, {"B", "0201"}, {"C", "0102"}};
        Connection billing = ws.billing();
        makePatient(billing);
        for (const auto& [bill, client] : bills) {
            makeVisit(billing, {.consultID = bill, .category = "HMO", .client = client});
            ws.run(QStringLiteral("insert into Billing (billNo, PNo, Amountbilled, isProcess) values ('%1', 'P/0001', "
                                  "300, %2)")
                       .arg(bill)
                       .arg(*bill == 'B'));
            for (const char* type : {"DRUGS", "UNKNOWN"}) {
                const qlonglong sno = makeItem(billing, {.consultID = bill, .client = client, .price = 150});
                ws.run(QStringLiteral("insert into BillingDetails (SNo, billNo, PNo, dtDate, drgName, Price, Qty, "
                                      "SubTotal, revType) values (%1, '%2', 'P/0001', '2026-03-14', '%3', 150, 1, 150, "
                                      "'%3')")
                           .arg(sno)
                           .arg(bill, type));
            }
        }
        ws.run("update hRecords set BillDate='2026-03-14'");
        open();
    }
};

TEST_P(Review, TheMonthThatNobodyTouchedIsTheOneShown) {
    EXPECT_EQ(shown("cboMonth cboYear lblCnt"), "March|2026|");
    click("cmdLoad");
    EXPECT_EQ(ws.program.session.sBatchNo, "2026/03");
    EXPECT_EQ(shown("lblCnt cboCoy lblAmt lblDetails"), "3 records found|(ALL)|900.00|Details Amt: 300.00");
    pick("cboCoy", "CLEARWATER HMO [0201]");
    EXPECT_EQ(value("lblCnt"), "2 records found");
    set("txtSearch", "ADE");
    EXPECT_EQ(value("lblCnt"), "3 records found");
    set("txtSearch", "X");
    EXPECT_EQ(value("lblCnt"), "0 records found");
    pick("cboMonth", 0);
    EXPECT_EQ(told("cmdLoad"), "Select Billing Period");
}

TEST_P(Review, ACodeAndADiagnosisGoOnTheCurrentBill) {
    EXPECT_EQ(told("cmdOK"), "Specify Billno");
    click("cmdLoad");
    row("grdData", "A");
    set("txtApprv", " AP/1 ");
    set("txtDiag", "CROHN'S");
    EXPECT_EQ(told("cmdOK"), "");
    EXPECT_EQ(rows("select consultID, ApprvCode, ApprvDate, billType, PNo from hApprvCode"),
              "A|AP/1|2026-03-14||P/0001");
    EXPECT_EQ(rows("select billNo from Billing where diagnosis='CROHN''S'"), "A");
    EXPECT_EQ(shown("txtApprv txtDiag"), "|");
    Connection billing = ws.billing();
    for (const char* text : {"fever", "cough's"})
        makeConsultation(billing, {.consultID = "C", .diagnosis = text});
    EXPECT_EQ(told("cmDiag"), "Diagnosis Successfully Added to Bills");
    EXPECT_EQ(ws.scalar("select diagnosis from Billing where billNo='C'"), "FEVER\r\nCOUGH'S\r\n");
    EXPECT_EQ(ws.scalar("select diagnosis from Billing where billNo='A'"), "CROHN'S") << "has no consultation";
}

TEST_P(Review, ALineStandsUnderItsRevenueType) {
    ws.run("update BillingDetails set BillHead='BY HAND' where billNo='A' and revType='DRUGS'");
    click("cmdLoad");
    int left = 0;
    ui.inModal("frmRptHeading", [&](Form& form) {
        left = dynamic_cast<Grid*>(form.find("grdData2"))->rowCount();
        form.unload();
    });
    EXPECT_EQ(told("cmdRpt"), "Some Bill Items Have No RptHeadings Please Update");
    EXPECT_EQ(left, 3);
    EXPECT_EQ(rows("select billNo, BillHead from BillingDetails where BillHead <> '' order by billNo"),
              "A|BY HAND\nB|DRUGS\nC|DRUGS");
    ws.run("update BillingDetails set revType='DRUGS'");
    EXPECT_EQ(told("cmdRpt"), "RptHeadings updated for this Batch");
}

TEST_P(Review, ALineIsTakenOffAProcessedBillTooButNotChanged) {
    click("cmdLoad");
    row("grdData", "B");
    EXPECT_EQ(told("cmdCust"), "This Bill Item cannot be Adjusted/Customized!! Already Processed\r\n"
                               "To Adjust, Reverse the processing for the Company");
    ui.answer(true);
    EXPECT_EQ(told("cmdAdjust"), " Detail Item successfully Removed");
    EXPECT_EQ(rows("select Amountbilled, AmountBIlledInWord from Billing where billNo='B'").left(4), "150|");
    EXPECT_EQ(rows("select count(*) as n from BillAccum where consultID='B'"), "1");
    EXPECT_EQ(audit("Remove Bill Item%"), "Remove Bill Item for ADEYEMI BOLA|DRUGS: Qty:1 Amount: 150.00");
    EXPECT_EQ(value("lblDetails"), "Details Amt: 150.00");
    ws.run("update Billing set Amountbilled=1 where billNo='C'");
    click("cmdShow");
    EXPECT_EQ(value("lblCnt"), "1 records found");
}

TEST_P(Review, AnEarlierPeriodThanTheNewestBatchIsNotProcessed) {
    ws.run("insert into BillsForClients (BatchNo, CoyCode) values ('2026/04', '0201')");
    EXPECT_EQ(told("cmdProcess"), "Invalid Batch No! Please Select a higher Transaction Period");
    EXPECT_EQ(focused(), "cboMonth");
    set("chkBatch", "yes");
    EXPECT_EQ(items("cboVehNo"), QStringList({"", "2026/04"}));
}

ORVANE_ON_EACH_ENGINE(Review);

} // namespace orvane
