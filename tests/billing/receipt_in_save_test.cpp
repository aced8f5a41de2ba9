#include "support/ScreenTest.h"

namespace orvane {
namespace {

/// The receipt that is taken in the save of a bill.
class VerifyReceipt : public ScreenTest {
protected:
    VerifyReceipt() : ScreenTest("frmBillingVerify") {}
    void layItems(std::initializer_list<std::pair<const char*, double>> items) {
        layVisit();
        for (const auto& [name, price] : items)
            layItem({.name = name, .revType = "DRUGS", .price = price});
        load();
        set("chkRct", "yes");
        set("cboPayFor", "DRUGS");
    }
    QString covered() { return rows("select drgName, isRct from BillingDetails order by SNo"); }
};
ORVANE_ON_EACH_ENGINE(VerifyReceipt);

TEST_P(VerifyReceipt, FullPaymentInCash) {
    ws.run("update IDgen set ID=4711 where DestName='RECEIPT2'");
    layItems({{"PARACETAMOL 500MG", 1500.5}, {"MALARIA PARASITE", 2531}});
    set("chkExact", "yes");
    EXPECT_EQ(shown("txtAmt(0) txtHt cboPay txtWord"),
              "4,031.50|4,031.50|CASH|FOUR THOUSAND, THIRTY ONE NAIRA AND FIFTY KOBO ONLY");
    save();
    EXPECT_BOXES(ui, {});
    EXPECT_EQ(
        rows(
            "select ReceiptDate, ReceiptNo, ClinicID, billNo, PNo, PaymentFor, Amountbilled, AmountPaid, AmountInWord, "
            "ReceivedBy, PayType, ChequeNo, rTime, Remarks from Payments"),
        "2026-03-14|4712|OPD|001OFL0000001|P/0001|DRUGS|4031.5|4031.5|FOUR THOUSAND, THIRTY ONE NAIRA AND FIFTY KOBO "
        "ONLY|E001|CASH||09:30|PAYMENT");
    EXPECT_EQ(rows("select ReceiptNo, AmountPaid, PayType, AccountNo, isPost from PaymentTypes"),
              "4712|4031.5|CASH|1001|0");
    EXPECT_EQ(rows("select BillItem, AmountPaid, AmountToPay, AccountNo, revType from PaymentDetails order by SNo"),
              "PARACETAMOL 500MG|1500.5|1500.5|4002|DRUGS\nMALARIA PARASITE|2531|2531|4002|DRUGS");
    EXPECT_EQ(ws.tableCount("BillAccum where isRct=1"), 2);
    EXPECT_EQ(rows("select Amountbilled, AmountPaid from Billing"), "4031.5|4031.5");
    EXPECT_EQ(debt(), "0");
    EXPECT_EQ(ui.opened.last(), "frmCashReceipt");
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo") + ws.value("frmCashReceipt.txtReceiptNo2"), "47124712");
    EXPECT_EQ(state("OKButton"), "visible disabled") << "a second press would take the money again";

    // An item added after the save is billed and may be saved and paid; what was paid does not come up once more.
    layItem({.name = "LATE", .price = 300});
    ui.inModal("frmBillPat", [](Form& form) { form.unload(); });
    click("cmdAddBill");
    EXPECT_EQ(value("lblAmtDue"), "300.00");
    EXPECT_EQ(value("txtAmt(0)") + value("txtHt") + value("lblRct"), "");
    EXPECT_EQ(told("OKButton"), "Please enter Amount Paid");
    set("chkRct", "no");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(ws.tableCount("Payments"), 1);
    EXPECT_EQ(debt(), "-300");
}

TEST_P(VerifyReceipt, SecondReceiptGoesOnWhereTheFirstStopped) {
    layItems({{"A", 1000}, {"B", 2000}, {"A", 400}});
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

/// Each way, and so their sum, is whole kobo.
TEST_P(VerifyReceipt, SeveralWaysOfPayment) {
    ws.run("insert into ChartOfAccounts (AccountNo, AccountName, groupID) values ('1225','UNITY BANK','1220000')");
    layItems({{"A", 6000}});
    const char* amounts[] = {"1,000.005", "2000.005", "2500", "0"};
    for (int way = 0; way < 4; ++way)
        set(QString("txtAmt(%1)").arg(way), amounts[way]);
    EXPECT_EQ(shown("txtHt cboPay lblAcctNo(1)"), "5,500.02|CASH/POS/CHEQUE|1003");
    for (const char* bank : {"cboBank(1)", "cboBank(2)"})
        set(bank, "UNITY BANK [1225]");
    set("txtCheque", "004512");
    save();
    EXPECT_BOXES(ui, {});
    EXPECT_EQ(rows("select PayType, AmountPaid, AccountNo from PaymentTypes order by SNo"),
              "CASH|1000.01|1001\nPOS|2000.01|1225\nCHEQUE|2500|1225");
    EXPECT_EQ(rows("select PayType, ChequeNo, AmountPaid from Payments"), "CASH/POS/CHEQUE|004512|5500.02");
    EXPECT_EQ(debt(), "-499.98");
}

TEST_P(VerifyReceipt, FreshBillAndDepositOnAdmission) {
    layItems({{"A", 6000}});
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

/// The bill is saved by then: a fault of the approval code must not make it look undone.
TEST_P(VerifyReceipt, FaultAfterTheSaveShowsTheReceiptAllTheSame) {
    layItems({{"A", 1000}});
    set("txtAmt(0)", "1000");
    set("txtApprv", "CODE");
    breakAt("hApprvCode");
    save();
    mend();
    EXPECT_BOXES(ui, {"disk full"});
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo"), "1");
    EXPECT_EQ(ws.tableCount("Payments"), 1);
}

TEST_P(VerifyReceipt, AnotherPatientPaysNothingOfThis) {
    layItems({{"A", 1000}});
    Connection connection = ws.billing();
    makeVisit(connection, {.consultID = "001OFL0000002"});
    click("cmdList");
    pick("cboVehNo", "0000001");
    for (const auto& [field, entry] : {std::pair("chkRct", "yes"),
                                       {"txtAmt(0)", "1000"},
                                       {"txtProf", "10"},
                                       {"txtNHIS", "5"},
                                       {"chkDep", "yes"},
                                       {"chkCurr", "yes"}})
        set(field, entry);
    pick("cboVehNo", "0000002");
    EXPECT_EQ(shown("txtAmt(0) txtHt cboPayFor txtProf txtNHIS chkDep chkCurr"), "|||||no|no");
}

} // namespace
} // namespace orvane
