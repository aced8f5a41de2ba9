// Goods that come into the retail store.
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class StockEntryScreen : public SoundScreenTest {
protected:
    StockEntryScreen() : SoundScreenTest("frmStockEntry") {}

    void prepare() override {
        ws.run("update employees set deptID='PHARM' where empID='E001'");
        ws.run("insert into PurchaseOrder (POID) values ('PO/1')");
        ws.run("insert into StockItems (ItemID, ItemName, UnitPrice) values ('PARACETAMOL 500MG', 'X', 5600), "
               "('AMOXICILLIN 500MG', 'Y', 1000)");
        ws.run("update StockItemsRetail set QuantityPerUnit='100', UnitsInStock=2");
    }
    void enter(const QString& item, const QString& qty) {
        pick("cboVehNo", item);
        set("txtFields(0)", qty);
        pick("cboDriver", "[E001]");
    }
    /// The item's stock, reorder level and cost.
    QString figures(const QString& item) {
        return rows("select s.UnitsInStock, s.Reorderlevel, d.Cost from StockItemsRetail s inner join drugs d on "
                    "d.drgName=s.ItemID where s.ItemID='" +
                    item + "'");
    }
};
ORVANE_ON_EACH_ENGINE(StockEntryScreen);

TEST_P(StockEntryScreen, RaisesStockAndCostAndAnEditGivesBack) {
    open();
    enter("PARACETAMOL 500MG", "3");
    EXPECT_EQ(shown("lblName lblStock lblUnit lblCost lblREtail lblWord"),
              "PARACETAMOL 500MG|2|100|5,600.00|56.00|FIFTY SIX NAIRA");
    set("txtFields(1)", "DRY");
    set("txtFields(2)", "B7");
    set("dtInvDate", "2026-03-10");
    EXPECT_EQ(told("OKButton"), "Record Succesfully saved");
    EXPECT_EQ(figures("PARACETAMOL 500MG"), "5|2.5|56");
    EXPECT_EQ(rows("select entryDate, ItemID, Qty, ReceivedBy, Comments from StockEntryRetail"),
              "2026-03-10|PARACETAMOL 500MG|3|E001|DRY BATCH: B7");
    enter("AMOXICILLIN 500MG", "4");
    click("OKButton");
    EXPECT_EQ(figures("AMOXICILLIN 500MG"), "6|3|120") << "a lower cost is left";
    pick("cboVehNo", "PARACETAMOL 500MG");
    row("grdData", 0);
    click("cmdEdit");
    // Meanwhile more has come in, and its price was raised.
    ws.run("update StockItemsRetail set UnitsInStock=15 where ItemID='PARACETAMOL 500MG'");
    ws.run("update StockItems set UnitPrice=9000");
    set("txtFields(0)", "0");
    set("txtFields(1)", "Cancelled");
    ui.forgetBoxes();
    EXPECT_EQ(told("OKButton"), "Record Succesfully updated");
    EXPECT_EQ(figures("PARACETAMOL 500MG"), "12|6|56");
    EXPECT_EQ(rows("select Qty, Comments from StockEntryRetail where EntryID=1"), "0|Cancelled");
}

TEST_P(StockEntryScreen, RefusesWhatIsNotAsItWasRead) {
    open();
    enter("PARACETAMOL 500MG", "3");
    click("OKButton");
    row("grdData", 0);
    click("cmdEdit");
    ws.run("update StockEntryRetail set Qty=2");
    set("txtFields(0)", "7");
    ui.forgetBoxes();
    EXPECT_EQ(told("OKButton"), "This Stock Entry was changed by another user. Please select it again");
    EXPECT_EQ(figures("PARACETAMOL 500MG"), "5|2.5|56");
    enter("AMOXICILLIN 500MG", "4");
    ws.run("delete from StockItemsRetail where ItemID='AMOXICILLIN 500MG'");
    EXPECT_EQ(told("OKButton"), "There is no Product of this Item Code in the Store");
    EXPECT_EQ(ws.tableCount("StockEntryRetail"), 1);
}

TEST_P(StockEntryScreen, ChecksInOrder) {
    open();
    EXPECT_EQ(told("cmdDel"), "Sorry Records in Stock Entry file cannot be deleted, use edit button to make its QTY "
                              "value zero and Comment it as Cancelled");
    for (const char* qty : {"-1", "1.5", "x"}) {
        set("txtFields(0)", qty);
        leave("txtFields(0)");
        EXPECT_BOXES(ui, {"Qty field cannot be negative or a Character"});
    }
    set("txtFields(0)", "");
    expectChecks({{"cboCust", "PO/1", "Drug Item field cannot be empty", "cboVehNo"},
                  {"cboVehNo", "PARACETAMOL 500MG", "Qty field cannot be empty", "txtFields(0)"},
                  {"txtFields(0)", "-3", "Stock Officer Name cannot be empty", "cboDriver"},
                  {"cboDriver", "BELLO AMINA [E001]", "Qty field cannot be negative or a Character", "txtFields(0)"}});
    EXPECT_EQ(ws.tableCount("StockEntryRetail"), 0);
}

} // namespace
} // namespace orvane
