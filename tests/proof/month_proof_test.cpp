#include "Worker.h"

#include "support/Check.h"
#include "support/Rows.h"
#include "support/Workstation.h"

#include <gtest/gtest.h>

namespace orvane {

namespace {

/// Officers who run the same batch at once, and cashiers who add to its bills meanwhile, each a process of its own.
class MonthProof : public WorkstationTest {
protected:
    void prepare() override {
        Connection connection = ws.billing();
        makePatient(connection);
        for (int i = 0; i < billsOfBatch; ++i)
            makeMonthBill(connection, visitOfWorkers(i), i % 5 == 0 ? "0102" : "0201", 1000.25 + i);
        before = rows("select sum(SubTotal) as Total from BillingDetails").toDouble();
    }

    void work(const QList<QStringList>& workers) { told = workAtOnce(home, workers, 2); }

    QString rows(const QString& tsql) {
        Connection connection = ws.billing();
        return rowsOf(connection, tsql);
    }
    QStringList faults() {
        const CheckReport report = checkDatabases(ws.program);
        return report.findings + report.notices.filter("invoice");
    }

    double before = 0; ///< naira, what the lines of the batch come to
    QStringList told;
};

ORVANE_ON_EACH_ENGINE(MonthProof);

TEST_P(MonthProof, TwoOfficersOfOneBatchInvoiceEachBillOnce) {
    work({{"officer"}, {"officer"}});
    EXPECT_EQ(told, QStringList(2, "run\t2 Comapny Bills successfully Processed"));
    EXPECT_EQ(faults(), QStringList());
    EXPECT_EQ(ws.tableCount("Billing where isProcess=1"), billsOfBatch);
    EXPECT_DOUBLE_EQ(rows("select sum(AmountInvoiced) as Total from BillsForClients").toDouble(), before);
}

TEST_P(MonthProof, CashiersWaitForTheRunAndLoseNothing) {
    work({{"officer"},
          {"cashier"},
          {"cashier"},
          {"cashier"},
          {"cashier"},
          {"cashier"},
          {"cashier"},
          {"cashier"},
          {"cashier"}});
    EXPECT_EQ(told.filter("trouble"), QStringList());
    EXPECT_EQ(told.filter("Comapny").size(), 1);
    EXPECT_EQ(faults(), QStringList());
    // Each item is on its bill once, or waits because the run has come first.
    EXPECT_EQ(rows("select SNo from BillAccum where isBilled=1 order by SNo"),
              rows("select SNo from BillingDetails order by SNo"));
    EXPECT_EQ(ws.tableCount("BillAccum"), billsOfBatch + int(told.filter("item\t").size()));
}

TEST_P(MonthProof, WithoutTheGateItFails) {
    work({{"officer", "no-gate"}, {"officer", "no-gate"}});
    EXPECT_NE(faults(), QStringList());
}

} // namespace

} // namespace orvane
