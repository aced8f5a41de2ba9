#include "support/ScreenTest.h"

namespace orvane {
namespace {

const char* const invoices = "select invNo, AmountInvoiced, Amountbilled, AmountBIlledInWord, BillMonth, isOLD from "
                             "BillsForClients order by SNO";
const char* const debts = "select billNo, Amount, invNo, Remarks from hDebtors order by SNo";
const char* const bills = "select billNo, Amountbilled, isProcess, InvNo from Billing order by billNo";

class MonthRun : public SoundScreenTest {
protected:
    MonthRun() : SoundScreenTest("frmBillProcessing") {}
    void SetUp() override {
        SoundScreenTest::SetUp();
        Connection connection = ws.billing();
        makePatient(connection);
    }
    void layBills(std::initializer_list<std::tuple<const char*, const char*, double>> laid) {
        Connection connection = ws.billing();
        for (const auto& [bill, client, amount] : laid)
            makeMonthBill(connection, bill, client, amount);
    }
    QString process() {
        open("frmBillProcessing");
        click("cmdGet");
        click("cmdAll");
        ui.answer(true);
        const QString said = told("cmdProcess");
        close();
        return said;
    }
    QString reverse(const QString& client, const QStringList& batches = {"2026/03"}) {
        open("frmBillReverseProcessing");
        set("cboYear", "2026");
        pick("cboCust", client);
        ws.tick("frmBillReverseProcessing.LstDate", batches);
        ui.answer(true);
        const QString said = told("cmdProcess");
        close();
        return said;
    }
    QString debtOf(const QString& client) {
        return ws.scalar("select Debt from hRetainership where retainCode='" + client + "'");
    }
};
ORVANE_ON_EACH_ENGINE(MonthRun);

TEST_P(MonthRun, TurnsTheBillsOfEachTickedClientIntoOneInvoice) {
    layBills({{"A", "0102", 1500.25}, {"B", "0102", 0.1}, {"C", "0201", 40}, {"D", "0001", 70}, {"E", "0102", 9}});
    ws.run("delete from BillingDetails where billNo='E'");
    ws.run("update Billing set Amountbilled=1 where billNo='A'");
    ws.run("insert into BillsForClients (BatchNo, CoyCode, invNo) values ('2026/02', '0102', '0102/2026/02')");
    EXPECT_EQ(process(), "2 Comapny Bills successfully Processed");
    EXPECT_EQ(rows(bills), "A|1500.25|1|0102/2026/03\nB|0.1|1|0102/2026/03\nC|40|1|0201/2026/03\nD|70|0|\nE|9|0|");
    EXPECT_EQ(rows(invoices), "0102/2026/02|||||1\n"
                              "0102/2026/03|1500.35|1500.35|ONE THOUSAND, FIVE HUNDRED NAIRA AND THIRTY FIVE KOBO "
                              "ONLY|March|0\n"
                              "0201/2026/03|40|40|FOURTY NAIRA|March|0");
    EXPECT_EQ(rows(debts), "0102|1500.35|0102/2026/03|DEBT\n0201|40|0201/2026/03|DEBT");
    EXPECT_EQ(debtOf("0102"), "1500.35");
}

/// The words of a later run's invoice lag behind its figures.
TEST_P(MonthRun, AddsALaterRunAndIsTakenBackWhole) {
    layBills({{"A", "0102", 100}});
    process();
    layBills({{"B", "0102", 50.5}});
    process();
    EXPECT_EQ(rows(invoices), "0102/2026/03|150.5|150.5|ONE HUNDRED NAIRA|March|0");
    EXPECT_EQ(rows(debts), "0102|100|0102/2026/03|DEBT\n0102|50.5|0102/2026/03|DEBT");
    EXPECT_EQ(debtOf("0102"), "150.5");

    EXPECT_EQ(reverse("HARMONY MILLS"), "1 Comapny Bills successfully Reversed");
    EXPECT_EQ(rows(bills), "A|100|0|0\nB|50.5|0|0");
    EXPECT_EQ(rows(invoices) + rows(debts) + debtOf("0102"), "0");
    EXPECT_EQ(process(), "1 Comapny Bills successfully Processed");
    EXPECT_EQ(debtOf("0102"), "150.5");
}

TEST_P(MonthRun, RefusesInOrder) {
    open();
    EXPECT_EQ(told("cmdProcess"), "No Company is selected");
    EXPECT_EQ(told("cmdAll"), "No Item to select");
    set("cboMonth", "");
    EXPECT_EQ(told("cmdGet"), "Select Processing Period");
    layBills({{"A", "0102", 100}});
    set("cboMonth", "March");
    ws.run("insert into BillsForClients (BatchNo, CoyCode, invNo) values ('2026/04', '0201', '0201/2026/04')");
    EXPECT_EQ(told("cmdGet"), "Invalid Batch No! Please Select a higher Transaction Period");
    EXPECT_EQ(items("LstDate"), QStringList());
    ws.run("delete from BillsForClients");
    click("cmdGet");
    click("cmdAll");
    // What is run is the batch that is listed, whatever is picked afterwards, here or on another screen.
    set("cboMonth", "January");
    ws.program.session.sBatchNo = "2026/01";
    ui.answer(true);
    EXPECT_EQ(told("cmdProcess"), "1 Comapny Bills successfully Processed\n"
                                  "Invalid Batch No! Please Select a higher Transaction Period");
    EXPECT_EQ(rows("select BatchNo, BillMonth from BillsForClients"), "2026/03|March");

    open("frmBillReverseProcessing");
    EXPECT_EQ(told("cmdProcess"), "No Batch is selected For Bill Reversal");
    EXPECT_EQ(told("cmdDeSelect"), "No Item to Deselect");
    close();
    ws.run(
        "insert into BillsForClients (BatchNo, CoyCode, invNo, isOLD) values ('2026/01', '0102', '0102/2026/01', 1)");
    open("frmBillReverseProcessing");
    set("cboYear", "2026");
    pick("cboCust", "HARMONY MILLS");
    click("cmdAll");
    EXPECT_EQ(told("cmdProcess"), "Only one  Batch can be selected For Bill Reversal");
    ws.tick("frmBillReverseProcessing.LstDate", {"2026/01"}, false);
    ws.run("update BillsForClients set isPost=1");
    ui.answer(true);
    EXPECT_EQ(told("cmdProcess"), "This Batch is posted to the Accounts and cannot be reversed");
    ws.run("update BillsForClients set isPost=0"); // the ledger has nothing of them
}

} // namespace
} // namespace orvane
