#include "VerifyTest.h"

namespace orvane {

namespace {

/// The receipt that is taken in the save of a bill.
class VerifyReceipt : public VerifyTest {
protected:
    void layBill(std::initializer_list<std::pair<const char*, double>> items) {
        layVisit();
        for (const auto& [name, price] : items)
            item({.name = name, .revType = "DRUGS", .price = price});
        load();
        set("chkRct", "yes");
        set("cboPayFor", "DRUGS");
    }
    QString shares() {
        return rows("select BillItem, AmountPaid, AmountToPay, AccountNo, revType from PaymentDetails order by SNo");
    }
    QString covered() { return rows("select drgName, isRct from BillingDetails order by SNo"); }
};

ORVANE_ON_EACH_ENGINE(VerifyReceipt);

TEST_P(VerifyReceipt, FullPaymentInCash) {
    ws.run("update IDgen set ID=4711 where DestName='RECEIPT2'");
    layBill({{"PARACETAMOL 500MG", 1500.5}, {"MALARIA PARASITE", 2531}});
    set("chkExact", "yes");
    EXPECT_EQ(value("txtAmt(0)"), "4,031.50");
    EXPECT_EQ(value("txtHt"), "4,031.50");
    EXPECT_EQ(value("cboPay"), "CASH");
    EXPECT_EQ(value("txtWord"), "FOUR THOUSAND, THIRTY ONE NAIRA AND FIFTY KOBO ONLY");
    save();

    EXPECT_BOXES(ui, {});
    EXPECT_EQ(
        rows(
            "select ReceiptDate, ReceiptNo, ClinicID, billNo, PNo, PaymentFor, Amountbilled, AmountPaid, AmountInWord, "
            "ReceivedBy, PayType, ChequeNo, rTime, Remarks from Payments"),
        "2026-03-14|4712|OPD|001OFL0000001|P/0001|DRUGS|4031.5|4031.5|FOUR THOUSAND, THIRTY ONE NAIRA AND FIFTY KOBO "
        "ONLY|E001|CASH||"
        "09:30|PAYMENT");
    EXPECT_EQ(rows("select ReceiptNo, AmountPaid, PayType, AccountNo, isPost from PaymentTypes"),
              "4712|4031.5|CASH|1001|0");
    EXPECT_EQ(shares(), "PARACETAMOL 500MG|1500.5|1500.5|4002|DRUGS\nMALARIA PARASITE|2531|2531|4002|DRUGS");
    EXPECT_EQ(covered(), "PARACETAMOL 500MG|1\nMALARIA PARASITE|1");
    EXPECT_EQ(ws.tableCount("BillAccum where isRct=1"), 2);
    EXPECT_EQ(rows("select Amountbilled, AmountPaid from Billing"), "4031.5|4031.5");
    EXPECT_EQ(debt(), "0");
    EXPECT_EQ(ui.opened.last(), "frmCashReceipt");
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo"), "4712");
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo2"), "4712");
    EXPECT_EQ(ws.state("frmBillingVerify.OKButton"), "visible disabled") << "a second press would take the money again";

    // An item added after the save is billed and may be saved and paid; what was paid does not come up once more.
    item({.name = "LATE", .price = 300});
    ui.inModal("frmBillPat", [](Form& form) { form.unload(); });
    click("cmdAddBill");
    EXPECT_EQ(value("lblAmtDue"), "300.00");
    EXPECT_EQ(value("txtAmt(0)") + value("txtHt") + value("lblRct"), "");
    click("OKButton");
    EXPECT_BOXES(ui, {"Please enter Amount Paid"});
    set("chkRct", "no");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(ws.tableCount("Payments"), 1);
    EXPECT_EQ(debt(), "-300");
}

TEST_P(VerifyReceipt, SecondReceiptGoesOnWhereTheFirstStopped) {
    layBill({{"A", 1000}, {"B", 2000}, {"A", 400}});
    set("txtAmt(0)", "1000");
    save();
    EXPECT_EQ(covered(), "A|1\nB|0\nA|1") << "items of one name are covered together";
    click("cmdRefresh");
    EXPECT_EQ(value("txtEmp"), "2,400.00");
    set("cboPayFor", "DRUGS");
    set("txtAmt(0)", "2400");
    save();
    EXPECT_EQ(rows("select ReceiptNo, BillItem, AmountPaid from PaymentDetails order by SNo"),
              "1|A|1000\n2|B|2000\n2|BALANCE_PAYMENT|400");
    EXPECT_EQ(ws.scalar("select AmountPaid from Billing"), "3400");
    EXPECT_EQ(debt(), "0");
    EXPECT_EQ(ui.opened.count("frmCashReceipt"), 2);
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo"), "2") << "the first receipt still stands on the screen";
}

TEST_P(VerifyReceipt, SeveralWaysOfPayment) {
    ws.run("insert into ChartOfAccounts (AccountNo, AccountName, groupID) values ('1225','UNITY BANK','1220000')");
    layBill({{"A", 6000}});
    set("txtAmt(0)", "1,000");
    set("txtAmt(1)", "2000");
    set("txtAmt(2)", "2500");
    set("txtAmt(3)", "0");
    EXPECT_EQ(value("txtHt"), "5,500.00");
    EXPECT_EQ(value("cboPay"), "CASH/POS/CHEQUE");
    EXPECT_EQ(value("lblAcctNo(1)"), "1003");
    for (const char* bank : {"cboBank(1)", "cboBank(2)"})
        set(bank, "UNITY BANK [1225]");
    set("txtCheque", "004512");
    save();
    EXPECT_BOXES(ui, {});
    EXPECT_EQ(rows("select PayType, AmountPaid, AccountNo from PaymentTypes order by SNo"),
              "CASH|1000|1001\nPOS|2000|1225\nCHEQUE|2500|1225");
    EXPECT_EQ(rows("select PayType, ChequeNo, AmountPaid from Payments"), "CASH/POS/CHEQUE|004512|5500");
    EXPECT_EQ(debt(), "-500");
}

TEST_P(VerifyReceipt, WaysMakeUpThePaymentToTheKobo) {
    ws.run("insert into ChartOfAccounts (AccountNo, AccountName, groupID) values ('1225','UNITY BANK','1220000')");
    layBill({{"A", 6000}});
    set("cboBank(1)", "UNITY BANK [1225]");
    set("txtAmt(0)", "100.005");
    set("txtAmt(1)", "200.005");
    EXPECT_EQ(value("txtHt"), "300.02");
    save();
    EXPECT_EQ(rows("select AmountPaid from PaymentTypes order by SNo"), "100.01\n200.01");
    EXPECT_EQ(ws.scalar("select AmountPaid from Payments"), "300.02");
    EXPECT_EQ(debt(), "-5699.98");
}

/// What is covered must not take a second receipt's money.
TEST_P(VerifyReceipt, LineIsCoveredWhateverItsName) {
    for (const char* name : {"ENDS IN A BLANK ", " o'neill's 100% [a_b]#1", "tab\t"}) {
        SCOPED_TRACE(name);
        for (const char* table : {"BillAccum", "Billing", "BillingDetails", "Payments", "hPatients", "hRecords"})
            ws.run(QStringLiteral("delete from %1").arg(table));
        layBill({{name, 1000}});
        set("txtAmt(0)", "1000");
        save();
        EXPECT_EQ(ws.tableCount("BillingDetails where isRct=1"), 1);
        EXPECT_EQ(ws.tableCount("BillAccum where isRct=1"), 1);
    }
}

TEST_P(VerifyReceipt, FreshBillAndDepositOnAdmission) {
    layBill({{"A", 6000}});
    ws.run("insert into Payments (ReceiptNo, billNo, AmountPaid) values ('90','001OFL0000001',1500)");
    click("cmdRefresh");
    EXPECT_EQ(value("txtEmp"), "4,500.00");
    set("chkCurr", "yes");
    EXPECT_EQ(value("txtEmp"), "6,000.00");
    set("chkCurr", "no");
    EXPECT_EQ(value("txtEmp"), "4,500.00");

    ws.run("insert into hAdmission (consultID, PNo, admdate) values ('001OFL0000001','P/0001','2026-03-13')");
    click("cmdRefresh");
    set("chkDep", "yes");
    set("txtAmt(0)", "2000");
    ui.forgetBoxes();
    save();
    EXPECT_EQ(rows("select PaymentFor, AmountPaid, Amountbilled from Payments where ReceiptNo='1'"),
              "DEPOSIT|2000|4500");
    EXPECT_EQ(rows("select AmountPaid, Amountbilled from Billing"), "3500|6000") << "the bill itself is unchanged";
    EXPECT_EQ(rows("select exitDate, BillDate from hRecords"), "|2026-03-14");
}

TEST_P(VerifyReceipt, FaultTakesEverythingBackAndTheFormStays) {
    layBill({{"A", 1000}});
    item({.name = "LATE", .price = 300});
    set("txtAmt(0)", "1000");
    const QString accountBefore = account();
    for (const char* statement :
         {"update  hrecords set BillDate", "PaymentDetails", "hPatients set DebtBF", "commit transaction"}) {
        SCOPED_TRACE(statement);
        breakAt(ws.program, statement);
        save();
        ws.program.data().setStatementHook({});
        EXPECT_BOXES(ui, {"disk full"});
        EXPECT_EQ(ws.tableCount("Payments") + ws.tableCount("PaymentTypes") + ws.tableCount("PaymentDetails"), 0);
        EXPECT_EQ(account(), accountBefore);
        EXPECT_EQ(lines(), "A|1000");
        EXPECT_EQ(rows("select AmountPaid, Amountbilled from Billing"), "0|1000");
        EXPECT_EQ(ws.scalar("select BillDate from hRecords"), "");
        EXPECT_EQ(value("txtHt"), "1,000.00");
        EXPECT_EQ(ws.state("frmBillingVerify.OKButton"), "visible enabled");
    }
    save();
    EXPECT_EQ(ws.scalar("select AmountPaid from Payments"), "1000");
    EXPECT_EQ(lines(), "A|1000\nLATE|300");
    EXPECT_EQ(debt(), "-300");
}

/// The bill is saved by then: a fault of the approval code must not make it look undone.
TEST_P(VerifyReceipt, FaultAfterTheSaveShowsTheReceiptAllTheSame) {
    layBill({{"A", 1000}});
    set("txtAmt(0)", "1000");
    set("txtApprv", "CODE");
    breakAt(ws.program, "hApprvCode");
    save();
    ws.program.data().setStatementHook({});
    EXPECT_BOXES(ui, {"disk full"});
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo"), "1");
    EXPECT_EQ(ws.tableCount("Payments"), 1);
}

TEST_P(VerifyReceipt, AnotherPatientPaysNothingOfThis) {
    layBill({{"A", 1000}});
    Connection connection = ws.billing();
    makeVisit(connection, {.consultID = "001OFL0000002"});
    click("cmdList");
    ws.pick("frmBillingVerify.cboVehNo", "0000001");
    set("chkRct", "yes");
    set("txtAmt(0)", "1000");
    set("txtProf", "10");
    set("txtNHIS", "5");
    set("chkDep", "yes");
    set("chkCurr", "yes");
    ws.pick("frmBillingVerify.cboVehNo", "0000002");
    for (const char* left : {"txtAmt(0)", "txtHt", "cboPayFor", "txtProf", "txtNHIS"})
        EXPECT_EQ(value(left), "") << left;
    EXPECT_EQ(value("chkDep") + value("chkCurr"), "nono");
}

} // namespace

} // namespace orvane
