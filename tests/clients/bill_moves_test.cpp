// Bills that are moved before the month's run: to another month, to another payer, into capitation.
#include "books/BillSplit.h"
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class BillMoves : public SoundScreenTest {
protected:
    static constexpr const char* bill = "001OFL000777";

    BillMoves() : SoundScreenTest("frmBillSplitting") {}
    void SetUp() override {
        SoundScreenTest::SetUp();
        Connection connection = ws.billing();
        makePatient(connection);
        makeMonthBill(connection, bill, "0102", 700.5);
    }
    /// Splits the first line off and gives what is said.
    QString splitFirst() {
        ws.program.session.gConsultID = bill;
        open("frmBillSplitting");
        ws.tick("frmBillSplitting.LstDate", items("LstDate").mid(0, 1));
        pick("cboPeriod", "PRIVATE PATIENTS");
        ui.answer(true);
        const QString said = told("cmdProcess");
        close();
        return said;
    }
    QString process(const char* otherDid = nullptr) {
        click("cmdAll");
        ui.answer(true);
        if (otherDid)
            runBeforeTransaction(otherDid);
        return told("cmdProcess");
    }
    QString dates() { return rows("select consultID, BillDate from hRecords order by consultID"); }
};
ORVANE_ON_EACH_ENGINE(BillMoves);

TEST_P(BillMoves, ShiftsTickedBillsToTheFirstOfAnotherMonth) {
    Connection connection = ws.billing();
    makeMonthBill(connection, "B", "0201", 40);
    open("frmBillProcessingShift");
    EXPECT_EQ(told("cmdProcess"), "No Patient is selected");
    set("DTPicker1", "");
    EXPECT_EQ(told("cmdList"), "Specify Begin and End Dates");
    set("DTPicker1", "2026-03-01");
    click("cmdList");
    EXPECT_EQ(items("cboVehNo").size(), 4);
    pick("cboVehNo", "HARMONY MILLS");
    EXPECT_EQ(items("LstDate").join('|'), "ADEYEMI BOLA @14/03/2026 [001OFL000777]");
    pick("cboVehNo", "(ALL)");
    click("cmdAll");
    expectChecks({{nullptr, nullptr, "Specify Period to Shift by"},
                  {"cboPeriod", "soon", "Period has to be Numeric"},
                  {"cboPeriod", "9999", "There is no Batch so far from the month of the second date"}},
                 "cmdProcess");
    set("cboPeriod", "-3");
    leave("cboPeriod");
    EXPECT_EQ(value("lblDisplay"), "Processing Now December 2025");
    EXPECT_EQ(process(), "2 Patient Bills successfully Shifted to Another Month");
    EXPECT_EQ(dates(), "001OFL000777|2025-12-01\nB|2025-12-01");
    EXPECT_EQ(audit("%BOLA", "userAction").section('\n', 1),
              "UnProceessed  Bill Shift to Another Period for ADEYEMI BOLA");
    set("cboPeriod", "1");
    EXPECT_EQ(process("update Billing set isProcess=1, InvNo='X' where billNo='B'; "),
              "This Bill is already processed! to Modify, unProcess the Batch");
    ws.run("update Billing set isProcess=0, InvNo=''");
    EXPECT_EQ(process("update hRecords set consultID='C' where consultID='B'"),
              "This attendance was deleted by another user.");
    EXPECT_EQ(dates(), "001OFL000777|2025-12-01\nC|2025-12-01");
    ws.run("update hRecords set consultID='B' where consultID='C'");
}

TEST_P(BillMoves, SplitsLinesOffUpToFourBills) {
    Connection connection = ws.billing();
    makeMonthLine(connection, bill, "0102", 20.25);
    makeMonthLine(connection, bill, "0102", 30);
    ws.run("update hRecords set empID='E9', attendedtoByDoc=1");
    ws.run("update Billing set diagnosis='MALARIA', profFee=5, AmountPaid=100");
    EXPECT_EQ(splitFirst(), "1 Patient Bill Items successfully Shifted to PRIVATE PATIENTS");
    EXPECT_EQ(rows("select consultID, clientCat, coyName, BillDate, AttndStatus, empID, attendedtoByDoc, Amountbilled, "
                   "AmountBIlledInWord, AmountPaid, clientID, b.diagnosis, profFee, billingMonth from hRecords inner "
                   "join Billing b on billNo=consultID order by billNo"),
              "001OFL000777|MTHLY|0102|2026-03-14||E9|1|50.25|FIFTY NAIRA AND TWENTY FIVE KOBO ONLY|100|0102|MALARIA|5|"
              "\n001OFL000777B|PRIVATE|0001|2026-03-14|SPLIT|E9|1|700.5|SEVEN HUNDRED NAIRA AND FIFTY KOBO ONLY|0|0001|"
              "MALARIA|5|March");
    EXPECT_EQ(rows("select a.consultID, a.coyName, a.billTo, d.coyName, d.billTo, d.Charged from BillAccum a inner "
                   "join BillingDetails d on d.SNo=a.SNo and d.billNo=a.consultID where a.consultID like '%B'"),
              "001OFL000777B|0001|0001|0001|0001|700.5");
    EXPECT_EQ(account() + debt(), "-700.5|-700.5|Bill Item Shifted: PARACETAMOL 500MG-700.5");
    EXPECT_EQ(audit("Bill Item Shifted%"), "Bill Item Shifted to PRIVATE PATIENTS|PARACETAMOL 500MG");
    splitFirst();
    splitFirst();
    EXPECT_EQ(rows("select billNo, Amountbilled from Billing order by billNo"),
              "001OFL000777|0\n001OFL000777B|700.5\n001OFL000777C|20.25\n001OFL000777D|30");
    makeMonthLine(connection, bill, "0102", 1);
    EXPECT_EQ(splitFirst(), "No of Bill Split Exceeded");
}

TEST_P(BillMoves, SplitsNothingThatMayNotMove) {
    const QString changed = "A selected Item was changed or removed by another user. Please select the Bill again";
    const std::pair<const char*, QString> cases[] = {
        {"update Billing set isProcess=1", "This Bill is already processed! to Modify, unProcess the Batch"},
        {"update BillingDetails set SubTotal=1", changed},
        {"update BillingDetails set SNo=99", changed},
        {"update BillingDetails set isRct=1", "A selected Item is paid for by a receipt and stays on this Bill"},
        {"update BillingDetails set isPost=1", "A selected Item is posted to the Accounts and stays on this Bill"},
        {"update Billing set billNo='X'", "This Bill does not Exist any more"},
        {"update hRecords set consultID='X'", "No Attendance for this Bill"},
        {"insert into BillAccum (consultID) values ('001OFL000777B')",
         "This Bill cannot be Split: the Bill No of the new Bill is already in use"},
    };
    Connection connection = ws.billing();
    for (const auto& [before, said] : cases) {
        runBeforeTransaction(before);
        EXPECT_EQ(splitFirst(), said) << before;
        for (const char* undone :
             {"update BillingDetails set SNo=1, SubTotal=700.5, isRct=0, isPost=0",
              "update Billing set billNo='001OFL000777', isProcess=0", "delete from BillAccum where drgName is null",
              "update hRecords set consultID='001OFL000777'"})
            ws.run(undone);
    }
    EXPECT_EQ(rows("select billNo, Amountbilled from Billing") + dates() + account(),
              "001OFL000777|700.5001OFL000777|2026-03-14");
    ws.run("insert into BillingDetails (SNo, billNo, drgName, SubTotal) values (-5, '001OFL000777', 'A DISCOUNT', -1)");
    EXPECT_EQ(splitFirst(), "A Bill cannot be less than nothing: take the Items along that the discount is for");
    ws.run("delete from BillingDetails where SNo=-5");
    // Twelve characters are the visit; a letter behind fewer would not count, and behind more is a split bill's.
    EXPECT_EQ(nextSplitNumber(connection, "001OFL00077").refusal(), Refusal::SplitNoVisit);
    makeVisit(connection, {.consultID = "001OFL00077"});
    EXPECT_EQ(nextSplitNumber(connection, "001OFL00077").refusal(), Refusal::SplitShortNumber);
    makeVisit(connection, {.consultID = "001OFL0007777"});
    EXPECT_EQ(nextSplitNumber(connection, "001OFL0007777").refusal(), Refusal::SplitNoVisit);
}

TEST_P(BillMoves, CapitatesBillsThatAreInNoInvoicedBatch) {
    open("frmBillToCapitated");
    set("DTPicker1", "2026-03-01");
    ws.run("insert into BillsForClients (BatchNo, CoyCode, invNo) values ('2026/03', '0201', '0201/2026/03')");
    click("cmdList");
    EXPECT_EQ(ws.program.session.sBatchNo + items("cboVehNo").join('|'), "2026/03");
    ws.run("delete from BillsForClients");
    click("cmdList");
    EXPECT_EQ(told("cmdProcess"), "No Patient Bill is selected");
    pick("cboVehNo", "HARMONY MILLS");
    EXPECT_EQ(process("update Billing set isProcess=1"),
              "This Bill is already processed! to Modify, unProcess the Batch");
    ws.run("update Billing set isProcess=0");
    EXPECT_EQ(process("update BillingDetails set isRct=1"),
              "A selected Bill is paid for by a receipt or posted to the Accounts and stays as it is");
    ws.run("update BillingDetails set isRct=0");
    EXPECT_EQ(process(), "1 Patient Bills successfully Capitated");
    EXPECT_EQ(rows("select Amountbilled, AmountBIlledInWord from Billing") + lines(), "0|XXX");
    EXPECT_EQ(rows("select Capitated, isBilled, attendedto from BillAccum"), "YES|1|1");
    EXPECT_EQ(rows("select billNo, BillItem, drgName, OldQty, newQty, OldPrice, newPrice, Remarks, PNo, AdjustBy from "
                   "BillingDetailsAdjust"),
              "001OFL000777|PARACETAMOL 500MG|PARACETAMOL 500MG|1|1|700.5|700.5|BILL Capitated|P/0001|amina.b");
    EXPECT_EQ(audit("Capitated%"), "Capitated  Bill Item for ADEYEMI BOLA|Bill Item Capitated: PARACETAMOL 500MG; "
                                   "Item Capitated: Qty:1 Amount: 700.50");
    EXPECT_EQ(items("LstDate").join('|'), "");
}

TEST_P(BillMoves, BringsBillDatesBackToTheAttendance) {
    Connection connection = ws.billing();
    makeMonthBill(connection, "B", "0201", 40);
    makeMonthBill(connection, "C", "0201", 40);
    ws.run("update hRecords set BillDate='2026-04-01' where consultID<>'C'");
    ws.run("update hRecords set BillDate='2025-03-01' where consultID='C'");
    ws.run("update Billing set isProcess=1, InvNo='0201/2026/04' where billNo='B'");
    ws.run("insert into BillsForClients (BatchNo, CoyCode, invNo) values ('2026/04', '0201', '0201/2026/04')");
    open("frmVerifyBillsInSummary");
    set("DTPicker1", "");
    EXPECT_EQ(told("OKButton"), "Please specify Attendance Date Range");
    set("DTPicker1", "2026-03-01");
    click("cmdList");
    EXPECT_EQ(ws.value("frmVerifyBillsInSummary.Label1"), "2 records found");
    EXPECT_EQ(told("OKButton"), "Records successfully Updated");
    EXPECT_EQ(dates(), "001OFL000777|2026-03-14\nB|2026-04-01\nC|2025-03-01");
    ws.run("delete from BillsForClients");
    ws.run("update Billing set isProcess=0, InvNo=''");
}

} // namespace
} // namespace orvane
