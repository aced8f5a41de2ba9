// What is given from a prescription of injections and dressings, and how it reaches the bill.
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class Dispensing : public SoundScreenTest {
protected:
    Dispensing() : SoundScreenTest("frmDispensing") {}

    void prepare() override {
        layVisit();
        ws.run("insert into hconsulting (consultID, PNo, CDate, injprescription, treatedby) values ('001OFL0000001', "
               "'P/0001', '2026-03-14', 'ARTEMETHER (3) STAT', 'D001')");
        ws.run("update drugcategories set catremarks='DRESSING' where drgCatname='TABLETS'"); // a category of the group
        ws.run("update billingPrice set pvalue=0.2 where clientCatID='PRIVATE'");
        ws.run("update employees set designation='PHARMACIST' where empID='E001'");
        ws.run("update StockItemsRetail set UnitsInStock=0 where ItemID='ARTEMETHER INJECTION'");
    }
    void enter(const QString& drug, const QString& qty) {
        set("cboDrug", drug);
        set("txtQty", qty);
        set("txtUsage", "STAT");
    }
    void enterBoth() {
        open();
        pick("cboVehNo", billNo);
        pick("cboReason", "[E001]");
        for (const auto& [drug, qty] : {std::pair("ARTEMETHER INJECTION", "3"), {"PARACETAMOL 500MG", "10"}}) {
            enter(drug, qty);
            click("cmdAdd");
        }
        EXPECT_BOXES(ui, {"This Drug is out of Stock !!! Click Stock Entry Button to enter Stock"});
    }
    int charted() { return ws.tableCount("hInjAndDressing") + ws.tableCount("hMedChartMonitor"); }
};
ORVANE_ON_EACH_ENGINE(Dispensing);

TEST_P(Dispensing, ReachesChartAndBillOnceAndLeavesTheStock) {
    enterBoth();
    EXPECT_EQ(shown("lblBill lblNo lblClient lblAge lblPhy txtPresc lblTotal"),
              "001OFL0000001|P/0001|PRIVATE|N/A|D001|ARTEMETHER (3) STAT|3,660.00");
    ui.answer(false);
    click("OKButton");
    EXPECT_EQ(ws.tableCount("BillAccum"), 0);
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select drgName, Price, Qty, SubTotal, billType, Capitated, attendedto from BillAccum order by SNo"),
              "ARTEMETHER INJECTION|1020|3|3060|DRUG||0\nPARACETAMOL 500MG|60|10|600|0||0");
    EXPECT_EQ(rows("select drgName, drgCatName, Qty, usage from hConsultingDetails order by SNo"),
              "ARTEMETHER INJECTION|INJECTIONS|3|STAT\nPARACETAMOL 500MG|TABLETS|10|STAT");
    EXPECT_EQ(rows("select injname, injdate, injTime, numOfTimes, numtaken, dosage, clientCat from hInjAndDressing"),
              "ARTEMETHER INJECTION|2026-03-14|09:30|3|0|STAT|PRIVATE");
    EXPECT_EQ(rows("select drgName, mdate, mtime, numOfTimes, numtaken, dosage from hMedChartMonitor"),
              "ARTEMETHER INJECTION|2026-03-14|09:30|3|0|STAT");
    EXPECT_EQ(audit("Dispensing%", "Remarks"),
              "ARTEMETHER INJECTION (3), PARACETAMOL 500MG (10); by BELLO AMINA [E001]");
    EXPECT_EQ(items("cboVehNo"), QStringList());
    EXPECT_EQ(rows("select sum(UnitsInStock) from StockItemsRetail"), "1000");
    load();
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(bill(), "3660|0|0");
}

/// Somebody else was faster; or the patient lies in a ward, which keeps its own chart.
TEST_P(Dispensing, RefusesASecondTimeAndLeavesTheWardItsChart) {
    enterBoth();
    ws.run("update hconsulting set attendedto=1");
    save();
    EXPECT_BOXES(ui, {"This Prescription was dispensed or changed by another user. Please select the Patient again"});
    EXPECT_EQ(ws.tableCount("BillAccum") + ws.tableCount("hConsultingDetails") + charted(), 0);
    ws.run("update hconsulting set attendedto=0");
    ws.run("insert into hAdmission (consultID, PNo, admdate) values ('001OFL0000001', 'P/0001', '2026-03-13')");
    close();
    enterBoth();
    EXPECT_EQ(value("lblClinic"), "ADMISSION");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(ws.tableCount("BillAccum"), 2);
    EXPECT_EQ(charted(), 0);
    EXPECT_EQ(ws.tableCount("hconsulting where attendedto=1"), 1);
}

TEST_P(Dispensing, ChecksInOrder) {
    open();
    set("cboDrug", "ARTEMETHER INJECTION");
    EXPECT_BOXES(ui, {"Client Category field cannot be empty please select Patient"});
    expectChecks({{"txtUsage", "STAT", "No Drug is dispensed!!! Please select drugs and dispense", "cboDrug"}});
    expectChecks({{"cboDrug", "", "Please specify a Patient File No ", "cboVehNo"},
                  {"cboVehNo", "ADEYEMI BOLA [001OFL0000001]", "Drug category cannot be empty!!!"},
                  {"cboDrug", "PARACETAMOL 500MG", "Please specify Quantity prescribed "},
                  {"txtQty", "0", "Please specify Quantity of Drug prescribed", "txtQty"},
                  {"txtQty", "2", "Please specify usage of Drug/Service", "txtUsage"}},
                 "cmdAdd");
    ws.run("update drugs set Cost=0");
    enter("ARTEMETHER INJECTION", "1");
    ui.forgetBoxes();
    EXPECT_EQ(told("cmdAdd"), "Click the Drug Cost button and enter price from your Billing Manual \n"
                              "Cannot add this line without a price to Grid !!! ");
    ws.run("update drugs set Cost=10.5");
    for (const char* said : {"", "Duplicate Drug/Service Entry not allowed"}) {
        enter("PARACETAMOL 500MG", "2");
        EXPECT_EQ(told("cmdAdd"), said);
    }
    EXPECT_EQ(value("lblTotal"), "25.20");
    row("OrderGrid", 0);
    ui.answer(true);
    dblClick("OrderGrid");
    EXPECT_BOXES(ui, {"Item Removed"});
    EXPECT_EQ(value("lblTotal"), "0.00");
    click("cmdCost");
    EXPECT_TRUE(ws.program.loadedForm("frmDrugPrice"));
}

} // namespace
} // namespace orvane
