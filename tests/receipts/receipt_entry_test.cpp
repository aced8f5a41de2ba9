#include "support/ScreenTest.h"

namespace orvane {
namespace {

class ReceiptEntry : public ScreenTest {
protected:
    ReceiptEntry() : ScreenTest("frmReceiptTemp") {}

    void begin(const QString& bill = billNo) {
        ScreenTest::begin(bill);
        set("cboPay", "CASH");
    }
    void saved() {
        save();
        EXPECT_BOXES(ui, {"Record Succesfully saved"});
    }
    void receive(const QString& amount) {
        begin();
        set("txtHt", amount);
        saved();
    }
    QString payments() {
        return rows("select ReceiptNo, Amountbilled, AmountPaid, PayType, Remarks from Payments order by SNo");
    }
};
ORVANE_ON_EACH_ENGINE(ReceiptEntry);

const char* const noRefund =
    "Receipt cannot be Issued!!! Tick Reversal Checkbox to Reverse OR Customer Qualifies for REFUND";
const char* const noRecord = "No Record is selected in the Grid";

TEST_P(ReceiptEntry, ListsBillsWithABalanceAndShowsTheirFigures) {
    layVisit({.surname = "O'NEILL [JR] #2", .firstname = "=cmd"});
    layVisit({.pno = "P/0002", .surname = "PAID"}, {.consultID = "001OFL0000002", .pno = "P/0002"});
    layVisit({.pno = "P/0003", .surname = "STAFF", .category = "MTHLY", .client = "0102"},
             {.consultID = "001OFL0000003", .pno = "P/0003", .category = "MTHLY", .client = "0102"});
    layVisit({.pno = "P/0004", .surname = "EARLIER"},
             {.consultID = "001OFL0000004", .pno = "P/0004", .date = QDate(2026, 3, 13)});
    layBill(4000.5, 9999); // a wrong paid figure
    layBill(500, 500, "001OFL0000002", "P/0002");
    layBill(500, 0, "001OFL0000003", "P/0003");
    layBill(700, 0, "001OFL0000004", "P/0004");
    ws.run("insert into Payments (ReceiptDate, ReceiptNo, billNo, PNo, Amountbilled, AmountPaid) values "
           "('2026-03-13','7','001OFL0000001','P/0001',4000.5,1000.25)");
    begin();
    EXPECT_EQ(items("cboVehNo"), (QStringList{"", "O'NEILL [JR] #2 =cmd [001OFL0000001]"}));
    EXPECT_EQ(shown("Label5 txtBill lblDate lblCurr lblRct lblDep txtEmp lblClinic2"),
              "O'NEILL [JR] #2 =cmd|001OFL0000001|14/03/2026|4,000.50|XX|1,000.25|3,000.25|OPD");
    EXPECT_EQ(ws.scalar("select AmountPaid from Billing where billNo='001OFL0000001'"), "1000.25") << "it heals itself";
    EXPECT_TRUE(ws.rows("frmReceiptTemp.grdData")
                    .value(1)
                    .startsWith("13/03/2026\tO'NEILL [JR] #2 =cmd\t4,000.50\t1,000.25\t3,000.25\t\t7\t001OFL0000001\t"
                                "PRIVATE PATIENTS\tP/0001"));
    set("DTPicker1", "2026-03-13");
    click("cmdInv");
    EXPECT_EQ(items("cboVehNo").size(), 3);
    pick("cboVehNo", 0);
    EXPECT_BOXES(ui, {"No Consultation No"});
    EXPECT_EQ(ws.program.session.gConsultID, "");
}

TEST_P(ReceiptEntry, SavesWhatIsShown) {
    layVisit({.surname = "O'NEILL [JR] #2"});
    layBill(4000.5);
    begin();
    set("txtHt", "1,500.004"); // below a kobo nothing is kept
    set("cboCat", "DRUGS'); delete from Payments; -- \U0001F600");
    set("dtDate", "2026-03-13");
    // Another screen looks at another patient in between.
    ws.program.session.gConsultID = "001OFL0000099";
    saved();
    EXPECT_EQ(rows("select ReceiptDate, billNo, PNo, PaymentFor, AmountInWord from Payments"),
              "2026-03-13|001OFL0000001|P/0001|DRUGS'); delete from Payments; -- \U0001F600|ONE THOUSAND, FIVE HUNDRED "
              "NAIRA");
    EXPECT_EQ(payments() + '/' + bill(), "1|4000.5|1500|CASH|PAYMENT/4000.5|1500|0");
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo") + ws.value("frmCashReceipt.txtRecFrom"), "1O'NEILL [JR] #2 BOLA");
    EXPECT_EQ(shown("txtHt lblRct cboCat"), "||GOODS PURCHASED");
    EXPECT_EQ(state("OKButton"), "visible disabled") << "a second press would take the money again";
}

TEST_P(ReceiptEntry, ChecksInOrder) {
    layVisit();
    layBill(4000.5);
    open();
    click("cmdAdd");
    set("chkRev", "yes");
    EXPECT_BOXES(ui, {"No Patient is selected"});
    set("chkRev", "no");
    expectChecks({{"txtHt", "", "Please enter Amount Paid", "txtHt"},
                  {"txtHt", "100", "Please enter Customer Name", "cboVehNo"},
                  {"cboVehNo", "ADEYEMI", "Please enter Customer Name", "cboVehNo"}});
    pick("cboVehNo", billNo);
    set("cboPay", "");
    expectChecks({{"cboCat", "", "Please enter Payment Purpose", "cboCat"},
                  {"cboCat", "DRUGS", "Please enter Payment type", "cboPay"}});
    set("cboPay", "CHEQUE");
    expectChecks({{"chkRev", "yes", noRecord, "grdData"}});
    set("chkRev", "no");
    expectChecks({{"txtHt", "abc", "Please enter Amount Paid", "txtHt"},
                  {"txtHt", "-100", "Please enter Amount Paid"},
                  {"txtHt", "1e400", "Please enter Amount Paid"},
                  {"txtHt", " ", "Please enter Amount Paid"}});
    set("txtHt", "0");
    expectChecks({{"dtDate", "", "Please enter Receipt Date", "dtDate"}});
    set("dtDate", "2026-03-14");
    ui.answer(false);
    click("OKButton");
    EXPECT_QUESTIONS(ui, {"Are you sure to save?"});
    saved();
    EXPECT_EQ(payments(), "1|4000.5|0|CHEQUE|PAYMENT") << "nothing is an amount on this screen";
}

/// Neither a receipt nor a refund; the tick alone takes nothing back.
TEST_P(ReceiptEntry, AnOverpaidBillTakesNoMore) {
    layVisit();
    layBill(1000);
    receive("1200");
    EXPECT_EQ(ui.details, QStringList{"ADEYEMI BOLA\nBill 001OFL0000001\nN1,200.00"});
    EXPECT_EQ(ws.control<StatusBar>("MdiTolmek.SbrTolmek").message(), "Receipt 1 of N1,200.00 saved");
    begin();
    EXPECT_EQ(value("txtEmp"), "-200.00");
    expectChecks({{"txtHt", "10", noRefund}, {"chkRev", "yes", noRecord}, {"txtHt", "-200", noRecord}});
    EXPECT_EQ(payments(), "1|1000|1200|CASH|PAYMENT");
}

TEST_P(ReceiptEntry, ReversalUndoesAReceiptExactly) {
    layVisit();
    layBill(1000);
    receive("250");
    begin();
    set("cboPay", "CHEQUE");
    set("dtDate", "2026-03-13");
    set("txtHt", "500");
    saved();
    ui.opened.clear();

    // A receipt of another day is found through its bill. Cancelled, its date does not stay.
    for (bool cancelled : {true, false}) {
        begin();
        row("grdData", "2");
        click("cmdRev");
        if (!cancelled)
            break;
        click("cmdCancel");
        EXPECT_EQ(value("dtDate"), "2026-03-14");
    }
    EXPECT_EQ(shown("txtBill dtDate txtEmp txtHt txtDuty cboCat cboPay cboVehNo"),
              "001OFL0000001|2026-03-13|-750.00|-500.00|FIVE HUNDRED NAIRA|REVERSAL for RctNo: 2|CASH|ADEYEMI BOLA "
              "[001OFL0000001]");
    for (const char* fixed : {"cboCat", "cboPay", "txtHt", "cboVehNo"})
        EXPECT_TRUE(state(fixed).contains("disabled")) << fixed;
    expectChecks({{nullptr, nullptr, noRefund}});
    set("chkRev", "yes");
    saved();
    EXPECT_EQ(payments(), "1|1000|250|CASH|PAYMENT\n2|750|500|CHEQUE|PAYMENT\n3|-750|-500|CASH|REVERSAL for RctNo: 2");
    EXPECT_EQ(rows("select ReceiptDate, AmountInWord from Payments where SNo=3"), "2026-03-13|FIVE HUNDRED NAIRA");
    EXPECT_EQ(bill(), "1000|250|0");
    EXPECT_FALSE(ui.opened.contains("frmCashReceipt")) << "a reversal prints on request only";
    EXPECT_EQ(value("dtDate"), "2026-03-14") << "the next receipt is of today";
}

TEST_P(ReceiptEntry, WhatCannotBeReversed) {
    layVisit();
    layBill(1000);
    open();
    EXPECT_EQ(told("cmdRev"), noRecord);
    receive("1000");
    click("cmdRev");
    set("chkRev", "yes");
    saved();
    row("grdData", "2");
    EXPECT_EQ(told("cmdRev"), "Cannot Reverse a Reversed Entry");
    row("grdData", "1");
    ws.run("delete from UserRoles where RoleID=102");
    EXPECT_EQ(told("cmdRev"), "You dont have Permission to Reverse a Receipt Entry");
    EXPECT_EQ(ws.tableCount("Payments"), 2);
}

/// Money goes to the bill that is picked, and to none that was left or read in part.
TEST_P(ReceiptEntry, MoneyGoesToThePickedBill) {
    layVisit();
    layVisit({.pno = "P/0002", .surname = "OTHER"}, {.consultID = "001OFL0000002", .pno = "P/0002"});
    layBill(1000);
    layBill(2000, 0, "001OFL0000002", "P/0002");
    ws.run("insert into Payments (billNo, AmountPaid) values ('001OFL0000001', 0)");
    begin("001OFL0000002");
    breakAt("qryhVisitsForAttend", true);
    pick("cboVehNo", billNo);
    EXPECT_BOXES(ui, {"disk full"});
    expectChecks({{"txtHt", "10", "Please enter Customer Name"}});
    // What was paid is summed up all the same when the bill's row cannot repeat it.
    begin("001OFL0000002");
    breakAt("update  billing", true);
    pick("cboVehNo", billNo);
    EXPECT_BOXES(ui, {});
    EXPECT_EQ(value("txtEmp"), "1,000.00");
    receive("400");
    EXPECT_EQ(rows("select billNo, AmountPaid from Billing order by ID"), "001OFL0000001|400\n001OFL0000002|0");
    EXPECT_EQ(rows("select billNo, PNo from Payments where SNo>1"), "001OFL0000001|P/0001");
}

} // namespace
} // namespace orvane
