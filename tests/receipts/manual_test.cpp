#include "support/ScreenTest.h"

namespace orvane {
namespace {

class Manual : public ScreenTest {
protected:
    Manual() : ScreenTest("frmReceiptManual") {}
    void fill(const QString& number, const QString& billed, const QString& paid) {
        begin();
        pick("cboReceived", "BELLO");
        set("txtRct", number);
        set("txtBill", billed);
        set("txtHt", paid);
    }
};
ORVANE_ON_EACH_ENGINE(Manual);

TEST_P(Manual, SavesWhatIsShownAndPrintsThePickedReceipt) {
    layVisit({.debt = -200});
    fill(" 0047 ", "1,500.504", "1000");
    EXPECT_EQ(shown("cboVehNo lblBill lblCoy lblDate txtDebt txtEmp txtDuty"),
              "ADEYEMI BOLA @ 14/03/2026 [P/0001]#001OFL0000001|001OFL0000001|PRIVATE|14/03/2026|-200.00|1,300.50|ONE "
              "THOUSAND NAIRA");
    set("cboPay", "CHEQUE");
    set("cboClinic", "OPD");
    set("dtDate", "2026-03-10");
    ui.answer(true);
    click("OKButton");
    EXPECT_QUESTIONS(ui, {"Are you sure to save? Please Confirm Receipt Date before Saving"});
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select bdate, billNo, PNo, clientID from Billing"), "2026-03-10|001OFL0000001|P/0001|PRIVATE");
    EXPECT_TRUE(ws.rows("frmReceiptManual.grdData")
                    .value(1)
                    .startsWith("10/03/2026\t09:30\tSN0047\tADEYEMI BOLA\t1,500.50\t1,000.00\t500.50\tCONSULTING AND "
                                "DRUGS\tONE THOUSAND NAIRA\tCHEQUE\tOPD\tE001\t001OFL0000001\tPRIVATE PATIENTS"));
    fill("0047", "99.5", "600");
    save();
    ui.forgetBoxes();
    EXPECT_EQ(bill(), "1600|1600|1");
    EXPECT_EQ(value("lblTotal"), "1,600.00");
    click("cmdPrint");
    EXPECT_EQ(ws.value("frmCashReceipt.txtAmount"), "600.00") << "the one just saved";
    // Two paper receipts of one number: each prints as itself.
    for (const char* paid : {"600.00", "1,000.00"}) {
        ws.row("frmReceiptManual.grdData", paid);
        click("cmdPrint");
        EXPECT_EQ(ws.value("frmCashReceipt.txtReceiptNo") + ' ' + ws.value("frmCashReceipt.txtAmount"),
                  QString("SN0047 ") + paid);
    }
}

TEST_P(Manual, ChecksInOrder) {
    layVisit({.category = "MTHLY", .client = "0102"});
    open();
    EXPECT_EQ(told("cmdPrint"), "Save Receipt Information before printing");
    click("cmdAdd");
    expectChecks({{"dtDate", "", "Please enter Receipt Date", "dtDate"}});
    set("dtDate", "2026-03-14");
    expectChecks({{"txtRct", "  ", "Please enter Receipt No", "txtRct"},
                  {"txtRct", "1", "Please Select Patient Name", "cboVehNo"}});
    pick("cboVehNo", billNo);
    EXPECT_EQ(value("lblCoy"), "0102");
    expectChecks({{nullptr, nullptr, "Please enter Amount Paid", "txtHt"}});
    set("cboCat", "");
    set("cboPay", "");
    set("cboClinic", "");
    expectChecks({{"txtHt", "10", "Please enter Payment Purpose", "cboCat"},
                  {"cboCat", "CARD", "Please enter Name of Receiver", "cboReceived"},
                  {"cboReceived", "BELLO AMINA", "Please enter Payment type", "cboPay"},
                  {"cboPay", "CASH", "Please enter Clinic type", "cboClinic"},
                  // Typed and not picked, it stands for nobody.
                  {"cboClinic", "OPD", "Please enter Name of Receiver", "cboReceived"},
                  {"txtHt", "ten", "Please enter Amount Paid", "txtHt"}});
    set("txtHt", "10");
    expectChecks({{"txtBill", "-10", "Please enter Amount Billed", "txtBill"}});
    set("txtBill", "");
    expectChecks({{"cboVehNo", "SOMEBODY", "Please Select Patient Name", "cboVehNo"}});

    // A bill on an invoice is frozen: said before anything is asked, and once.
    layBill(1000);
    ws.run("update Billing set isProcess=1");
    fill("1", "500", "500");
    expectChecks({{nullptr, nullptr, "This Bill is already processed! to Modify, unProcess the Batch"}});
    EXPECT_EQ(bill() + '/' + value("txtHt"), "1000|0|0/500");
}

TEST_P(Manual, APatientWhoWasReadInPartGetsNoBill) {
    layVisit();
    breakAt("qryhfullname", true);
    fill("1", "500", "500");
    EXPECT_BOXES(ui, {"disk full"});
    expectChecks({{nullptr, nullptr, "Please Select Patient Name"}});
    fill("1", "500", "500");
    save();
    ui.forgetBoxes();
    EXPECT_EQ(rows("select clientID from Billing"), "PRIVATE");
}

} // namespace
} // namespace orvane
