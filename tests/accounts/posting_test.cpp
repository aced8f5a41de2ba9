// The screens that post to the ledger: their checks in order, their words, and what they posted.
#include "support/PostingActions.h"
#include "support/Print.h"
#include "support/Rows.h"
#include "support/ScreenTest.h"

namespace orvane {

class PostingScreens : public ScreenTest {
protected:
    PostingScreens() : ScreenTest("frmRevCashAcct") {}

    void prepare() override {
        layLedger(ws);
        layVisit();
        ws.run("insert into suppliers (supplierID, SupplierName, AccountNo) values ('0001', 'MEDICO', '2100')");
        ws.run("insert into StockEntryAcct (EntryDate, InvoiceDate, InvoiceNo, supplierID, Amount) values "
               "('2026-03-12','2026-03-10','I1','0001',100.1), ('2026-03-20','2026-03-12','I2','0001',50)");
        ws.run("insert into Payments (ReceiptDate, ReceiptNo, billNo, AmountPaid, PayType) values "
               "('2026-03-14','7','001OFL0000001',300.5,'CASH')");
    }
    void openMonth(const QString& form) {
        open(form);
        set("DTPicker1", "2026-03-01");
        set("DTPicker2", "2026-03-31");
        if (form != "frmRevCashAdjust")
            click("cmdList");
    }
    QString ledger(const QString& columns) {
        Connection accounting = ws.accounting();
        return rowsOf(accounting, "select " + columns + " from Tranxaction order by SNo");
    }
    QString toldAfterYes(const QString& button) {
        ui.answer(true);
        return told(button);
    }
};

TEST_P(PostingScreens, CashGoesToTheBankThatWasPickedAndIsPostedOnce) {
    openMonth("frmRevCashAcct");
    EXPECT_EQ(value("grdData"), "1 rows") << "the ways were rebuilt";
    expectChecks({{nullptr, nullptr, "Specify Account No for this Item"}});
    row("grdData", 0);
    dblClick("grdData");
    EXPECT_EQ(shown("txtItem txtDate txtType"), "1001|14/03/2026|CASH");
    expectChecks({{nullptr, nullptr, "Please Specify Bank Acct No"}});
    pick("cboRev", "BANK[1220]");
    EXPECT_EQ(told("OKButton"), "");
    EXPECT_EQ(rows("select AccountNo from PaymentTypes"), "1220");
    EXPECT_EQ(toldAfterYes("cmdView"), "Records Successfully Posted");
    EXPECT_EQ(ledger("AccountNo, Amount, Description"),
              "9999|-300.5|Amount Recvd for SUSPENSE\n1220|300.5|Payment through CASH");
    EXPECT_EQ(toldAfterYes("cmdView"), "No Records to Post");
    ws.program.session.gAcctPostOn = false;
    EXPECT_EQ(toldAfterYes("cmdView"), "");
    set("DTPicker1", "");
    EXPECT_EQ(told("cmdList"), "Please specify Attendance Date Range");
}

TEST_P(PostingScreens, WhatAReceiptLacksIsDistributedByHand) {
    openMonth("frmRevCashAdjust");
    EXPECT_EQ(told("cmdList"), "Specify Item Display");
    set("cboGroup", "UnDistributed Cash");
    EXPECT_EQ(shown("grdData lblRecvd lblDist"), "1 rows|300.50|0.00");
    expectChecks({{nullptr, nullptr, "Specify ReceiptNo for this Item"}});
    row("grdData", 0);
    dblClick("grdData");
    expectChecks({{nullptr, nullptr, "Please Specify Revenue Type"}});
    set("txtAmt", "300");
    set("cboRev", "DRUGS");
    EXPECT_EQ(told("OKButton"), "");
    EXPECT_EQ(rows("select ReceiptNo,billNo,ReceiptDate,AmountPaid,AccountNo,revType,isPost,AmountToPay from "
                   "PaymentDetails"),
              "7|001OFL0000001|2026-03-14|300||DRUGS|0|300");
    EXPECT_EQ(audit("Cash Distribution%", "userAction, TranCode, Remarks"),
              "Cash Distribution Adjustment: 7/300|001OFL0000001|DRUGS");
    EXPECT_EQ(shown("grdData lblRecvd lblDist"), "0 rows|300.50|300.00");
    set("cboGroup", "Incomplete Distribution");
    EXPECT_EQ(value("grdData"), "1 rows");
}

TEST_P(PostingScreens, InvoicesArePostedOnlyWithPostingOnAndAMonthPicked) {
    ws.run("insert into BillsForClients (InvNo, CoyCode, BatchNo, BillMonth, BillYear, AmountBilled, AmountInvoiced) "
           "values ('0102/2026/02','0102','2026/02','February','2026',70,70)");
    open("frmBillProcessingPost");
    ws.program.session.gAcctPostOn = false;
    EXPECT_EQ(told("cmdPost"), "Sorry Posting to your Account Package is not enabled");
    ws.program.session.gAcctPostOn = true;
    set("cboMonth", "");
    EXPECT_EQ(told("cmdPost"), "Select Processing Period for Posting");
    set("cboMonth", "January");
    set("cboYear", "2026");
    EXPECT_TRUE(told("cmdPost").startsWith("No Company Records to Post for the Selected Period"));
    set("cboMonth", "February");
    set("cboYear", "2026");
    breakAt("insert into TranFromAppsTrail", true);
    EXPECT_TRUE(told("cmdPost").startsWith("Could not Save to Account Module!!! \r\n\r\n"));
    mend();
    EXPECT_EQ(told("cmdPost"), "1 Company Records Successfully Posted");
    EXPECT_EQ(ledger("AccountNo, Amount, TranDate"), "9999|70|2026-02-28\n9999|-70|2026-02-28");
    EXPECT_EQ(value("grdData"), "1 rows");
}

TEST_P(PostingScreens, SuppliersArePostedByTheirInvoicesDay) {
    open("frmSuppliersAcct");
    set("DTPicker1", "");
    EXPECT_EQ(told("cmdList"), "Please specify Invoice Date Range");
    EXPECT_EQ(told("cmdPost"), "Display records to post! Click on the 'GetList' button");
    set("DTPicker1", "2026-03-01");
    set("DTPicker2", "2026-03-14");
    click("cmdList");
    EXPECT_EQ(value("grdData"), "2 rows");
    expectChecks({{nullptr, nullptr, "Specify Supplier's Name for this Item"}});
    for (int entry = 0; entry < 2; ++entry) {
        row("grdData", entry);
        dblClick("grdData");
        expectChecks({{nullptr, nullptr, "Specify Inventory Account No"}});
        pick("cboRev", "DRUG STOCK[1260]");
        EXPECT_EQ(told("OKButton"), "");
    }
    breakAt("insert into TranFromAppsTrail", true);
    EXPECT_TRUE(told("cmdPost").startsWith("Could not Save to Account Module!!! \r\n\r\n"));
    mend();
    set("chkAll", "yes");
    EXPECT_TRUE(told("cmdPost").startsWith("Display UnPosted records only! the checkbox will be unticked\n"));
    EXPECT_EQ(ledger("AccountNo, Amount, Description"),
              "1260|100.1|Stock Supplied by MEDICO, Inv. No: I1\n2100|-100.1|Stock Supplied by MEDICO, Inv. No: I1\n"
              "1260|50|Stock Supplied by MEDICO, Inv. No: I2\n2100|-50|Stock Supplied by MEDICO, Inv. No: I2");
    EXPECT_EQ(value("chkAll") + value("grdData"), "no1 rows") << "the one that was entered later is not flagged";
    EXPECT_TRUE(told("cmdPost").startsWith("1 entries of suppliers were in the ledger already"));
    EXPECT_EQ(value("grdData"), "0 rows");
    set("chkAll", "yes");
    click("cmdList");
    click("cmdExport");
    EXPECT_EQ(ui.exports.size(), 1);
}

ORVANE_ON_EACH_ENGINE(PostingScreens);

} // namespace orvane
