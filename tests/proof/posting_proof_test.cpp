#include "Worker.h"

#include "support/Check.h"
#include "support/PostingActions.h"
#include "support/Rows.h"

#include <gtest/gtest.h>

namespace orvane {

namespace {

/// Accountants who post the same at once, each a process of its own, and cashiers who go on meanwhile.
class PostingProof : public WorkstationTest {
protected:
    void prepare() override {
        Connection connection = ws.billing();
        for (int i = 0; i < sharedPatients; ++i)
            makePatient(connection, {.pno = patientOfWorkers(i), .surname = "PROOF"});
        for (int i = 0; i < sharedVisits; ++i) {
            makeVisit(connection, {.consultID = visitOfWorkers(i), .pno = patientOfWorkers(i)});
            makeItem(connection, {.consultID = visitOfWorkers(i), .pno = patientOfWorkers(i), .price = 1000000});
        }
        for (const char* client : {"0102", "0201", "0301"})
            makeMonthBill(connection, QString("001OFL00000%1").arg(client), client, 1000.25);
        layLedger(ws);
    }
    /// One round of each.
    QStringList post(const QStringList& options) {
        QStringList told;
        workTogether(home, QList<QStringList>(8, QStringList{"1"} + options), told);
        told.sort();
        return told;
    }
    /// Receipts of the day, and invoices of the month.
    void layWork() {
        QStringList told;
        workTogether(home, {{"2"}, {"2"}, {"0", "officer"}}, told);
        ASSERT_EQ(told.filter("run").value(0), "run\t3 Comapny Bills successfully Processed");
    }
    QStringList faults() {
        const CheckReport report = checkDatabases(ws.program);
        return report.findings + report.notices.filter("posting left over") + report.notices.filter("posted invoice");
    }
    void expectCashPostedOnce() {
        EXPECT_EQ(faults(), QStringList());
        for (const char* table : {"Payments", "PaymentTypes", "PaymentDetails"})
            EXPECT_EQ(ws.tableCount(table + QString(" where isPost=0")), 0) << table;
        EXPECT_EQ(ws.accountingScalar("select sum(Amount) as n from Tranxaction where Description like 'Payment%'"),
                  ws.scalar("select round(sum(AmountPaid), 2) as n from Payments"));
    }
};

ORVANE_ON_EACH_ENGINE(PostingProof);

TEST_P(PostingProof, EightWorkstationsPostTheSameDayOnce) {
    ASSERT_NO_FATAL_FAILURE(layWork());
    const QStringList told = post({"cash"});
    EXPECT_EQ(told.filter("Records Successfully Posted").size(), 1);
    EXPECT_EQ(told.filter(QRegularExpression("No Records to Post$")).size(), 7) << told.join('\n').toStdString();
    expectCashPostedOnce();
}

TEST_P(PostingProof, EightWorkstationsPostTheSameInvoicesOnce) {
    ASSERT_NO_FATAL_FAILURE(layWork());
    EXPECT_EQ(post({"invoices"}), QStringList{"posted\t3 Company Records Successfully Posted"} +
                                      QStringList(7, "posted\tNo Company Records to Post for the Selected Period"));
    EXPECT_EQ(faults(), QStringList());
    EXPECT_EQ(ws.accountingScalar("select count(*) as n from Tranxaction"), "6");
}

TEST_P(PostingProof, CashiersGoOnWhileTheirDayIsPosted) {
    QStringList told;
    ASSERT_NO_FATAL_FAILURE(
        workTogether(home, QList<QStringList>(4, {"3"}) + QList<QStringList>(4, {"6", "cash"}), told));
    EXPECT_EQ(told.filter("trouble"), QStringList());
    EXPECT_EQ(told.filter("posted\t").filter(QRegularExpression("Posted$|No Records to Post$")).size(), 24);
    post({"cash"}); // what came in behind the last one
    expectCashPostedOnce();
}

TEST_P(PostingProof, WithoutTheGateItFails) {
    ASSERT_NO_FATAL_FAILURE(layWork());
    const QStringList told = post({"cash", "no-gate"}) + post({"invoices", "no-gate"});
    EXPECT_NE(faults(), QStringList());
    RecordProperty("told", (told + faults()).join('\n').toStdString());
}

} // namespace

} // namespace orvane
