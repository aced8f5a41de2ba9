#include "ReceiptTest.h"

namespace orvane {

namespace {

class ReceiptEntry : public ReceiptTest {
protected:
    ReceiptEntry() : ReceiptTest("frmReceiptTemp") {}

    /// Presses "Add" and picks the bill.
    void begin(const QString& bill = billNo) {
        openScreen();
        if (!isEntering())
            click("cmdAdd");
        pick("cboVehNo", bill);
        set("cboPay", "CASH");
    }
    void save() {
        ui.answer(true);
        click("OKButton");
        EXPECT_QUESTIONS(ui, {"Are you sure to save?"});
    }
    void receive(const QString& amount) {
        begin();
        set("txtHt", amount);
        save();
        EXPECT_BOXES(ui, {"Record Succesfully saved"});
    }
    /// Selects the receipt of today with this number and has it reversed.
    void reverse(const QString& number) {
        ws.row("frmReceiptTemp.grdData", number);
        click("cmdRev");
        set("chkRev", "yes");
        save();
        EXPECT_BOXES(ui, {"Record Succesfully saved"});
    }
    QString payments() {
        return rows("select ReceiptNo, Amountbilled, AmountPaid, PayType, Remarks from Payments order by SNo");
    }
    const QString noRefund =
        "Receipt cannot be Issued!!! Tick Reversal Checkbox to Reverse OR Customer Qualifies for REFUND";
};

ORVANE_ON_EACH_ENGINE(ReceiptEntry);

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
    EXPECT_EQ(ws.items("frmReceiptTemp.cboVehNo"), (QStringList{"", "O'NEILL [JR] #2 =cmd [001OFL0000001]"}));
    const QMap<QString, QString> shown{{"Label5", "O'NEILL [JR] #2 =cmd"},
                                       {"txtBill", billNo},
                                       {"lblDate", "14/03/2026"},
                                       {"lblCurr", "4,000.50"},
                                       {"lblRct", "XX"},
                                       {"lblDep", "1,000.25"},
                                       {"txtEmp", "3,000.25"},
                                       {"lblClinic2", "OPD"}};
    for (auto field = shown.begin(); field != shown.end(); ++field)
        EXPECT_EQ(value(field.key()), field.value()) << field.key().toStdString();
    EXPECT_EQ(ws.scalar("select AmountPaid from Billing where billNo='001OFL0000001'"), "1000.25") << "it heals itself";
    EXPECT_TRUE(ws.rows("frmReceiptTemp.grdData")
                    .value(1)
                    .startsWith("13/03/2026\tO'NEILL [JR] #2 =cmd\t4,000.50\t1,000.25\t3,000.25\t\t7\t001OFL0000001\t"
                                "PRIVATE PATIENTS\tP/0001"));

    set("DTPicker1", "2026-03-13");
    click("cmdInv");
    EXPECT_EQ(ws.items("frmReceiptTemp.cboVehNo").size(), 3);
    ws.pick("frmReceiptTemp.cboVehNo", 0);
    EXPECT_BOXES(ui, {"No Consultation No"});
    EXPECT_EQ(ws.program.session.gConsultID, "");
}

TEST_P(ReceiptEntry, PartThenFullPayment) {
    layVisit({.surname = "O'NEILL [JR] #2"});
    layBill(4000.5);
    begin();
    set("txtHt", "1,500");
    EXPECT_EQ(value("txtDuty"), "ONE THOUSAND, FIVE HUNDRED NAIRA");
    set("cboCat", "DRUGS'); delete from Payments; -- \U0001F600");
    set("dtDate", "2026-03-13");
    // Another screen looks at another patient in between.
    ws.program.session.gConsultID = "001OFL0000099";
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select ReceiptDate, billNo, PNo, PaymentFor, AmountInWord from Payments"),
              "2026-03-13|001OFL0000001|P/0001|DRUGS'); delete from Payments; -- \U0001F600|ONE THOUSAND, FIVE HUNDRED "
              "NAIRA");
    EXPECT_EQ(ui.opened.last(), "frmCashReceipt");
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo"), "1");
    EXPECT_EQ(ws.value("frmCashReceipt.txtRecFrom"), "O'NEILL [JR] #2 BOLA");
    EXPECT_EQ(value("txtHt") + value("lblRct"), "");
    EXPECT_EQ(value("cboCat"), "GOODS PURCHASED");
    EXPECT_EQ(state("OKButton"), "visible disabled") << "a second press would take the money again";

    receive("2500.506"); // below a kobo nothing is printed or kept
    EXPECT_EQ(payments(), "1|4000.5|1500|CASH|PAYMENT\n2|2500.5|2500.51|CASH|PAYMENT");
    EXPECT_EQ(bill(), "4000.5|4000.51|1");
    ws.run("update Billing set Amountbilled=4000.51");
    click("cmdAdd");
    EXPECT_EQ(ws.items("frmReceiptTemp.cboVehNo"), QStringList{""}) << "nothing is due any more";
}

TEST_P(ReceiptEntry, ChecksInOrder) {
    layVisit();
    layBill(4000.5);
    openScreen();
    click("cmdAdd");
    set("chkRev", "yes");
    EXPECT_BOXES(ui, {"No Patient is selected"});
    set("chkRev", "no");
    expectRefusals({{"txtHt", "", "Please enter Amount Paid", "txtHt"},
                    {"txtHt", "100", "Please enter Customer Name", "cboVehNo"},
                    {"cboVehNo", "ADEYEMI", "Please enter Customer Name", "cboVehNo"}});
    pick("cboVehNo", billNo);
    set("cboPay", "");
    expectRefusals({{"cboCat", "", "Please enter Payment Purpose", "cboCat"},
                    {"cboCat", "DRUGS", "Please enter Payment type", "cboPay"}});
    set("cboPay", "CHEQUE");
    expectRefusals({{"chkRev", "yes", "No Record is selected in the Grid", "grdData"}});
    set("chkRev", "no");
    expectRefusals({{"txtHt", "abc", "Please enter Amount Paid", "txtHt"},
                    {"txtHt", "-100", "Please enter Amount Paid"},
                    {"txtHt", "1e400", "Please enter Amount Paid"},
                    {"txtHt", " ", "Please enter Amount Paid"}});
    set("txtHt", "0");
    expectRefusals({{"dtDate", "", "Please enter Receipt Date", "dtDate"}});
    set("dtDate", "2026-03-14");
    ui.answer(false);
    click("OKButton");
    EXPECT_QUESTIONS(ui, {"Are you sure to save?"});
    EXPECT_EQ(ws.tableCount("Payments"), 0);
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(payments(), "1|4000.5|0|CHEQUE|PAYMENT") << "nothing is an amount on this screen";
    ws.run("delete from Payments");
    click("cmdPrint");
    EXPECT_EQ(ws.program.loadedForm("frmCashReceipt"), nullptr);
    EXPECT_BOXES(ui, {"No Receipt to Generate!"});
}

/// Neither a receipt nor a refund; the tick alone takes nothing back.
TEST_P(ReceiptEntry, AnOverpaidBillTakesNoMore) {
    layVisit();
    layBill(1000);
    receive("1200");
    begin();
    EXPECT_EQ(value("txtEmp"), "-200.00");
    set("txtHt", "10");
    click("OKButton");
    EXPECT_BOXES(ui, {noRefund});
    set("chkRev", "yes");
    expectRefusals(
        {{"", "", "No Record is selected in the Grid"}, {"txtHt", "-200", "No Record is selected in the Grid"}});
    EXPECT_EQ(payments(), "1|1000|1200|CASH|PAYMENT");
}

TEST_P(ReceiptEntry, ReversalUndoesAReceiptExactly) {
    layVisit();
    layBill(1000);
    receive("250");
    begin();
    set("cboPay", "CHEQUE");
    set("dtDate", "2026-03-13");
    set("txtHt", "750");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(bill(), "1000|1000|1");
    ui.opened.clear();

    click("cmdAdd");
    set("DTPicker1", "2026-03-13");
    click("cmdCancel");
    ws.row("frmReceiptTemp.grdData", "1");
    click("cmdRev");
    click("cmdCancel");
    EXPECT_EQ(value("dtDate"), "2026-03-14");
    // A receipt of another day is found through its bill.
    ws.run("update Billing set AmountPaid=0");
    begin();
    ws.row("frmReceiptTemp.grdData", "2");
    click("cmdRev");
    const QMap<QString, QString> shown{{"txtBill", billNo},
                                       {"dtDate", "2026-03-13"},
                                       {"txtEmp", "-750.00"},
                                       {"txtHt", "-750.00"},
                                       {"txtDuty", "SEVEN HUNDRED AND FIFTY NAIRA"},
                                       {"cboCat", "REVERSAL for RctNo: 2"},
                                       {"cboPay", "CASH"},
                                       {"cboVehNo", "ADEYEMI BOLA [001OFL0000001]"}};
    for (auto field = shown.begin(); field != shown.end(); ++field)
        EXPECT_EQ(value(field.key()), field.value()) << field.key().toStdString();
    for (const char* fixed : {"cboCat", "cboPay", "txtHt", "cboVehNo"})
        EXPECT_TRUE(state(fixed).contains("disabled")) << fixed;
    click("OKButton");
    EXPECT_BOXES(ui, {noRefund});
    set("chkRev", "yes");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});

    EXPECT_EQ(payments(), "1|1000|250|CASH|PAYMENT\n2|750|750|CHEQUE|PAYMENT\n3|-750|-750|CASH|REVERSAL for RctNo: 2");
    EXPECT_EQ(rows("select ReceiptDate, PNo, billNo, PaymentFor, AmountInWord from Payments where ReceiptNo='3'"),
              "2026-03-13|P/0001|001OFL0000001|REVERSAL for RctNo: 2|SEVEN HUNDRED AND FIFTY NAIRA");
    EXPECT_EQ(bill(), "1000|250|0");
    EXPECT_FALSE(ui.opened.contains("frmCashReceipt")) << "a reversal prints on request only";
    EXPECT_EQ(value("dtDate"), "2026-03-14") << "the next receipt is of today";
}

TEST_P(ReceiptEntry, WhatCannotBeReversed) {
    layVisit();
    layBill(1000);
    openScreen();
    click("cmdRev");
    EXPECT_BOXES(ui, {"No Record is selected in the Grid"});
    receive("1000");
    reverse("1");
    ws.row("frmReceiptTemp.grdData", "2");
    click("cmdRev");
    EXPECT_BOXES(ui, {"Cannot Reverse a Reversed Entry"});
    ws.row("frmReceiptTemp.grdData", "1");
    ws.run("delete from UserRoles where RoleID=102");
    click("cmdRev");
    EXPECT_BOXES(ui, {"You dont have Permission to Reverse a Receipt Entry"});
    EXPECT_EQ(ws.tableCount("Payments"), 2);

    // On request a reversal prints: billed -1000, paid -1000.
    ws.row("frmReceiptTemp.grdData", "2");
    click("cmdPrint");
    EXPECT_EQ(ws.value("frmCashReceipt.txtAmount"), "-1,000.00");
    EXPECT_EQ(ws.value("frmCashReceipt.txtBal"), "0.00");
}

/// Money goes to the bill that is picked, and to none that was left, read in part or not picked at all.
TEST_P(ReceiptEntry, MoneyGoesToThePickedBill) {
    layVisit();
    layVisit({.pno = "P/0002", .surname = "OTHER"}, {.consultID = "001OFL0000002", .pno = "P/0002"});
    layBill(1000);
    layBill(2000, 0, "001OFL0000002", "P/0002");
    openScreen();
    click("cmdAdd");
    for (const char* statement : {"qryhVisitsForAttend", "update  billing"}) {
        SCOPED_TRACE(statement);
        begin("001OFL0000002");
        ws.run("insert into Payments (billNo, AmountPaid) values ('001OFL0000001', 0)");
        breakAt(statement);
        pick("cboVehNo", billNo);
        EXPECT_BOXES(ui, {"disk full"});
        set("txtHt", "10");
        click("OKButton");
        EXPECT_BOXES(ui, {"Please enter Customer Name"});
    }
    ws.run("delete from Payments");
    begin("001OFL0000002");
    begin();
    set("txtHt", "400");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select billNo, AmountPaid from Billing order by ID"), "001OFL0000001|400\n001OFL0000002|0");
    EXPECT_EQ(rows("select billNo, PNo from Payments"), "001OFL0000001|P/0001");
}

} // namespace

} // namespace orvane
