// What a receipt, its reversal and a manual receipt leave behind, without a screen.
#include "BooksTest.h"

#include "books/Bill.h"
#include "books/BillReceipt.h"
#include "books/ManualReceipt.h"
#include "books/PatientAccount.h"
#include "books/ReceiptNumber.h"

namespace orvane {
namespace {

class ReceiptRules : public BooksTest {
protected:
    void SetUp() override {
        BooksTest::SetUp();
        run("update IDgen set ID=40 where DestName='RECEIPT2'");
    }
    QString receive(double amount, double due = 0) {
        const BillReceipt receipt{billNo,  "P/0001", "ADEYEMI", QDate(2026, 3, 13), amount, due,
                                  "WORDS", "DRUGS",  "POS"};
        return *save<QString>([&](Books& books) { return takeReceipt(books, receipt); });
    }
    QString reverse(const QString& receiptNo, double paid, double billed = 0) {
        const Reversal back{receiptNo, billNo, "P/0001", "ADEYEMI", QDate(2026, 3, 12), billed, paid, "WORDS"};
        return *save<QString>([&](Books& books) { return reverseReceipt(books, back); });
    }
    Given<QString> enterPaper(double billed, double paid) {
        const ManualReceipt paper{" 0047 ", billNo, "P/0001", "PRIVATE", "ADEYEMI", QDate(2026, 3, 10), billed, paid,
                                  "WORDS",  "OPD",  "DRUGS",  "POS",     "E002"};
        return save<QString>([&](Books& books) { return enterManualReceipt(books, paper); });
    }

    /// A bill and its charge on the account. Naira.
    void layBill(double billed) {
        run(QString("insert into Billing (billNo, PNo, Amountbilled, AmountPaid) values ('%1','P/0001',%2,0)")
                .arg(billNo)
                .arg(billed));
        post(0 - billed, "0001");
    }
    void post(double amount, const QString& client) {
        save<Saved>([&](Books& books) -> Given<Saved> {
            postPatientTran(books, {"P/0001", billNo, amount, client, "BILL"});
            return Saved{};
        });
    }
    QString bill() { return rows("select Amountbilled, AmountPaid, isPaid from Billing"); }
    /// The running total and its copy on the patient, which must agree.
    QString balance() {
        const QString total = scalar("select top 1 RunningTotal from Tranxaction order by SNo desc");
        EXPECT_EQ(scalar("select DebtBF from hPatients where PNo='P/0001'"), total);
        return total;
    }
    const QString payment = "select top 1 ReceiptDate, ReceiptNo, ClinicID, billNo, PNo, PaymentFor, Amountbilled, "
                            "AmountPaid, AmountInWord, ReceivedBy, PayType, ChequeNo, rTime, Remarks from Payments "
                            "order by SNo desc";
};
ORVANE_ON_EACH_ENGINE(ReceiptRules);

TEST_P(ReceiptRules, BillAndAccountFollowEachReceiptAndReversal) {
    layBill(1000);
    const struct {
        const char* reversed; ///< null: a receipt
        double amount;
        const char *number, *bill, *balance;
    } steps[] = {
        {nullptr, 250, "41", "1000|250|0", "-750"},
        {nullptr, 750, "42", "1000|1000|1", "0"},
        {"42", 750, "43", "1000|250|0", "-750"},
        {nullptr, 0, "44", "1000|250|0", "-750"},
        {"41", 250, "45", "1000|0|0", "-1000"},
        // Three thirds are the whole, to the kobo.
        {nullptr, 333.33, "46", "1000|333.33|0", "-666.67"},
        {nullptr, 333.33, "47", "1000|666.66|0", "-333.34"},
        {nullptr, 333.34, "48", "1000|1000|1", "0"},
        {nullptr, 200, "49", "1000|1200|1", "200"},
    };
    for (const auto& step : steps) {
        EXPECT_EQ(step.reversed ? reverse(step.reversed, step.amount) : receive(step.amount), step.number);
        EXPECT_EQ(bill(), step.bill);
        EXPECT_EQ(balance(), step.balance);
        EXPECT_EQ(recorded, QString("%1|%2").arg(step.number).arg(step.reversed ? 0 - step.amount : step.amount));
    }
    EXPECT_EQ(rows("select entryDate, billNo, Amount, Remarks from Tranxaction where SNo=2"),
              "2026-03-14|001OFL0000001|250|Payment");
}

TEST_P(ReceiptRules, RowsOfAReceiptAndOfItsReversal) {
    receive(1500, 4000.5);
    EXPECT_EQ(rows(payment), "2026-03-13|41|SALES|001OFL0000001|P/0001|DRUGS|4000.5|1500|WORDS|E001|POS||09:30|"
                             "PAYMENT");
    reverse("41", 1500, 4000.5);
    EXPECT_EQ(rows(payment), "2026-03-12|42|SALES|001OFL0000001|P/0001|REVERSAL for RctNo: 41|-4000.5|-1500|WORDS|E001|"
                             "CASH||09:30|REVERSAL for RctNo: 41");
    EXPECT_EQ(audited, (QStringList{"insert Payment for: ADEYEMI|001OFL0000001|1,500.00",
                                    "Reversal Entry (Payment) for: ADEYEMI|001OFL0000001|-1,500.00"}));
    EXPECT_EQ(bill(), "") << "a bill without its row takes the receipt all the same";
    EXPECT_EQ(balance(), "0");
}

TEST_P(ReceiptRules, AManualReceiptMakesTheBillAndThenEnlargesIt) {
    const QString row = "select bdate, billNo, PNo, clientID, Amountbilled, AmountBIlledInWord, AmountPaid, profFee, "
                        "AmtBF, billingMonth, billingYear, diagnosis, billType, isPaid from Billing";
    post(-200, "0001");
    EXPECT_EQ(*enterPaper(1500.5, 1000), "SN0047");
    EXPECT_EQ(recorded, "SN0047|1000");
    EXPECT_EQ(rows(row), "2026-03-10|001OFL0000001|P/0001|PRIVATE|1500.5|XXX|1000|0|0|March|2026|XXX|CASH|0");
    EXPECT_EQ(rows(payment), "2026-03-10|SN0047|OPD|001OFL0000001|P/0001|DRUGS|1500.5|1000|WORDS|E002|POS||09:30|"
                             "CASH");
    EXPECT_EQ(rows("select Amount, RunningTotal, Remarks from Tranxaction where SNo>1 order by SNo"),
              "-1500.5|-1700.5|Payment\n1000|-700.5|Payment");
    EXPECT_EQ(*enterPaper(99.5, 600), "SN0047") << "the same paper number may come again";
    EXPECT_EQ(rows(row), "2026-03-10|001OFL0000001|P/0001|PRIVATE|1600|XXX|1600|0|0|March|2026|XXX|CASH|1");
    EXPECT_EQ(balance(), "-200");
    EXPECT_EQ(audited, (QStringList{"insert Payment for: ADEYEMI|001OFL0000001|1,000.00",
                                    "insert Payment for: ADEYEMI|001OFL0000001|600.00"}));
    run("update Billing set isprocess=1");
    EXPECT_EQ(enterPaper(500, 500).refusal(), Refusal::BillProcessed);
    EXPECT_EQ(bill() + '/' + balance() + '/' + rows("select count(*) from Payments"), "1600|1600|1/-200/2");
}

TEST(Paid, ComparesToTheKobo) {
    EXPECT_EQ(isPaidFlag(0.1 + 0.2, 0.3) + isPaidFlag(100.1 + 200.2 + 300.3 - 600.6, 0) + isPaidFlag(100.01, 100), 3);
    EXPECT_EQ(isPaidFlag(99.99, 100), 0);
}

TEST_P(ReceiptRules, CodedNumbersGoOnFromTheHighestOfTheirCode) {
    const QString outletVisit = "001/26/000001";
    run("insert into hRecordsPublic (consultID, clinicType) values ('" + outletVisit + "', 'LABORATORY')");
    const struct {
        QStringList issued;
        const char *clinic, *outlet; ///< seven digits
    } cases[] = {
        {{}, "0000001", "0000001"},
        {{"001OP0000041", "001OP0000009", "001LB0000007"}, "0000042", "0000008"},
        {{"001OP0000100", "001AN0000500", "002OP0000900", "77", "SN12"}, "0000101", "0000001"},
        // A code without numbers of its own carries on from the older form, one with numbers does not look there.
        {{"OP0000060", "LB0000070"}, "0000061", "0000071"},
        {{"OP0000060", "001OP0000002"}, "0000003", "0000001"},
        {{"001OP0000000", "OP0000060"}, "0000061", "0000001"},
        {{"001OP9999999", "001LB9999998"}, "0000000", "9999999"},
        {{"001OPX", "OP"}, "0000001", "0000001"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.issued.join(' ').toStdString());
        run("delete from Payments");
        for (const QString& number : c.issued)
            run("insert into Payments (ReceiptNo) values ('" + number + "')");
        const Given<ReceiptNumber> clinic = clinicReceiptNumber(billing, "001", billNo);
        EXPECT_EQ(clinic->number + '|' + clinic->clinicType + '|' + clinic->clinicID,
                  QString("001OP") + c.clinic + "|OPD|OPD");
        const Given<ReceiptNumber> outlet = outletReceiptNumber(billing, "001", outletVisit);
        EXPECT_EQ(outlet->number + '|' + outlet->clinicType, QString("001LB") + c.outlet + "|LABORATORY");
    }
    run("update clinicTypes set rctCode=null");
    for (const char* visit : {billNo, "unknown", ""})
        EXPECT_EQ(clinicReceiptNumber(billing, "001", visit).refusal(), Refusal::NoConsultID);
    EXPECT_EQ(outletReceiptNumber(billing, "001", billNo).refusal(), Refusal::NoTranID);
}

} // namespace
} // namespace orvane
