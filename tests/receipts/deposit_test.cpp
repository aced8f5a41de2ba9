#include "ReceiptTest.h"

namespace orvane {

namespace {

class Deposit : public ReceiptTest {
protected:
    Deposit() : ReceiptTest("frmReceiptDeposit") {}

    void begin() {
        openScreen();
        if (!isEntering())
            click("cmdAdd");
        pick("cboVehNo", billNo);
    }
    void save() {
        ui.answer(true);
        click("OKButton");
        EXPECT_QUESTIONS(ui, {"Are you sure to save?"});
    }
    const QString sentAway = "This page is only for receipt of Advance/Deposit!!! Use Receipt Entry Form";
};

ORVANE_ON_EACH_ENGINE(Deposit);

TEST_P(Deposit, AnAmountTooLargeToBeSummedIsRefusedWhole) {
    layVisit();
    begin();
    set("txtDue", "5000");
    set("txtHt", "99999999999999999999");
    save();
    EXPECT_EQ(ui.takeBoxes().size(), 1);
    EXPECT_EQ(value("txtHt"), "99999999999999999999") << "to be corrected";
    EXPECT_EQ(rows("select RunningTotal from Tranxaction") + rows("select AmountPaid from Payments") + bill(), "");
    set("txtHt", "9,000,000,000,000.01");
    save();
    EXPECT_EQ(rows("select AmountPaid from Payments"), "9000000000000.01");
}

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
    const QMap<QString, QString> shown{{"cboVehNo", "ADEYEMI BOLA [P/0001]#001OFL0000001"},
                                       {"Label5", "ADEYEMI BOLA"},
                                       {"lblRct", "001OP0000001"},
                                       {"lblBill", billNo},
                                       {"lblClinic2", "OPD"},
                                       {"lblAdm", "ON ADMISSION"},
                                       {"lblBF", "-1,500.50"},
                                       {"lblAmt", "0.00"},
                                       {"txtDue", "0.00"},
                                       {"txtHt", ""},
                                       {"txtDiag", "MALARIA ; ULCER"},
                                       {"cboClinic", "DEPOSIT"},
                                       {"cboPayFor", "ADMISSION DEPOSIT"}};
    for (auto field = shown.begin(); field != shown.end(); ++field)
        EXPECT_EQ(value(field.key()), field.value()) << field.key().toStdString();
    set("txtDue", "20,000");
    set("txtHt", "5,000.50");
    set("dtDate", "2026-02-28");
    // Another screen looks at another patient in between.
    ws.program.session.gConsultID = "001OFL0000099";
    ws.program.session.dDebtBF = 99;
    save();

    EXPECT_BOXES(ui, {});
    EXPECT_EQ(rows("select bdate, billNo, PNo, clientID, Amountbilled, AmountPaid, AmtBF, diagnosis from Billing"),
              "2026-02-28|001OFL0000001|P/0001|0001|20000|5000.5|-1500.5|MALARIA ; ULCER");
    EXPECT_EQ(rows("select ReceiptDate, ReceiptNo, PaymentFor, AmountInWord, PayType from Payments"),
              "2026-02-28|001OP0000001|ADMISSION DEPOSIT|FIVE THOUSAND,  NAIRA AND FIFTY KOBO ONLY|CASH");
    EXPECT_EQ(ws.scalar("select DebtBF from hPatients"), "3500");
    EXPECT_EQ(ui.opened.last(), "frmCashReceipt");
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo"), "001OP0000001");
    EXPECT_EQ(value("txtHt"), "");
    EXPECT_EQ(state("OKButton"), "visible disabled");
}

TEST_P(Deposit, AVisitWithABillIsSentToReceiptEntry) {
    layVisit();
    layBill(1000);
    begin();
    EXPECT_BOXES(ui, {sentAway});
    EXPECT_EQ(ui.opened.last(), "frmReceiptTemp");
    expectRefusals({{"txtHt", "100", "Receipt No Required"}});

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
    openScreen();
    click("cmdAdd");
    expectRefusals({{"txtHt", "", "Please enter Receipt Amount", "txtHt"},
                    {"txtHt", "0", "Receipt Amount Cannot be zero or less", "txtHt"},
                    {"txtHt", "-5", "Receipt Amount Cannot be zero or less"},
                    {"txtHt", "abc", "Receipt Amount Cannot be zero or less"},
                    {"txtHt", "0.004", "Receipt Amount Cannot be zero or less"},
                    {"txtHt", "500", "Please enter Patient No", "cboVehNo"}});
    EXPECT_EQ(value("txtDue"), "0");
    set("cboPay", "");
    pick("cboVehNo", billNo);
    EXPECT_BOXES(ui, {"Please enter Payment type"});
    set("cboPay", "CASH");
    pick("cboVehNo", billNo);
    EXPECT_BOXES(ui, {"ReceiptNo cannot be generated!!! No Consult ID for this transaction"});
    set("txtHt", "500");
    expectRefusals({{"cboClinic", "", "Please Specify payment type", "cboClinic"},
                    {"cboClinic", "DEPOSIT", "Receipt No Required"}});
    ws.run("update hRecords set clinicType='OPD'");
    pick("cboVehNo", billNo);
    set("txtHt", "500");
    set("cboPay", "");
    expectRefusals({{"cboPayFor", "", "Please enter Payment Purpose", "cboPayFor"},
                    {"cboPayFor", "ADMISSION DEPOSIT", "Please enter Payment type", "cboPay"}});
    set("cboPay", "CHEQUE");
    expectRefusals({{"txtDue", "-1", "Please enter Amount Due", "txtDue"}});
    set("txtDue", "");
    expectRefusals({{"dtDate", "", "Please enter Receipt Date", "dtDate"}});
    EXPECT_EQ(ws.tableCount("Payments"), 0);
}

TEST_P(Deposit, TwoCashiersGetDifferentNumbers) {
    layVisit();
    layVisit({.pno = "P/0002", .surname = "OTHER"}, {.consultID = "001OFL0000002", .pno = "P/0002"});
    begin();
    set("txtHt", "100");
    const SecondHome secondHome(home);
    Workstation other(secondHome.folder());
    ASSERT_TRUE(other.start());
    other.open("frmReceiptDeposit");
    other.click("frmReceiptDeposit.cmdAdd");
    other.pick("frmReceiptDeposit.cboVehNo", "OTHER");
    EXPECT_EQ(other.value("frmReceiptDeposit.lblRct"), value("lblRct")) << "both are shown the same number";
    other.set("frmReceiptDeposit.txtHt", "200");
    save();
    other.ui.answer(true);
    other.click("frmReceiptDeposit.OKButton");
    EXPECT_EQ(rows("select ReceiptNo, PNo, AmountPaid from Payments order by SNo"),
              "001OP0000001|P/0001|100\n001OP0000002|P/0002|200");
    EXPECT_EQ(other.value("frmCashReceipt.txtReceiptNo"), "001OP0000002");
}

TEST_P(Deposit, PaymentItems) {
    layVisit();
    begin();
    const struct {
        const char *item, *state, *due, *amount;
    } cases[] = {{"DEPOSIT", "visible enabled", "70", "30"},
                 {"REFUND", "visible disabled", "70", "0"},
                 {"SPLIT-BILL", "visible enabled", "70", "30"},
                 {"CARD", "visible enabled", "", "30"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.item);
        auto& items = ws.control<ComboBox>("frmReceiptDeposit.cboClinic");
        items.clear();
        items.addItem(c.item);
        ws.control("frmReceiptDeposit.txtDue").setEnabled(true);
        set("txtDue", "70");
        set("txtHt", "30");
        pick("cboClinic", c.item);
        EXPECT_EQ(state("txtDue") + '|' + value("txtDue") + '|' + value("txtHt"),
                  QStringList({c.state, c.due, c.amount}).join('|'));
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
    expectRefusals({{"txtHt", "100", "Please enter Patient No"}});
    breakAt("vwDebtInfoForPatUnionGrouped");
    pick("cboVehNo", "OTHER");
    EXPECT_BOXES(ui, {"disk full"});
    expectRefusals({{"txtHt", "100", "Receipt No Required"}});
    pick("cboVehNo", "OTHER");
    set("txtHt", "100");
    save();
    EXPECT_EQ(rows("select PNo, AmtBF from Billing") + '/' + rows("select PNo, AmountPaid from Payments"),
              "P/0002|-700/P/0002|100");
}

} // namespace

} // namespace orvane
