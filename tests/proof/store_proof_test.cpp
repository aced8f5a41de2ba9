#include "Worker.h"

#include "support/Check.h"
#include "support/Workstation.h"

namespace orvane {

namespace {

/// Eight pharmacists, each a process of its own: one prescription, and goods of one item.
class StoreProof : public WorkstationTest {
protected:
    void prepare() override {
        Connection connection = ws.billing();
        makePatient(connection);
        makeVisit(connection, {.consultID = visitOfWorkers(0)});
        ws.run("insert into hconsulting (consultID, PNo, injprescription) values ('001OFL0000001', 'P/0001', 'STAT')");
        ws.run("update employees set deptID='PHARM' where empID='E001'");
    }
    /// 500 were there before the first entry.
    bool isStockOfItsEntries() {
        return ws.scalar("select UnitsInStock from StockItemsRetail where ItemID='PARACETAMOL 500MG'").toInt() ==
               500 + ws.scalar("select sum(Qty) as n from StockEntryRetail").toInt();
    }
};

ORVANE_ON_EACH_ENGINE(StoreProof);

TEST_P(StoreProof, TheStockIsNeverOffByOneAndAPrescriptionIsGivenOnce) {
    QStringList told;
    ASSERT_NO_FATAL_FAILURE(workTogether(home, QList<QStringList>(8, {"5", "storekeeper"}), told));
    EXPECT_EQ(told.filter("trouble"), QStringList());
    EXPECT_EQ(told.filter("dispensed\tRecord Succesfully saved").size(), 1);
    EXPECT_EQ(told.filter("dispensed\tThis Prescription was dispensed").size(), 7);
    EXPECT_EQ(ws.tableCount("BillAccum"), 1);
    EXPECT_EQ(ws.tableCount("StockEntryRetail"), told.filter("goods").size());
    EXPECT_EQ(told.filter("goods").size(), 40);
    EXPECT_GT(told.filter("changed\tRecord Succesfully updated").size(), 0);
    EXPECT_TRUE(isStockOfItsEntries());
    EXPECT_EQ(checkDatabases(ws.program).findings, QStringList());
}

TEST_P(StoreProof, WithoutTheGateItFails) {
    QStringList told;
    ASSERT_NO_FATAL_FAILURE(workTogether(home, QList<QStringList>(8, {"5", "storekeeper", "no-gate"}), told));
    EXPECT_FALSE(isStockOfItsEntries());
}

} // namespace

} // namespace orvane
