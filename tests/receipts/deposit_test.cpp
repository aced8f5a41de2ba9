#include "support/ScreenTest.h"

namespace orvane {
namespace {

class Deposit : public ScreenTest {
protected:
    Deposit() : ScreenTest("frmReceiptDeposit") {}
    const QString sentAway = "This page is only for receipt of Advance/Deposit!!! Use Receipt Entry Form";
};
ORVANE_ON_EACH_ENGINE(Deposit);

TEST_P(Deposit, ShowsThePatientAndSavesWhatIsShown) {
    layVisit({.client = "0001", .debt = -1500.5});
    ws.run("insert into Tranxaction (entryDate, PNo, billNo, Amount, RunningTotal, Remarks) values "
           "('2026-03-01','P/0001','OLD',-1500.5,-1500.5,'OLD')");
    ws.run("insert into hAdmission (consultID, PNo, admdate, wardid) values ('001OFL0000001','P/0001','2026-03-12',"
           "'MALE WARD')");
    Connection connection = ws.billing();
    makeConsultation(connection);
    makeConsultation(connection, {.diagnosis = "ULCER"});
    begin();
    EXPECT_BOXES(ui, {"This Patient is Currently on Admission!!! AdmDate:12/03/2026, Ward:MALE WARD"});
    EXPECT_EQ(
        shown("cboVehNo Label5 lblRct lblBill lblClinic2 lblAdm lblBF lblAmt txtDue txtHt txtDiag cboClinic cboPayFor"),
        "ADEYEMI BOLA [P/0001]#001OFL0000001|ADEYEMI BOLA|001OP0000001|001OFL0000001|OPD|ON "
        "ADMISSION|-1,500.50|0.00|0.00||MALARIA ; ULCER|DEPOSIT|ADMISSION DEPOSIT");
    set("txtDue", "20,000");
    set("txtHt", "5,000.50");
    set("dtDate", "2026-02-28");
    // Another screen looks at another patient in between, and another cashier takes the number that is shown.
    ws.program.session.gConsultID = "001OFL0000099";
    ws.program.session.dDebtBF = 99;
    ws.run("insert into Payments (ReceiptNo) values ('001OP0000001')");
    save();
    EXPECT_BOXES(ui, {});
    EXPECT_EQ(rows("select bdate, billNo, PNo, clientID, Amountbilled, AmountPaid, profFee, AmtBF, billingMonth, "
                   "billingYear, diagnosis, billType from Billing"),
              "2026-02-28|001OFL0000001|P/0001|0001|20000|5000.5|0|-1500.5|February|2026|MALARIA ; ULCER|");
    EXPECT_EQ(rows("select ReceiptDate, ReceiptNo, ClinicID, billNo, PNo, PaymentFor, Amountbilled, AmountPaid, "
                   "AmountInWord, ReceivedBy, PayType, rTime, Remarks from Payments where SNo>1"),
              "2026-02-28|001OP0000002|OPD|001OFL0000001|P/0001|ADMISSION DEPOSIT|20000|5000.5|FIVE THOUSAND,  NAIRA "
              "AND FIFTY KOBO ONLY|E001|CASH|09:30|DEPOSIT/ADVANCE");
    EXPECT_EQ(rows("select billNo, Amount, RunningTotal, Remarks from Tranxaction where SNo>1"),
              "001OFL0000001|5000.5|3500|Deposit");
    EXPECT_EQ(ws.scalar("select DebtBF from hPatients"), "3500");
    EXPECT_EQ(ui.opened.last(), "frmCashReceipt");
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo"), "001OP0000002");
    EXPECT_EQ(value("txtHt"), "");
    EXPECT_EQ(state("OKButton"), "visible disabled");
}

TEST_P(Deposit, AVisitWithABillIsSentToReceiptEntry) {
    layVisit();
    layBill(1000);
    begin();
    EXPECT_BOXES(ui, {sentAway});
    EXPECT_EQ(ui.opened.last(), "frmReceiptTemp");
    expectChecks({{"txtHt", "100", "Receipt No Required"}});

    // The bill comes up while the cashier types.
    ws.run("delete from Billing");
    pick("cboVehNo", billNo);
    set("txtHt", "100");
    layBill(1000);
    save();
    EXPECT_BOXES(ui, {sentAway});
    EXPECT_EQ(ws.tableCount("Payments"), 0);
    EXPECT_EQ(bill(), "1000|0|0");
}

TEST_P(Deposit, ChecksInOrder) {
    layVisit();
    ws.run("update hRecords set clinicType='NOWHERE'");
    open();
    click("cmdAdd");
    expectChecks({{"txtHt", "", "Please enter Receipt Amount", "txtHt"},
                  {"txtHt", "0", "Receipt Amount Cannot be zero or less", "txtHt"},
                  {"txtHt", "abc", "Receipt Amount Cannot be zero or less"},
                  {"txtHt", "0.004", "Receipt Amount Cannot be zero or less"},
                  {"txtHt", "500", "Please enter Patient No", "cboVehNo"}});
    EXPECT_EQ(value("txtDue"), "0");
    expectChecks({{"cboVehNo", "ADEYEMI", "Receipt No Required", "cboVehNo"}});
    set("cboPay", "");
    pick("cboVehNo", billNo);
    EXPECT_BOXES(ui, {"Please enter Payment type"});
    set("cboPay", "CASH");
    pick("cboVehNo", billNo);
    EXPECT_BOXES(ui, {"ReceiptNo cannot be generated!!! No Consult ID for this transaction"});
    set("txtHt", "500");
    expectChecks({{"cboClinic", "", "Please Specify payment type", "cboClinic"},
                  {"cboClinic", "DEPOSIT", "Receipt No Required"}});
    ws.run("update hRecords set clinicType='OPD'");
    pick("cboVehNo", billNo);
    set("txtHt", "500");
    set("cboPay", "");
    expectChecks({{"cboPayFor", "", "Please enter Payment Purpose", "cboPayFor"},
                  {"cboPayFor", "ADMISSION DEPOSIT", "Please enter Payment type", "cboPay"}});
    set("cboPay", "CHEQUE");
    expectChecks({{"txtDue", "-1", "Please enter Amount Due", "txtDue"}});
    set("txtDue", "");
    expectChecks({{"dtDate", "", "Please enter Receipt Date", "dtDate"}});
    EXPECT_EQ(ws.tableCount("Payments"), 0);
}

TEST_P(Deposit, PaymentItems) {
    layVisit();
    begin();
    auto& items = ws.control<ComboBox>("frmReceiptDeposit.cboClinic");
    items.addItems({"REFUND", "SPLIT-BILL", "CARD"});
    for (const QStringList& c : {QStringList{"DEPOSIT", "visible enabled", "70", "30"},
                                 {"REFUND", "visible disabled", "70", "0"},
                                 {"SPLIT-BILL", "visible enabled", "70", "30"},
                                 {"CARD", "visible enabled", "", "30"}}) {
        ws.control("frmReceiptDeposit.txtDue").setEnabled(true);
        set("txtDue", "70");
        set("txtHt", "30");
        pick("cboClinic", c.first());
        EXPECT_EQ(QStringList({c.first(), state("txtDue"), value("txtDue"), value("txtHt")}), c);
    }
}

/// Money never goes to a patient who was left for another, nor to one whose account was not read to the end.
TEST_P(Deposit, APatientInHandIsReadWholeOrNotAtAll) {
    layVisit();
    layVisit({.pno = "P/0002", .surname = "OTHER", .debt = -700}, {.consultID = "001OFL0000002", .pno = "P/0002"});
    begin();
    set("cboPay", "");
    pick("cboVehNo", "OTHER");
    EXPECT_BOXES(ui, {"Please enter Payment type"});
    set("cboPay", "CASH");
    expectChecks({{"txtHt", "100", "Please enter Patient No"}});
    breakAt("vwDebtInfoForPatUnionGrouped", true);
    pick("cboVehNo", "OTHER");
    EXPECT_BOXES(ui, {"disk full"});
    expectChecks({{"txtHt", "100", "Receipt No Required"}});
    pick("cboVehNo", "OTHER");
    set("txtHt", "100");
    save();
    EXPECT_EQ(rows("select PNo, AmtBF from Billing") + '/' + rows("select PNo, AmountPaid from Payments"),
              "P/0002|-700/P/0002|100");
}

} // namespace
} // namespace orvane
