#include "BooksTest.h"

#include "books/Bill.h"
#include "books/BillSave.h"
#include "books/BillSummary.h"
#include "books/Collate.h"

namespace orvane {
namespace {

class Collation : public BooksTest {
protected:
    Given<double> collate(const BillInHand& bill) {
        return save<double>([&](Books& books) { return collateBillItems(books, bill); });
    }
    void saveTheBill(const BillInHand& bill) {
        save<Saved>([&](Books& books) { return saveBill(books, {bill, context.today, {}, {}, {}, std::nullopt}); });
    }
};
ORVANE_ON_EACH_ENGINE(Collation);

/// What becomes of one item: its line, its charge and its flags after the collation, and after the save.
TEST_P(Collation, ItemByClientAndState) {
    const struct {
        const char *name, *category, *client, *referal, *item;
        double price;
        const char* capitated;
        int attended;
        const char *line, *charge, *flags, *savedLine, *savedFlags; ///< flags: attendedto, isBilled, Capitated
    } cases[] = {
        {"private", "PRIVATE", "0001", "NO", "X", 5, "YES", 0, "X|5", "-5", "1|1|NO", "X|5", "1|1|NO"},
        {"company", "MTHLY", "0102", "NO", "X", 5, "", 0, "X|5", "", "1|1|NO", "X|5", "1|1|NO"},
        {"capitated item", "HMO", "0201", "NO", "X", 5, "YES", 0, "", "", "0|0|YES", "", "1|1|YES"},
        {"waits for the save", "NHIS", "0301", "NO", "X", 5, "NO", 0, "", "", "0|0|NO", "X|5", "1|1|NO"},
        {"taken in before", "PHIS", "0301", "NO", "X", 5, "NO", 1, "X|5", "", "1|1|NO", "X|5", "1|1|NO"},
        {"fee for service", "HMO", "0201", "YES", "X", 5, "YES", 0, "X|5", "", "1|1|NO", "X|5", "1|1|NO"},
        {"carried debt", "PRIVATE", "0001", "NO", "PREVIOUS DEBT", 5, "NO", 0, "PREVIOUS DEBT|5", "", "1|1|NO",
         "PREVIOUS DEBT|5", "1|1|NO"},
        {"carried credit", "PRIVATE", "0001", "NO", "PREVIOUS CREDIT", -5, "NO", 0, "", "", "0|0|NO",
         "PREVIOUS CREDIT|-5", "1|1|NO"},
        {"carried credit without a flag", "HMO", "0201", "NO", "PREVIOUS CREDIT", -5, "", 0, "", "", "0|0|",
         "PREVIOUS CREDIT|-5", "1|1|NO"},
        {"no price", "PRIVATE", "0001", "NO", "X", 0, "NO", 0, "", "", "0|0|NO", "", "1|1|NO"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        strike();
        moveVisit(c.category, c.client, c.referal);
        makeItem(billing, {.name = c.item, .client = c.client, .price = c.price, .capitated = c.capitated});
        run(QStringLiteral("update BillAccum set attendedto=%1").arg(c.attended));
        const BillInHand bill = visit(c.category, c.client);
        EXPECT_EQ(needsCollation(billing, bill), *c.line != '\0');
        collate(bill);
        EXPECT_EQ(lines(), c.line);
        EXPECT_EQ(scalar("select Amount from Tranxaction"), c.charge);
        EXPECT_EQ(rows("select attendedto, isBilled, Capitated from BillAccum"), c.flags);
        EXPECT_FALSE(needsCollation(billing, bill)) << "nothing is left to do, and no transaction is taken for it";
        saveTheBill(bill);
        EXPECT_EQ(lines(), c.savedLine);
        EXPECT_EQ(scalar("select Amount from Tranxaction"), c.charge) << "a carried balance is in the account already";
        EXPECT_EQ(rows("select attendedto, isBilled, Capitated from BillAccum"), c.savedFlags);
        EXPECT_EQ(scalar("select Amountbilled from Billing"),
                  *c.savedLine ? QString(c.savedLine).section('|', 1) : "0");
    }
}

TEST_P(Collation, LineBearsTheItemAndTheAccountRuns) {
    run("insert into Tranxaction (PNo, billNo, Amount, RunningTotal, Remarks) values ('P/0001','OLD',-0.1,-0.1,'X')");
    makeItem(billing, {.name = "MALARIA PARASITE", .billType = "LAB", .revType = "LABORATORY", .price = 1500.2});
    const qlonglong second = makeItem(billing, {.price = 50, .qty = 6});
    run("update BillAccum set usage='2 TDS', conID=7 where SNo=" + QString::number(second));
    EXPECT_EQ(*collate(visit()), 1800.2);
    EXPECT_EQ(account(), "-0.1|-0.1|X\n-1500.2|-1500.3|MALARIA PARASITE\n-300|-1800.3|PARACETAMOL 500MG");
    EXPECT_EQ(scalar("select DebtBF from hPatients"), "-1800.3");
    EXPECT_EQ(rows("select dtDate, billNo, drgName, Price, Qty, SubTotal, BillType, conID, dosage, coyName, billTo, "
                   "revType, BillBy, Charged from BillingDetails where SNo=" +
                   QString::number(second)),
              "2026-03-14|001OFL0000001|PARACETAMOL 500MG|50|6|300|DRUG|7|2 TDS|0001|0001|DRUGS|amina.b|300");
    EXPECT_EQ(audited.last(), "insert Bill Item for ADEYEMI BOLA|001OFL0000001|PARACETAMOL 500MG: 300.00");
    collate(visit());
    EXPECT_EQ(scalar("select count(*) from Tranxaction"), "3") << "a second collation charged again";
}

TEST_P(Collation, RepairsRowsAndDropsEmptyLines) {
    makeItem(billing);
    collate(visit());
    const auto found = [&] {
        return rows("select b.coyName, b.billTo, d.BillType, h.coyName from BillAccum b, BillingDetails d, hRecords h");
    };
    const QString sound = found();
    for (const char* lack : {"update BillAccum set coyName=null", "update BillAccum set billTo=null",
                             "update hRecords set coyName=null", "update BillingDetails set BillType=''"}) {
        SCOPED_TRACE(lack);
        run(lack);
        EXPECT_TRUE(needsCollation(billing, visit()));
        collate(visit());
        EXPECT_FALSE(needsCollation(billing, visit()));
        EXPECT_EQ(found().replace("SERVICE", "DRUG"), sound);
    }
    run("update BillingDetails set SubTotal=0, Charged=0");
    EXPECT_TRUE(needsCollation(billing, visit()));
    collate(visit());
    EXPECT_EQ(lines(), "");
}

TEST_P(Collation, ProcessedBillTakesNoItem) {
    makeItem(billing, {.name = "FIRST"});
    run("insert into Billing (billNo, PNo, isProcess) values ('001OFL0000001','P/0001',1)");
    EXPECT_EQ(collate(visit()).refusal(), Refusal::BillProcessed);
    EXPECT_EQ(lines() + account(), "");
}

/// The summary heals a bill by its lines and receipts, and leaves the total of a processed one.
TEST_P(Collation, SummaryByWhatIsThere) {
    const struct {
        const char* lay;
        const char* bill; ///< billed, paid
        double billed, paid, generated;
    } cases[] = {
        {"", "0|0", 0, 0, 0},
        {"update Billing set Amountbilled=7, AmountPaid=9", "7|9", 0, 9, 0},
        {"insert into BillAccum (consultID, SubTotal) values ('001OFL0000001',60.5)", "7|9", 0, 9, 60.5},
        {"insert into BillingDetails (billNo, SNo, SubTotal) values ('001OFL0000001',1,60.1)", "60.1|9", 60.1, 9, 60.5},
        {"insert into BillingDetails (billNo, SNo, SubTotal) values ('001OFL0000001',2,0.2)", "60.3|9", 60.3, 9, 60.5},
        {"insert into Payments (ReceiptNo, billNo, AmountPaid) values ('1','001OFL0000001',30.1)", "60.3|30.1", 60.3,
         30.1, 60.5},
        {"insert into Payments (ReceiptNo, billNo, AmountPaid) values ('2','001OFL0000001',0.2)", "60.3|30.3", 60.3,
         30.3, 60.5},
        {"update Billing set isProcess=1, Amountbilled=55", "55|30.3", 60.3, 30.3, 60.5},
    };
    strike();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.lay);
        if (*c.lay)
            run(c.lay);
        const Given<BillFigures> figures =
            save<BillFigures>([&](Books& books) { return saveBillSummary(books, billNo, "P/0001"); });
        EXPECT_EQ(rows("select Amountbilled, AmountPaid from Billing"), c.bill);
        EXPECT_EQ((QList{figures->billed, figures->paid, figures->generated}), (QList{c.billed, c.paid, c.generated}));
    }
    EXPECT_EQ(rows("select PNo from Billing"), "P/0001");
}

} // namespace
} // namespace orvane
