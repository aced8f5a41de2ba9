#include "VerifyTest.h"

#include "billing/BillDate.h"
#include "billing/Collate.h"
#include "receipts/PatientAccount.h"

namespace orvane {

namespace {

class Collation : public VerifyTest {
protected:
    BillInHand bill(const QString& category = "PRIVATE", const QString& client = "0001") {
        BillInHand inHand;
        inHand.consultID = billNo;
        inHand.pno = "P/0001";
        inHand.patient = "ADEYEMI BOLA";
        inHand.retainID = inHand.retainCode = client;
        inHand.category = category;
        return inHand;
    }
    void collate() { collateBillItems(ws.program, bill()); }
};

ORVANE_ON_EACH_ENGINE(Collation);

/// What becomes of one item of 500 naira: its line, its charge, its flags after the collation.
TEST_P(Collation, ItemByClientAndState) {
    struct Case {
        const char* name;
        const char *category, *client, *referal;
        const char* item;
        double price;
        const char* capitated;
        int attended;
        const char *line, *charge, *flags; ///< flags: attendedto, isBilled, Capitated
    };
    const Case cases[] = {
        {"private", "PRIVATE", "0001", "NO", "DRESSING", 500, "YES", 0, "DRESSING|500", "-500", "1|1|NO"},
        {"company", "MTHLY", "0102", "NO", "DRESSING", 500, "", 0, "DRESSING|500", "", "1|1|NO"},
        {"capitated item", "HMO", "0201", "NO", "DRESSING", 500, "YES", 0, "", "", "0|0|YES"},
        {"charged item waits for the save", "NHIS", "0301", "NO", "DRESSING", 500, "NO", 0, "", "", "0|0|NO"},
        {"charged item taken in before", "PHIS", "0301", "NO", "DRESSING", 500, "NO", 1, "DRESSING|500", "", "1|1|NO"},
        {"fee for service", "HMO", "0201", "YES", "DRESSING", 500, "YES", 0, "DRESSING|500", "", "1|1|NO"},
        {"carried debt", "PRIVATE", "0001", "NO", "PREVIOUS DEBT", 500, "NO", 0, "PREVIOUS DEBT|500", "", "1|1|NO"},
        {"carried credit", "PRIVATE", "0001", "NO", "PREVIOUS CREDIT", -500, "NO", 0, "", "", "0|0|NO"},
        {"no price", "PRIVATE", "0001", "NO", "DRESSING", 0, "NO", 0, "", "", "0|0|NO"},
    };
    layVisit();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        for (const char* table : {"BillAccum", "BillingDetails", "Tranxaction"})
            ws.run(QStringLiteral("delete from %1").arg(table));
        ws.run(QStringLiteral("update hRecords set clientCat='%1', coyName='%2', referal='%3'")
                   .arg(c.category, c.client, c.referal));
        item({.name = c.item, .client = c.client, .price = c.price, .capitated = c.capitated});
        ws.run(QStringLiteral("update BillAccum set attendedto=%1").arg(c.attended));

        collateBillItems(ws.program, bill(c.category, c.client));
        EXPECT_EQ(lines(), c.line);
        EXPECT_EQ(ws.scalar("select Amount from Tranxaction"), c.charge);
        EXPECT_EQ(rows("select attendedto, isBilled, Capitated from BillAccum"), c.flags);
    }
}

TEST_P(Collation, LineBearsTheItemAndTheAccountRuns) {
    layVisit({.debt = -200});
    ws.run(
        "insert into Tranxaction (PNo, billNo, Amount, RunningTotal, Remarks) values ('P/0001','OLD',-200,-200,'X')");
    item({.name = "MALARIA PARASITE", .billType = "LAB", .revType = "LABORATORY", .price = 1500.5});
    const qlonglong second = item({.name = "PARACETAMOL 500MG", .price = 50, .qty = 6});
    ws.run("update BillAccum set usage='2 TDS', conID=7 where SNo=" + QString::number(second));

    collate();
    EXPECT_EQ(account(), "-200|-200|X\n-1500.5|-1700.5|MALARIA PARASITE\n-300|-2000.5|PARACETAMOL 500MG");
    EXPECT_EQ(debt(), "-2000.5");
    EXPECT_EQ(rows("select dtDate, billNo, drgName, Price, Qty, SubTotal, BillType, conID, dosage, coyName, billTo, "
                   "revType, BillBy from BillingDetails where SNo=" +
                   QString::number(second)),
              "2026-03-14|001OFL0000001|PARACETAMOL 500MG|50|6|300|DRUG|7|2 TDS|0001|0001|DRUGS|amina.b");
    collate();
    EXPECT_EQ(ws.tableCount("Tranxaction"), 3) << "a second collation charged again";
}

TEST_P(Collation, RepairsRowsAndDropsEmptyLines) {
    layVisit();
    item();
    ws.run("update BillAccum set coyName=null, billTo=null");
    ws.run("update hRecords set coyName=null");
    ws.run("insert into BillingDetails (SNo, billNo, drgName, SubTotal, BillType) values (900,'001OFL0000001','GIVEN "
           "AWAY',0,'')");
    ws.run("insert into BillingDetails (SNo, billNo, drgName, SubTotal, BillType) values (901,'001OFL0000001','OLD "
           "LINE',5,'')");

    collate();
    EXPECT_EQ(rows("select drgName, BillType, coyName, billTo from BillingDetails order by drgName"),
              "OLD LINE|SERVICE||\nPARACETAMOL 500MG|DRUG|0001|0001");
    EXPECT_EQ(ws.scalar("select coyName from hRecords"), "0001");
    EXPECT_EQ(account(), "-50|-50|PARACETAMOL 500MG") << "the repaired code decides whose account is charged";
}

TEST_P(Collation, RefusesWithoutPatientAndOnAProcessedBill) {
    layVisit();
    item();
    collateBillItems(ws.program, {});
    EXPECT_BOXES(ui, {"No Patient is selected"});
    ws.run("insert into Billing (billNo, PNo, isProcess) values ('001OFL0000001','P/0001',1)");
    collate();
    EXPECT_BOXES(ui, {"This Bill is already processed! to Modify, unProcess the Batch"});
    EXPECT_EQ(lines(), "");
}

/// A fault in the middle of one item leaves the items before it whole, that one untouched, and the rest waiting.
TEST_P(Collation, FaultBillsAnItemWholeOrNotAtAll) {
    layVisit();
    item({.name = "FIRST"});
    const qlonglong second = item({.name = "SECOND"});
    item({.name = "THIRD"});
    breakAt(ws.program, QStringLiteral("' and SNo='%1'").arg(second));
    EXPECT_THROW(collate(), DataError);
    ws.program.data().setStatementHook({});
    EXPECT_EQ(lines(), "FIRST|50");
    EXPECT_EQ(account(), "-50|-50|FIRST");
    EXPECT_EQ(debt(), "-50");

    collate();
    EXPECT_EQ(lines(), "FIRST|50\nSECOND|50\nTHIRD|50");
    EXPECT_EQ(debt(), "-150");
}

/// Another officer acts between the list and the gate.
TEST_P(Collation, ReadsTheItemAgainBehindTheGate) {
    SecondHome otherHome(home);
    Workstation other(otherHome.folder());
    ASSERT_TRUE(other.start());
    const auto atFirstGate = [&](const std::function<void()>& act) {
        ws.program.data().setStatementHook([this, act](const QString& tsql) {
            if (tsql == "begin transaction") {
                ws.program.data().setStatementHook({});
                act();
            }
        });
    };
    layVisit();
    item({.name = "FIRST"});
    item({.name = "SECOND"});
    atFirstGate([&] { collateBillItems(other.program, bill()); });
    collate();
    EXPECT_EQ(lines(), "FIRST|50\nSECOND|50") << "an item was billed twice";
    EXPECT_EQ(debt(), "-100");

    item({.name = "THIRD"});
    atFirstGate([&] { other.run("update BillAccum set Price=80, SubTotal=80 where drgName='THIRD'"); });
    collate();
    EXPECT_EQ(lines(), "FIRST|50\nSECOND|50\nTHIRD|80");
    EXPECT_EQ(debt(), "-180");

    item({.name = "FOURTH"});
    atFirstGate([&] { other.run("insert into Billing (billNo, PNo, isProcess) values ('001OFL0000001','P/0001',1)"); });
    collate();
    EXPECT_EQ(ws.tableCount("BillingDetails"), 3) << "a batch had taken the bill";
}

TEST_P(Collation, AccountIsForThePrivateClientOnly) {
    layVisit();
    Connection connection = ws.billing();
    postPatientTran(ws.program, connection, {}, "P/0001", billNo, 1000.25, "0001", "Payment");
    postPatientTran(ws.program, connection, {}, "P/0001", billNo, -400, "0201", "HMO ITEM");
    postPatientTran(ws.program, connection, {}, "P/0001", billNo, -1000.25, "0001", "Payment");
    EXPECT_EQ(account(), "1000.25|1000.25|Payment\n-1000.25|0|Payment");
    EXPECT_EQ(debt(), "0");
}

TEST_P(Collation, AmountPaidHealsItself) {
    ws.run("insert into Billing (billNo, PNo, AmountPaid) values ('001OFL0000001','P/0001',70)");
    EXPECT_EQ(refreshBillAmountPaid(ws.program, billNo), 0);
    EXPECT_EQ(ws.scalar("select AmountPaid from Billing"), "70") << "without a payment the figure stays";
    ws.run("insert into Payments (ReceiptNo, billNo, AmountPaid) values ('1','001OFL0000001',500.5)");
    ws.run("insert into Payments (ReceiptNo, billNo, AmountPaid) values ('2','001OFL0000001',-100)");
    EXPECT_EQ(refreshBillAmountPaid(ws.program, billNo), 400.5);
    EXPECT_EQ(ws.scalar("select AmountPaid from Billing"), "400.5");
}

TEST(BillDate, RuleByRule) {
    struct Case {
        const char *recDate, *set, *expected;
        int endDay, newestBatch;
    };
    const Case cases[] = {
        {"2026-03-14", "2026-03-14", "2026-03-14", 0, 0},
        {"2026-03-25", "2026-03-25", "2026-03-25", 25, 0},
        {"2026-03-26", "2026-03-26", "2026-04-01", 25, 0},
        {"2026-12-26", "2026-12-26", "2027-01-01", 25, 0},
        {"2026-03-26", "", "2026-04-01", 25, 0},
        {"2026-03-02", "", "2026-03-02", 25, 0},
        {"2026-02-26", "2026-03-05", "2026-03-05", 25, 0}, // a discharge holds
        {"2026-01-10", "2026-01-10", "2026-03-01", 31, 202602},
        {"2026-03-14", "2026-03-14", "2026-03-14", 31, 202602},
        {"2025-11-10", "2025-11-10", "2026-01-01", 31, 202512},
        {"2026-02-27", "2026-02-27", "2026-04-01", 25, 202603},
    };
    for (const Case& c : cases)
        EXPECT_EQ(billDateFor(QDate::fromString(c.recDate, Qt::ISODate), QDate::fromString(c.set, Qt::ISODate),
                              c.endDay, c.newestBatch),
                  QDate::fromString(c.expected, Qt::ISODate))
            << c.recDate << ' ' << c.set << ' ' << c.endDay << ' ' << c.newestBatch;
}

} // namespace

} // namespace orvane
