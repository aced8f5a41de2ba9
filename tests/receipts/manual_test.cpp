#include "ReceiptTest.h"

namespace orvane {

namespace {

class Manual : public ReceiptTest {
protected:
    void set(const QString& control, const QString& value) { ws.set("frmReceiptManual." + control, value); }
    void click(const QString& control) { ws.click("frmReceiptManual." + control); }
    QString value(const QString& control) { return ws.value("frmReceiptManual." + control); }
    void fill(const QString& number, const QString& billed, const QString& paid) {
        if (!ws.program.loadedForm("frmReceiptManual"))
            ws.open("frmReceiptManual");
        if (ws.state("frmReceiptManual.cmdAdd") == "visible enabled")
            click("cmdAdd");
        ws.pick("frmReceiptManual.cboVehNo", billNo);
        ws.pick("frmReceiptManual.cboReceived", "BELLO");
        set("txtRct", number);
        set("txtBill", billed);
        set("txtHt", paid);
    }
    void save() {
        ui.answer(true);
        click("OKButton");
        EXPECT_QUESTIONS(ui, {"Are you sure to save? Please Confirm Receipt Date before Saving"});
    }
};

ORVANE_ON_EACH_ENGINE(Manual);

TEST_P(Manual, MakesTheBillAndThenEnlargesIt) {
    layVisit({.debt = -200});
    ws.run("insert into Tranxaction (entryDate, PNo, billNo, Amount, RunningTotal, Remarks) values "
           "('2026-03-01','P/0001','OLD',-200,-200,'OLD')");
    fill(" 0047 ", "1,500.50", "1000");
    EXPECT_EQ(value("cboVehNo"), "ADEYEMI BOLA @ 14/03/2026 [P/0001]#001OFL0000001");
    EXPECT_EQ(value("lblBill"), billNo);
    EXPECT_EQ(value("lblCoy"), "PRIVATE");
    EXPECT_EQ(value("lblDate"), "14/03/2026");
    EXPECT_EQ(value("txtDebt"), "-200.00");
    EXPECT_EQ(value("txtEmp"), "1,300.50");
    EXPECT_EQ(value("txtDuty"), "ONE THOUSAND NAIRA");
    set("cboPay", "CHEQUE");
    set("cboClinic", "OPD");
    set("dtDate", "2026-03-10");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    const QString billing = "select bdate, billNo, PNo, clientID, Amountbilled, AmountBIlledInWord, AmountPaid, "
                            "profFee, AmtBF, billingMonth, billingYear, diagnosis, billType, isPaid from Billing";
    const QString payments = "select ReceiptDate, ReceiptNo, ClinicID, billNo, PNo, PaymentFor, Amountbilled, "
                             "AmountPaid, AmountInWord, ReceivedBy, PayType, rTime, Remarks from Payments order by SNo";
    EXPECT_EQ(rows(billing), "2026-03-10|001OFL0000001|P/0001|PRIVATE|1500.5|XXX|1000|0|0|March|2026|XXX|CASH|0");
    EXPECT_EQ(rows(payments), "2026-03-10|SN0047|OPD|001OFL0000001|P/0001|CONSULTING AND DRUGS|1500.5|1000|ONE "
                              "THOUSAND NAIRA|E001|CHEQUE|09:30|CASH");
    EXPECT_EQ(ws.rows("frmReceiptManual.grdData").value(1),
              "10/03/2026\t09:30\tSN0047\tADEYEMI BOLA\t1,500.50\t1,000.00\t500.50\tCONSULTING AND DRUGS\tONE THOUSAND "
              "NAIRA\tCHEQUE\tOPD\tE001\t001OFL0000001\tPRIVATE PATIENTS");

    // The second one states new items of 99.5 and pays the whole; the same paper number may come again.
    fill("0047", "99.5", "600");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(bill(), "1600|1600|1");
    EXPECT_EQ(rows("select ReceiptNo, Amountbilled, AmountPaid from Payments order by SNo"),
              "SN0047|1500.5|1000\nSN0047|1600|600");
    EXPECT_EQ(account(), "OLD|-200|-200|OLD\n"
                         "001OFL0000001|-1500.5|-1700.5|Payment\n001OFL0000001|1000|-700.5|Payment\n"
                         "001OFL0000001|-99.5|-800|Payment\n001OFL0000001|600|-200|Payment");
    EXPECT_EQ(debt(), "-200");
    EXPECT_EQ(value("lblTotal"), "1,600.00");
    EXPECT_EQ(audit(), "insert Payment for: ADEYEMI BOLA @ 14/03/2026 [P/0001]#001OFL0000001|001OFL0000001|1000.00\n"
                       "insert Payment for: ADEYEMI BOLA @ 14/03/2026 [P/0001]#001OFL0000001|001OFL0000001|600.00");
    ws.row("frmReceiptManual.grdData", 0);
    click("cmdPrint");
    EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo"), "SN0047");
}

TEST_P(Manual, ChecksInOrder) {
    layVisit({.category = "MTHLY", .client = "0102"});
    ws.open("frmReceiptManual");
    click("cmdPrint");
    EXPECT_BOXES(ui, {"Save Receipt Information before printing"});
    click("cmdAdd");
    const auto refused = [&](const char* text) {
        click("OKButton");
        EXPECT_BOXES(ui, {text});
    };
    set("dtDate", "");
    refused("Please enter Receipt Date");
    set("dtDate", "2026-03-14");
    set("txtRct", "  ");
    refused("Please enter Receipt No");
    set("txtRct", "1");
    refused("Please Select Patient Name");
    ws.pick("frmReceiptManual.cboVehNo", 0);
    EXPECT_EQ(value("lblCoy"), "0102");
    refused("Please enter Amount Paid");
    set("txtHt", "10");
    set("cboCat", "");
    refused("Please enter Payment Purpose");
    set("cboCat", "CARD");
    refused("Please enter Name of Receiver");
    ws.pick("frmReceiptManual.cboReceived", 0);
    set("cboPay", "");
    refused("Please enter Payment type");
    set("cboPay", "CASH");
    set("cboClinic", "");
    refused("Please enter Clinic type");
    set("cboClinic", "OPD");
    set("txtHt", "ten");
    refused("Please enter Amount Paid");
    set("txtHt", "10");
    set("txtBill", "-10");
    refused("Please enter Amount Billed");
    set("txtBill", "");
    set("cboReceived", "BELLO AMINA");
    refused("Please enter Name of Receiver");
    set("cboVehNo", "SOMEBODY");
    refused("Please Select Patient Name");
    EXPECT_EQ(ws.tableCount("Payments"), 0);
}

TEST_P(Manual, MoneyIsInWholeKobo) {
    layVisit();
    fill("1", "500.004", "499.996");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(bill(), "500|500|1");
    EXPECT_EQ(rows("select Amountbilled, AmountPaid from Payments"), "500|500");
    EXPECT_EQ(debt(), "0");
}

TEST_P(Manual, ABillOnAnInvoiceIsFrozen) {
    layVisit();
    layBill(1000);
    ws.run("update Billing set isProcess=1");
    fill("1", "500", "500");
    save();
    EXPECT_BOXES(ui, {"This Bill is already processed! to Modify, unProcess the Batch"});
    EXPECT_EQ(bill(), "1000|0|0");
    EXPECT_EQ(ws.tableCount("Payments"), 0);
    EXPECT_EQ(value("txtHt"), "500");
}

TEST_P(Manual, AFaultKeepsNothingAndTheFieldsStand) {
    layVisit();
    fill("1", "500", "500");
    for (const char* statement : {"into [Billing]", "into [Payments]", "into [Tranxaction]", "update hPatients",
                                  "update [Billing]", "commit"}) {
        SCOPED_TRACE(statement);
        breakAt(statement);
        save();
        EXPECT_BOXES(ui, {"disk full"});
        for (const char* table : {"Billing", "Payments", "Tranxaction"})
            EXPECT_EQ(ws.tableCount(table), 0) << table;
        EXPECT_EQ(debt(), "0");
        EXPECT_EQ(value("txtRct"), "1");
    }
    breakAt("transaction committed");
    save();
    EXPECT_TRUE(ui.takeBoxes().join('|').contains("It is not known whether it was saved."));
    EXPECT_EQ(ws.state("frmReceiptManual.cmdRefresh"), "visible disabled") << "it may be saved";
    ws.click("frmReceiptManual.OKButton");
    EXPECT_BOXES(
        ui, {"The entry was saved before the connection broke. It is not saved again.", "Record Succesfully saved"});
    EXPECT_EQ(bill(), "500|500|1");
}

TEST_P(Manual, APatientWhoWasReadInPartGetsNoBill) {
    layVisit();
    ws.open("frmReceiptManual");
    click("cmdAdd");
    breakAt("qryhfullname");
    fill("1", "500", "500");
    EXPECT_BOXES(ui, {"disk full"});
    click("OKButton");
    EXPECT_BOXES(ui, {"Please Select Patient Name"});
    fill("1", "500", "500");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select clientID from Billing"), "PRIVATE");
}

} // namespace

} // namespace orvane
