#include "ReceiptTest.h"

namespace orvane {

namespace {

class Deposit : public ReceiptTest {
protected:
    void set(const QString& control, const QString& value) { ws.set("frmReceiptDeposit." + control, value); }
    void click(const QString& control) { ws.click("frmReceiptDeposit." + control); }
    QString value(const QString& control) { return ws.value("frmReceiptDeposit." + control); }
    void begin() {
        if (!ws.program.loadedForm("frmReceiptDeposit"))
            ws.open("frmReceiptDeposit");
        if (ws.state("frmReceiptDeposit.cmdAdd") == "visible enabled")
            click("cmdAdd");
        ws.pick("frmReceiptDeposit.cboVehNo", billNo);
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
    EXPECT_EQ(account() + rows("select AmountPaid from Payments") + bill(), "");
    set("txtHt", "9,000,000,000,000.01");
    save();
    EXPECT_EQ(rows("select AmountPaid from Payments"), "9000000000000.01");
}

TEST_P(Deposit, OpensTheBillAndRaisesTheAccount) {
    layVisit({.client = "0001", .debt = -1500.5});
    ws.run("insert into Tranxaction (entryDate, PNo, billNo, Amount, RunningTotal, Remarks) values "
           "('2026-03-01','P/0001','OLD',-1500.5,-1500.5,'OLD')");
    ws.run("insert into Payments (ReceiptNo) values ('001OP0000007')");
    ws.run("insert into hAdmission (consultID, PNo, admdate, wardid) values ('001OFL0000001','P/0001','2026-03-12',"
           "'MALE WARD')");
    Connection connection = ws.billing();
    makeConsultation(connection);
    makeConsultation(connection, {.diagnosis = "ULCER"});
    begin();
    EXPECT_BOXES(ui, {"This Patient is Currently on Admission!!! AdmDate:12/03/2026, Ward:MALE WARD"});
    EXPECT_EQ(value("cboVehNo"), "ADEYEMI BOLA [P/0001]#001OFL0000001");
    const QMap<QString, QString> shown{{"Label5", "ADEYEMI BOLA"},
                                       {"lblRct", "001OP0000008"},
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
    EXPECT_EQ(rows("select bdate, billNo, PNo, clientID, Amountbilled, AmountPaid, profFee, AmtBF, billingMonth, "
                   "billingYear, diagnosis, billType from Billing"),
              "2026-02-28|001OFL0000001|P/0001|0001|20000|5000.5|0|-1500.5|February|2026|MALARIA ; ULCER|");
    EXPECT_EQ(rows("select ReceiptDate, ReceiptNo, ClinicID, billNo, PNo, PaymentFor, Amountbilled, AmountPaid, "
                   "AmountInWord, ReceivedBy, PayType, rTime, Remarks from Payments where billNo is not null"),
              "2026-02-28|001OP0000008|OPD|001OFL0000001|P/0001|ADMISSION DEPOSIT|20000|5000.5|FIVE THOUSAND,  NAIRA "
              "AND FIFTY KOBO ONLY|E001|CASH|09:30|DEPOSIT/ADVANCE");
    EXPECT_EQ(account(), "OLD|-1500.5|-1500.5|OLD\n001OFL0000001|5000.5|3500|Deposit");
    EXPECT_EQ(debt(), "3500");
    EXPECT_EQ(audit(), "insert Payment for: ADEYEMI BOLA [P/0001]#001OFL0000001|001OFL0000001|5000.50");
    EXPECT_EQ(ui.opened.last(), "frmCashReceipt");
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo"), "001OP0000008");
    EXPECT_EQ(value("txtHt"), "");
    EXPECT_EQ(ws.state("frmReceiptDeposit.OKButton"), "visible disabled");
}

TEST_P(Deposit, AVisitWithABillIsSentToReceiptEntry) {
    layVisit();
    layBill(1000);
    begin();
    EXPECT_BOXES(ui, {sentAway});
    EXPECT_EQ(ui.opened.last(), "frmReceiptTemp");
    EXPECT_EQ(value("lblRct"), "");
    set("txtHt", "100");
    click("OKButton");
    EXPECT_BOXES(ui, {"Receipt No Required"});

    // The bill comes up while the cashier types.
    ws.run("delete from Billing");
    ws.pick("frmReceiptDeposit.cboVehNo", 0);
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
    ws.open("frmReceiptDeposit");
    click("cmdAdd");
    const auto refused = [&](const char* text) {
        click("OKButton");
        EXPECT_BOXES(ui, {text});
    };
    refused("Please enter Receipt Amount");
    for (const char* none : {"0", "-5", "abc", "0.004"}) {
        set("txtHt", none);
        refused("Receipt Amount Cannot be zero or less");
    }
    set("txtHt", "500");
    refused("Please enter Patient No");
    EXPECT_EQ(value("txtDue"), "0");
    set("cboPay", "");
    ws.pick("frmReceiptDeposit.cboVehNo", 0);
    EXPECT_BOXES(ui, {"Please enter Payment type"});
    set("cboPay", "CASH");
    ws.pick("frmReceiptDeposit.cboVehNo", 0);
    EXPECT_BOXES(ui, {"ReceiptNo cannot be generated!!! No Consult ID for this transaction"});
    set("txtHt", "500");
    set("cboClinic", "");
    refused("Please Specify payment type");
    set("cboClinic", "DEPOSIT");
    refused("Receipt No Required");
    ws.run("update hRecords set clinicType='OPD'");
    ws.pick("frmReceiptDeposit.cboVehNo", 0);
    set("txtHt", "500");
    set("cboPayFor", "");
    refused("Please enter Payment Purpose");
    set("cboPayFor", "ADMISSION DEPOSIT");
    set("cboPay", "");
    refused("Please enter Payment type");
    set("cboPay", "CHEQUE");
    set("txtDue", "-1");
    refused("Please enter Amount Due");
    set("txtDue", "");
    set("dtDate", "");
    refused("Please enter Receipt Date");
    EXPECT_EQ(ws.tableCount("Payments"), 0);
    EXPECT_EQ(ws.tableCount("Billing"), 0);
}

TEST_P(Deposit, AFaultKeepsNothingAndTheFieldsStand) {
    layVisit();
    begin();
    set("txtHt", "10");
    for (const char* statement :
         {"into [Billing]", "into [Payments]", "into [Tranxaction]", "update hPatients", "commit"}) {
        SCOPED_TRACE(statement);
        breakAt(statement);
        save();
        EXPECT_BOXES(ui, {"disk full"});
        for (const char* table : {"Billing", "Payments", "Tranxaction"})
            EXPECT_EQ(ws.tableCount(table), 0) << table;
        EXPECT_EQ(debt(), "0");
        EXPECT_EQ(value("txtHt"), "10");
        EXPECT_EQ(value("lblRct"), "001OP0000001");
    }
    save();
    EXPECT_EQ(rows("select ReceiptNo, AmountPaid from Payments"), "001OP0000001|10");
    EXPECT_EQ(debt(), "10");
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
    } cases[] = {
        {"DEPOSIT", "visible enabled", "70", "30"},
        {"REFUND", "visible disabled", "70", "0"},
        {"SPLIT-BILL", "visible enabled", "70", "30"},
        {"CARD", "visible enabled", "", "30"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.item);
        auto& items = ws.control<ComboBox>("frmReceiptDeposit.cboClinic");
        items.clear();
        items.addItem(c.item);
        ws.control("frmReceiptDeposit.txtDue").setEnabled(true);
        set("txtDue", "70");
        set("txtHt", "30");
        ws.pick("frmReceiptDeposit.cboClinic", 0);
        EXPECT_EQ(ws.state("frmReceiptDeposit.txtDue"), c.state);
        EXPECT_EQ(value("txtDue"), c.due);
        EXPECT_EQ(value("txtHt"), c.amount);
    }
}

/// Money never goes to a patient who was left for another, nor to one whose account was not read to the end.
TEST_P(Deposit, APatientInHandIsReadWholeOrNotAtAll) {
    layVisit();
    layVisit({.pno = "P/0002", .surname = "OTHER", .debt = -700}, {.consultID = "001OFL0000002", .pno = "P/0002"});
    ws.run("insert into Tranxaction (entryDate, PNo, billNo, Amount, RunningTotal, Remarks) values "
           "('2026-03-01','P/0002','OLD',-700,-700,'OLD')");
    begin();
    set("cboPay", "");
    ws.pick("frmReceiptDeposit.cboVehNo", "OTHER");
    EXPECT_BOXES(ui, {"Please enter Payment type"});
    set("cboPay", "CASH");
    set("txtHt", "100");
    click("OKButton");
    EXPECT_BOXES(ui, {"Please enter Patient No"});

    breakAt("vwDebtInfoForPatUnionGrouped");
    ws.pick("frmReceiptDeposit.cboVehNo", "OTHER");
    EXPECT_BOXES(ui, {"disk full"});
    set("txtHt", "100");
    click("OKButton");
    EXPECT_BOXES(ui, {"Receipt No Required"});
    EXPECT_EQ(ws.tableCount("Payments"), 0);

    ws.pick("frmReceiptDeposit.cboVehNo", "OTHER");
    set("txtHt", "100");
    save();
    EXPECT_EQ(rows("select PNo, AmtBF from Billing"), "P/0002|-700");
    EXPECT_EQ(rows("select PNo, AmountPaid from Payments"), "P/0002|100");
}

} // namespace

} // namespace orvane
