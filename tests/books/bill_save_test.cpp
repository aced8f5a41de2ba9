#include "BooksTest.h"

#include "books/BillDate.h"
#include "books/BillSave.h"
#include "books/Collate.h"
#include "books/Fees.h"

namespace orvane {
namespace {

class BillSave : public BooksTest {
protected:
    void collate() {
        save<double>([&](Books& books) { return collateBillItems(books, visit()); });
    }
    Given<Saved> saveIt(double paid = 0) {
        BillToSave bill{visit(), context.today, "FEVER", {}, {}, std::nullopt};
        if (paid > 0)
            bill.receipt = ReceiptInSave{.row = {.date = context.today,
                                                 .receiptNo = "1",
                                                 .clinicID = {},
                                                 .billNo = billNo,
                                                 .pno = "P/0001",
                                                 .purpose = "DRUGS",
                                                 .amountBilled = paid,
                                                 .amountPaid = paid,
                                                 .words = {},
                                                 .payType = "CASH",
                                                 .remarks = "PAYMENT"},
                                         .ways = {{"CASH", "1001", paid}, {"POS", "1003", 0}},
                                         .customer = "X"};
        return save<Saved>([&](Books& books) { return saveBill(books, bill); });
    }
    Given<double> fee(const QString& percent, double bill) {
        return save<double>([&](Books& books) {
            return addProfessionalFee(books, visit(), {professionalFeeItem(percent), context.today, percent.toDouble()},
                                      bill);
        });
    }
};
ORVANE_ON_EACH_ENGINE(BillSave);

/// How a receipt spreads over the lines of a bill, whatever their names and their revenue type.
TEST_P(BillSave, ReceiptOverTheLines) {
    const struct {
        const char* name;
        QList<double> lines;
        double amount;
        const char* shares; ///< item, paid, to pay
        const char* covered;
    } cases[] = {
        {"partial", {1000, 2000}, 1500, "A|1000|1000\nB|500|2000", "A|1\nB|1"},
        {"the first line takes it", {1000, 2000}, 1000, "A|1000|1000", "A|1\nB|0"},
        {"more", {1000, 20}, 1520.25, "A|1000|1000\nB|20|20\nBALANCE_PAYMENT|500.25|500.25", "A|1\nB|1"},
        {"no crumbs", {0.1, 200.2, 0.3}, 200.6, "A|0.1|0.1\nB|200.2|200.2\nC|0.3|0.3", "A|1\nB|1\nC|1"},
        {"kobo of kobo", {33.335, 66.671}, 100.01, "A|33.34|33.34\nB|66.67|66.67", "A|1\nB|1"},
        {"no lines", {}, 800, "DEPOSIT_PAYMENT|800|800", ""},
    };
    const std::pair<const char*, const char*> names[] = {
        {"A|", "ENDS IN A BLANK |"}, {"B|", " o'neill's 100% [a_b]#1|"}, {"C|", "tab\t|"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        strike();
        QString shares = c.shares, covered = c.covered;
        for (qsizetype i = 0; i < c.lines.size(); ++i) {
            makeItem(billing, {.name = QString(names[i].second).chopped(1), .revType = "UNKNOWN", .price = c.lines[i]});
            shares.replace(names[i].first, names[i].second);
            covered.replace(names[i].first, names[i].second);
        }
        collate();
        saveIt(c.amount);
        EXPECT_EQ(rows("select BillItem, AmountPaid, AmountToPay from PaymentDetails order by SNo"), shares);
        for (const char* table : {"BillingDetails", "BillAccum"})
            EXPECT_EQ(rows(QStringLiteral("select drgName, isRct from %1 order by SNo").arg(table)), covered);
        EXPECT_EQ(scalar("select AmountPaid from Billing"), QString::number(c.amount));
    }
    EXPECT_EQ(rows("select AccountNo, revType, snoID from PaymentDetails"), "9999|SUSPENSE|0");
    EXPECT_EQ(scalar("select count(*) from PaymentTypes where PayType='POS'"), "0");
}

/// A bill without lines keeps its amount, such as that of a paper receipt; "XXX" marks one that was capitated whole.
TEST_P(BillSave, BillWithoutLinesKeepsItsAmount) {
    const struct { const char *words, *kept; } cases[] = {{"", "250|TWO HUNDRED AND FIFTY NAIRA"}, {"XXX", "250|XXX"}};
    for (const auto& c : cases) {
        strike();
        run(QString("insert into Billing (billNo, Amountbilled, AmountBIlledInWord) values ('001OFL0000001',250,'%1')")
                .arg(c.words));
        saveIt();
        EXPECT_EQ(rows("select Amountbilled, AmountBIlledInWord from Billing"), c.kept);
    }
    makeItem(billing);
    saveIt();
    EXPECT_EQ(rows("select Amountbilled, AmountBIlledInWord from Billing"), "50|FIFTY NAIRA") << "the lines win";
}

/// What was changed since the bill was read is not overwritten.
TEST_P(BillSave, RefusedWhenTheVisitIsAnotherOne) {
    makeItem(billing);
    const struct {
        const char* change;
        Refusal refusal;
    } cases[] = {
        {"insert into Billing (billNo, isProcess) values ('001OFL0000001',1)", Refusal::BillProcessed},
        {"update hRecords set coyName='0102'", Refusal::VisitChanged},
        {"update hRecords set coyName='0001', PNo='P/0002'", Refusal::VisitChanged},
        {"delete from hRecords", Refusal::VisitChanged},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.change);
        run(c.change);
        const Given<Saved> saved = saveIt(700);
        run("delete from Billing");
        ASSERT_FALSE(saved);
        EXPECT_EQ(saved.refusal(), c.refusal);
        EXPECT_EQ(scalar("select count(*) from Payments") + lines(), "0");
    }
}

/// profFee is what was calculated and still stands on the bill.
TEST_P(BillSave, ProfessionalFeeIsWhatStandsOnTheBill) {
    makeItem(billing, {.price = 1000.55});
    collate();
    EXPECT_EQ(*fee("7.5", 1000.55), 75.04);
    EXPECT_EQ(rows("select drgName, Price, Qty, SubTotal, billType, Category, Capitated, PNo, coyName, billTo, suppres "
                   "from BillAccum where SNo=2"),
              "Prof Fee (7.5%)|75.04|1|75.04|SERVICE|CONSULTATION|NO|P/0001|0001|0001|0");
    EXPECT_EQ(*fee("10", 1075.59), 107.56);
    collate();
    saveIt();
    EXPECT_EQ(rows("select Amountbilled, profFee from Billing"), "1183.15|182.6");
    run("delete from BillingDetails where drgName='Prof Fee (10%)'");
    run("delete from BillAccum where drgName='Prof Fee (10%)'");
    saveIt();
    EXPECT_EQ(rows("select Amountbilled, profFee from Billing"), "1075.59|75.04");
    run("update Billing set isProcess=1");
    EXPECT_EQ(fee("10", 100).refusal(), Refusal::BillProcessed);
}

/// Base and revenue type of the scheme's fee by the setting: capitated items count, and a fee is whole kobo.
TEST_P(BillSave, SchemeFeeBySetting) {
    const struct {
        const char *setting, *fee, *revType;
    } cases[] = {{"", "125.06", "DRUG"},
                 {"ALL", "125.06", "DRUG"},
                 {"DRUG", "50.03", "CONSULTATION"},
                 {"DRUGS ONLY", "50.03", "DRUG"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.setting);
        strike();
        makeItem(billing, {.name = "DRUG", .price = 1000.55});
        makeItem(billing, {.name = "TEST", .billType = "LAB", .price = 1500.65});
        collate();
        context.settings.nhisFeeBase = c.setting;
        save<double>([&](Books& books) { return addNhisFee(books, visit(), {"SCHEME FEE", context.today, 5}); });
        EXPECT_EQ(rows("select a.Price, a.SubTotal, d.SubTotal, a.revType, d.revType, a.Category, a.billType, "
                       "a.Capitated, a.attendedto, a.isBilled, a.suppres, a.conID, d.BillBy from BillAccum a inner "
                       "join BillingDetails d on d.SNo=a.SNo where a.drgName='SCHEME FEE'"),
                  QString("%1|%1|%1|%2|%2|CONSULTATION|SERVICE|NO|1|1|0|0|amina.b").arg(c.fee, c.revType));
        EXPECT_EQ(scalar("select Amount from Tranxaction where Remarks='SCHEME FEE'"), QString("-") + c.fee);
    }
}

/// Without an end day every day of the month lies behind it; a discharge holds.
TEST(BillDate, RuleByRule) {
    const struct {
        const char *recDate, *discharged, *expected;
        int endDay, newestBatch;
    } cases[] = {
        {"2026-03-14", "", "2026-03-14", 31, 0},           {"2026-03-14", "", "2026-04-01", 0, 0},
        {"2026-03-25", "", "2026-03-25", 25, 0},           {"2026-03-26", "", "2026-04-01", 25, 0},
        {"2026-03-26", "2026-03-26", "2026-03-26", 25, 0}, {"2026-12-26", "", "2027-01-01", 25, 0},
        {"2026-02-26", "2026-03-05", "2026-03-05", 25, 0}, {"2026-02-26", "2026-03-05", "2026-03-05", 0, 0},
        {"2026-01-10", "", "2026-03-01", 31, 202602},      {"2026-01-10", "2026-01-10", "2026-03-01", 31, 202602},
        {"2026-03-14", "", "2026-03-14", 31, 202602},      {"2025-11-10", "", "2026-01-01", 31, 202512},
        {"2026-02-27", "", "2026-04-01", 25, 202603}};
    for (const auto& c : cases)
        EXPECT_EQ(billDateFor(QDate::fromString(c.recDate, Qt::ISODate), QDate::fromString(c.discharged, Qt::ISODate),
                              c.endDay, c.newestBatch),
                  QDate::fromString(c.expected, Qt::ISODate))
            << c.recDate << ' ' << c.discharged << ' ' << c.endDay << ' ' << c.newestBatch;
}

} // namespace
} // namespace orvane
