#include "ReceiptTest.h"

namespace orvane {

namespace {

class ReceiptEntry : public ReceiptTest {
protected:
    void set(const QString& control, const QString& value) { ws.set("frmReceiptTemp." + control, value); }
    void click(const QString& control) { ws.click("frmReceiptTemp." + control); }
    QString value(const QString& control) { return ws.value("frmReceiptTemp." + control); }

    /// Presses "Add" and picks the bill.
    void begin(const QString& bill = billNo) {
        if (!ws.program.loadedForm("frmReceiptTemp"))
            ws.open("frmReceiptTemp");
        click("cmdAdd");
        ws.pick("frmReceiptTemp.cboVehNo", bill);
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
};

ORVANE_ON_EACH_ENGINE(ReceiptEntry);

TEST_P(ReceiptEntry, ListsBillsWithABalanceAndShowsTheirFigures) {
    layVisit();
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
    EXPECT_EQ(ws.items("frmReceiptTemp.cboVehNo"), (QStringList{"", "ADEYEMI BOLA [001OFL0000001]"}));
    EXPECT_EQ(value("Label5"), "ADEYEMI BOLA");
    EXPECT_EQ(value("txtBill"), billNo);
    EXPECT_EQ(value("lblDate"), "14/03/2026");
    EXPECT_EQ(value("lblCurr"), "4,000.50");
    EXPECT_EQ(value("lblDep"), "1,000.25");
    EXPECT_EQ(value("txtEmp"), "3,000.25");
    EXPECT_EQ(value("lblRct"), "XX");
    EXPECT_EQ(ws.scalar("select AmountPaid from Billing where billNo='001OFL0000001'"), "1000.25") << "it heals itself";
    EXPECT_EQ(ws.rows("frmReceiptTemp.grdData").value(1),
              "13/03/2026\tADEYEMI BOLA\t4,000.50\t1,000.25\t3,000.25\t\t7\t001OFL0000001\tPRIVATE PATIENTS\tP/0001");

    set("DTPicker1", "2026-03-13");
    click("cmdInv");
    EXPECT_EQ(ws.items("frmReceiptTemp.cboVehNo").size(), 3);
    ws.pick("frmReceiptTemp.cboVehNo", 0);
    EXPECT_BOXES(ui, {"No Consultation No"});
    EXPECT_EQ(ws.program.session.gConsultID, "");
}

TEST_P(ReceiptEntry, PartThenFullPayment) {
    layVisit();
    layBill(4000.5);
    ws.run("update IDgen set ID=40 where DestName='RECEIPT2'");
    begin();
    set("txtHt", "1,500");
    EXPECT_EQ(value("txtDuty"), "ONE THOUSAND, FIVE HUNDRED NAIRA");
    set("cboCat", "DRUGS");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select ReceiptDate, ReceiptNo, ClinicID, billNo, PNo, PaymentFor, Amountbilled, AmountPaid, "
                   "AmountInWord, ReceivedBy, PayType, ChequeNo, rTime, Remarks from Payments"),
              "2026-03-14|41|SALES|001OFL0000001|P/0001|DRUGS|4000.5|1500|ONE THOUSAND, FIVE HUNDRED "
              "NAIRA|E001|CASH||09:30|PAYMENT");
    EXPECT_EQ(bill(), "4000.5|1500|0");
    EXPECT_EQ(ui.opened.last(), "frmCashReceipt");
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo"), "41");
    EXPECT_EQ(value("txtHt"), "");
    EXPECT_EQ(value("lblRct"), "");
    EXPECT_EQ(value("cboCat"), "GOODS PURCHASED");
    EXPECT_EQ(ws.state("frmReceiptTemp.OKButton"), "visible disabled") << "a second press would take the money again";

    receive("2500.50");
    EXPECT_EQ(payments(), "41|4000.5|1500|CASH|PAYMENT\n42|2500.5|2500.5|CASH|PAYMENT");
    EXPECT_EQ(bill(), "4000.5|4000.5|1");
    EXPECT_EQ(account(), "001OFL0000001|-4000.5|-4000.5|BILL\n001OFL0000001|1500|-2500.5|Payment\n"
                         "001OFL0000001|2500.5|0|Payment");
    EXPECT_EQ(debt(), "0");
    EXPECT_EQ(audit(), "insert Payment for: ADEYEMI BOLA [001OFL0000001]|001OFL0000001|1500.00\n"
                       "insert Payment for: ADEYEMI BOLA [001OFL0000001]|001OFL0000001|2500.50");
    click("cmdAdd");
    EXPECT_EQ(ws.items("frmReceiptTemp.cboVehNo"), QStringList{""}) << "nothing is due any more";
}

TEST_P(ReceiptEntry, ChecksInOrder) {
    layVisit();
    layBill(4000.5);
    ws.open("frmReceiptTemp");
    click("cmdAdd");
    const auto refused = [&](const char* text) {
        click("OKButton");
        EXPECT_BOXES(ui, {text});
    };
    refused("Please enter Amount Paid");
    set("txtHt", "100");
    refused("Please enter Customer Name");
    set("cboVehNo", "ADEYEMI");
    refused("Please enter Customer Name");
    ws.pick("frmReceiptTemp.cboVehNo", billNo);
    set("cboCat", "");
    refused("Please enter Payment Purpose");
    set("cboCat", "DRUGS");
    set("cboPay", "");
    refused("Please enter Payment type");
    set("cboPay", "CHEQUE");
    for (const char* noMoney : {"abc", "-100", "1e400", " "}) {
        set("txtHt", noMoney);
        refused("Please enter Amount Paid");
    }
    set("txtHt", "100");
    set("dtDate", "");
    refused("Please enter Receipt Date");
    set("dtDate", "2026-03-14");
    ui.answer(false);
    click("OKButton");
    EXPECT_QUESTIONS(ui, {"Are you sure to save?"});
    EXPECT_EQ(ws.tableCount("Payments"), 0);
    set("txtHt", "0");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(payments(), "1|4000.5|0|CHEQUE|PAYMENT") << "nothing is an amount on this screen";
    ws.run("delete from Payments");
    click("cmdPrint");
    EXPECT_EQ(ws.program.loadedForm("frmCashReceipt"), nullptr);
    EXPECT_BOXES(ui, {"No Receipt to Generate!"});
}

TEST_P(ReceiptEntry, AnOverpaidBillTakesNoMore) {
    layVisit();
    layBill(1000);
    receive("1200");
    EXPECT_EQ(bill(), "1000|1200|1");
    begin();
    EXPECT_EQ(value("txtEmp"), "-200.00");
    set("txtHt", "10");
    click("OKButton");
    EXPECT_BOXES(ui,
                 {"Receipt cannot be Issued!!! Tick Reversal Checkbox to Reverse OR Customer Qualifies for REFUND"});
    EXPECT_EQ(ws.tableCount("Payments"), 1);
}

TEST_P(ReceiptEntry, ReversalUndoesAReceiptExactly) {
    layVisit();
    layBill(1000);
    receive("250");
    const QString accountBefore = account(), debtBefore = debt();
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
    EXPECT_EQ(value("txtBill"), billNo);
    EXPECT_EQ(value("dtDate"), "2026-03-13");
    EXPECT_EQ(value("txtEmp"), "-750.00");
    EXPECT_EQ(value("txtHt"), "-750.00");
    EXPECT_EQ(value("txtDuty"), "SEVEN HUNDRED AND FIFTY NAIRA");
    EXPECT_EQ(value("cboCat"), "REVERSAL for RctNo: 2");
    EXPECT_EQ(value("cboPay"), "CASH");
    EXPECT_EQ(value("cboVehNo"), "ADEYEMI BOLA [001OFL0000001]");
    for (const char* fixed : {"cboCat", "cboPay", "txtHt", "cboVehNo"})
        EXPECT_TRUE(ws.state(QString("frmReceiptTemp.") + fixed).contains("disabled")) << fixed;
    click("OKButton");
    EXPECT_BOXES(ui, {"Receipt cannot be Issued!!! Tick Reversal Checkbox to Reverse OR Customer Qualifies for "
                      "REFUND"});
    set("chkRev", "yes");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});

    EXPECT_EQ(payments(), "1|1000|250|CASH|PAYMENT\n2|750|750|CHEQUE|PAYMENT\n3|-750|-750|CASH|REVERSAL for RctNo: 2");
    EXPECT_EQ(rows("select ReceiptDate, PNo, billNo, PaymentFor from Payments where ReceiptNo='3'"),
              "2026-03-13|P/0001|001OFL0000001|REVERSAL for RctNo: 2");
    EXPECT_EQ(bill(), "1000|250|0");
    EXPECT_EQ(account(), accountBefore + "\n001OFL0000001|750|0|Payment\n001OFL0000001|-750|-750|Payment");
    EXPECT_EQ(debt(), debtBefore);
    EXPECT_TRUE(audit().endsWith("Reversal Entry (Payment) for: ADEYEMI BOLA [001OFL0000001]|001OFL0000001|-750.00"));
    EXPECT_FALSE(ui.opened.contains("frmCashReceipt")) << "a reversal prints on request only";
    EXPECT_EQ(value("dtDate"), "2026-03-14") << "the next receipt is of today";
}

TEST_P(ReceiptEntry, WhatCannotBeReversed) {
    layVisit();
    layBill(1000);
    ws.open("frmReceiptTemp");
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

/// What is typed below a kobo is neither printed nor kept, so that the reversal of what is shown leaves nothing behind.
TEST_P(ReceiptEntry, MoneyIsInWholeKobo) {
    layVisit();
    layBill(1000);
    receive("250.006");
    EXPECT_EQ(payments(), "1|1000|250.01|CASH|PAYMENT");
    reverse("1");
    EXPECT_EQ(bill(), "1000|0|0");
    EXPECT_EQ(debt(), "-1000");
}

/// Whatever fails on the way, nothing is kept of it, the fields stand, and the next press saves once.
TEST_P(ReceiptEntry, AFaultKeepsNothingAndTheFieldsStand) {
    layVisit();
    layBill(1000);
    int saved = 0;
    for (const char* statement :
         {"begin transaction", "qryhVisitsForAttend", "update IDgen", "into [Payments]", "RunningTotal from",
          "into [Tranxaction]", "update hPatients", "from Billing where", "update [Billing]", "commit transaction"}) {
        SCOPED_TRACE(statement);
        begin();
        set("txtHt", "10");
        const QString accountBefore = account(), billBefore = bill(), paymentsBefore = payments();
        breakAt(statement);
        save();
        EXPECT_BOXES(ui, {"disk full"});
        EXPECT_EQ(account(), accountBefore);
        EXPECT_EQ(bill(), billBefore);
        EXPECT_EQ(payments(), paymentsBefore);
        EXPECT_EQ(value("txtHt"), "10");
        EXPECT_EQ(value("cboVehNo"), "ADEYEMI BOLA [001OFL0000001]");
        save();
        EXPECT_BOXES(ui, {"Record Succesfully saved"});
        ++saved;
        EXPECT_EQ(rows("select count(*), sum(AmountPaid), max(cast(ReceiptNo as bigint)) from Payments"),
                  QString("%1|%2|%1").arg(saved).arg(saved * 10));
        EXPECT_EQ(bill(), QString("1000|%1|0").arg(saved * 10));
    }
}

TEST_P(ReceiptEntry, NothingAfterTheCommitLetsTheSameMoneyInTwice) {
    layVisit();
    layBill(1000);
    for (const QString statement : {"transaction committed", "qryhBillingReceipt", "qryPayments"}) {
        SCOPED_TRACE(statement.toStdString());
        begin();
        set("txtHt", "10");
        breakAt(statement);
        save();
        if (statement == "transaction committed") {
            EXPECT_TRUE(ui.takeBoxes().join('|').contains("It is not known whether it was saved."));
            click("OKButton");
            EXPECT_BOXES(ui, {"The entry was saved before the connection broke. It is not saved again.",
                              "Record Succesfully saved"});
        } else {
            EXPECT_TRUE(ui.takeBoxes().join('|').contains("disk full"));
        }
        EXPECT_EQ(ws.state("frmReceiptTemp.OKButton"), "visible disabled");
        ws.program.data().setStatementHook({});
    }
    EXPECT_EQ(rows("select count(*), sum(AmountPaid) from Payments"), "3|30");
    EXPECT_EQ(bill(), "1000|30|0");
}

TEST_P(ReceiptEntry, TheMoneyGoesToTheBillThatWasPicked) {
    layVisit();
    layVisit({.pno = "P/0002", .surname = "OTHER"}, {.consultID = "001OFL0000002", .pno = "P/0002"});
    layBill(1000);
    layBill(2000, 0, "001OFL0000002", "P/0002");
    begin();
    set("txtHt", "400");
    ws.program.session.gConsultID = "001OFL0000002"; // another screen works on another bill
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select billNo, AmountPaid from Billing order by ID"), "001OFL0000001|400\n001OFL0000002|0");
    EXPECT_EQ(rows("select billNo, PNo from Payments"), "001OFL0000001|P/0001");
    EXPECT_EQ(rows("select PNo, DebtBF from hPatients order by PNo"), "P/0001|-600\nP/0002|-2000");

    // A bill whose row is gone takes the receipt all the same.
    begin("001OFL0000002");
    set("txtHt", "150");
    ws.run("delete from Billing where billNo='001OFL0000002'");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select PNo, DebtBF from hPatients order by PNo"), "P/0001|-600\nP/0002|-1850");
}

TEST_P(ReceiptEntry, TwoCashiersGetDifferentNumbers) {
    layVisit();
    layBill(1000);
    const SecondHome secondHome(home);
    Workstation other(secondHome.folder());
    ASSERT_TRUE(other.start());
    other.open("frmReceiptTemp");
    other.click("frmReceiptTemp.cmdAdd");
    other.pick("frmReceiptTemp.cboVehNo", billNo);
    other.set("frmReceiptTemp.cboPay", "CASH");
    other.set("frmReceiptTemp.txtHt", "600");
    receive("300");
    other.ui.answer(true);
    other.click("frmReceiptTemp.OKButton");
    EXPECT_BOXES(other.ui, {"Record Succesfully saved"});
    EXPECT_EQ(payments(), "1|1000|300|CASH|PAYMENT\n2|1000|600|CASH|PAYMENT");
    EXPECT_EQ(bill(), "1000|900|0");
    EXPECT_EQ(debt(), "-100");
}

TEST_P(ReceiptEntry, HostileTextsAreOnlyTexts) {
    layVisit({.surname = "O'NEILL [JR] #2", .firstname = "=cmd|'/c calc'!A1"});
    layBill(1000);
    begin();
    set("cboCat", "DRUGS'); delete from Payments; -- \U0001F600");
    set("txtHt", "10");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select PaymentFor, PNo, billNo from Payments"),
              "DRUGS'); delete from Payments; -- \U0001F600|P/0001|001OFL0000001");
    EXPECT_EQ(ws.value("frmCashReceipt.txtRecFrom"), "O'NEILL [JR] #2 =cmd|'/c calc'!A1");
    reverse("1");
    EXPECT_EQ(bill(), "1000|0|0");
}

TEST_P(ReceiptEntry, ABillThatWasReadInPartTakesNoMoney) {
    layVisit();
    layBill(1000);
    ws.open("frmReceiptTemp");
    click("cmdAdd");
    breakAt("qryhVisitsForAttend");
    ws.pick("frmReceiptTemp.cboVehNo", billNo);
    EXPECT_BOXES(ui, {"disk full"});
    set("txtHt", "10");
    click("OKButton");
    EXPECT_BOXES(ui, {"Please enter Customer Name"});
    ws.pick("frmReceiptTemp.cboVehNo", billNo);
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(payments(), "1|1000|10|CASH|PAYMENT");
}

/// A reversal whose commit nobody saw leaves neither its date nor its purpose to the next receipt.
TEST_P(ReceiptEntry, TheReceiptAfterAnUnseenReversalIsAReceipt) {
    layVisit();
    layBill(1000);
    receive("400");
    ws.run("update Payments set ReceiptDate='2026-03-12'");
    begin();
    ws.row("frmReceiptTemp.grdData", "1");
    click("cmdRev");
    set("chkRev", "yes");
    breakAt("transaction committed");
    save();
    EXPECT_TRUE(ui.takeBoxes().join('|').contains("It is not known whether it was saved."));
    EXPECT_EQ(ws.state("frmReceiptTemp.cmdAdd"), "visible disabled") << "it may be saved";
    click("OKButton");
    EXPECT_BOXES(
        ui, {"The entry was saved before the connection broke. It is not saved again.", "Record Succesfully saved"});
    begin();
    set("txtHt", "250");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select ReceiptDate, PaymentFor, AmountPaid, Remarks from Payments order by SNo"),
              "2026-03-12|CONSULTATION AND DRUGS|400|PAYMENT\n"
              "2026-03-12|REVERSAL for RctNo: 1|-400|REVERSAL for RctNo: 1\n"
              "2026-03-14|GOODS PURCHASED|250|PAYMENT");
    EXPECT_EQ(bill(), "1000|250|0");
}

} // namespace

} // namespace orvane
