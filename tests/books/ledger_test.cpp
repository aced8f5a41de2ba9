// Postings to the ledger: which period, account and table a leg falls in, what balances, and what a cut leaves.
#include "BooksTest.h"
#include "books/CashPosting.h"
#include "books/InvoicePosting.h"
#include "data/rows/Transaction.h"
#include "support/Print.h"

#include <QRandomGenerator>

namespace orvane {

class LedgerTest : public BooksTest {
public:
    void SetUp() override {
        BooksTest::SetUp();
        context.settings.costCenter = "01";
        context.settings.salesAccount = "4000";
        accounting.run("update AccountMonth set Period='2026/03'");
        accounting.run("delete from AccountMonthOpen");
        openPeriod("2026/03", 202603, "2026-03-31");
        accounting.run(
            "insert into ChartOfAccounts (AccountNo, AccountName, groupID) values ('1001','CASH','1210000'), "
            "('4000','SALES','4000000'), ('4110','CLINIC','4000000'), ('9999','SUSPENSE','2000000')");
    }
    void openPeriod(const QString& period, int value, const QString& close, int closed = 0) {
        accounting.run(QStringLiteral("insert into AccountMonthOpen (Period, PeriodVal, PrdClose, isClose) values "
                                      "('%1', %2, '%3', %4)")
                           .arg(period)
                           .arg(value)
                           .arg(close)
                           .arg(closed));
    }
    QString ledgerRows(const QString& tsql) { return rowsOf(accounting, tsql); }
    LedgerDesk desk() { return {Desk(data, TestHome::billing(), context), data, TestHome::accounting()}; }
    /// A receipt of the day with its way and its share, unposted.
    void layReceipt(const QString& number, double paid, double shared, const QString& date = "2026-03-14") {
        run(QStringLiteral("insert into Payments (ReceiptDate, ReceiptNo, billNo, AmountPaid, PayType) values "
                           "('%1', '%2', '%3', %4, 'CASH')")
                .arg(date, number, billNo)
                .arg(paid));
        run(QStringLiteral("insert into PaymentTypes (ReceiptDate, ReceiptNo, AmountPaid, PayType, AccountNo) values "
                           "('%1', '%2', %3, 'CASH', '1001')")
                .arg(date, number)
                .arg(paid));
        run(QStringLiteral(
                "insert into PaymentDetails (ReceiptDate, ReceiptNo, billNo, AmountPaid, AccountNo, revType) "
                "values ('%1', '%2', '%3', %4, '4110', 'CLINIC')")
                .arg(date, number, billNo)
                .arg(shared));
    }
    Given<int> postDay() {
        LedgerDesk open = desk();
        const Given<int> given = open.post(cashPosting(context, day, day));
        settled = open.takeSettled();
        return given;
    }
    QString posted() { return rows("select isPost from Payments order by SNo"); }

    const QDate day{2026, 3, 14};
    Connection accounting = data.open(TestHome::accounting());
    QStringList settled;
};

INSTANTIATE_TEST_SUITE_P(On, LedgerTest, ::testing::ValuesIn(testEngines()),
                         [](const auto& test) { return engineName(test.param); });

TEST_P(LedgerTest, LegsThatBalanceMakeExactlyNothing) {
    Transaction transaction(accounting);
    Ledger ledger(accounting, context);
    const auto balanceOf = [&](const QVector<double>& amounts) {
        ledger.fetchTranID();
        for (const double amount : amounts)
            ledger.postToLedger({day, "1001", amount, "TEST"});
        return ledger.balance();
    };
    EXPECT_EQ(balanceOf({}), std::nullopt);
    EXPECT_EQ(balanceOf({100.10, 200.20, -300.30}), 0.0);
    EXPECT_EQ(balanceOf({0.005, 0.005, -0.01}), 0.0) << "halves of a kobo";
    EXPECT_EQ(balanceOf({100.10, -100.11}), -0.01);
    QRandomGenerator random(7);
    QVector<double> legs;
    qlonglong kobo = 0;
    for (int i = 0; i < 2'000; ++i) {
        const qlonglong one = random.bounded(2'000'000'000) - 1'000'000'000;
        kobo += one;
        legs << double(one) / 100;
    }
    legs << double(-kobo) / 100;
    EXPECT_EQ(balanceOf(legs), 0.0);
}

TEST_P(LedgerTest, ALegFallsInTheFirstOpenPeriodThatEndsOnItsDayOrLater) {
    openPeriod("2026/01", 202601, "2026-01-31", 1);
    openPeriod("2026/02", 202602, "2026-02-28");
    Transaction transaction(accounting);
    Ledger ledger(accounting, context);
    ledger.fetchTranID();
    for (const QDate date : {QDate(2026, 1, 31), QDate(2026, 2, 28), QDate(2026, 3, 1), QDate(2026, 3, 31),
                             QDate(2026, 4, 1), QDate(2026, 5, 31), QDate(2026, 5, 30)})
        ledger.postToLedger({date, "1001", 1, "x"});
    // The last day of a month that had to be opened is not behind the day, so the leg keeps the period before it.
    EXPECT_EQ(ledgerRows("select TranDate, Period from TranxactionTemp order by SNo"),
              "2026-01-31|2026/02\n2026-02-28|2026/02\n2026-04-01|2026/04\n2026-05-31|2026/04\n2026-05-30|2026/05");
    EXPECT_EQ(ledgerRows("select TranDate, Period from Tranxaction order by SNo"),
              "2026-03-01|2026/03\n2026-03-31|2026/03");
}

TEST_P(LedgerTest, AnUnknownAccountIsSuspenseAndALongDescriptionShowsThatItWasCut) {
    Transaction transaction(accounting);
    Ledger ledger(accounting, context);
    ledger.fetchTranID();
    ledger.postToLedger({day, QString(60, 'A'), 5, QString(300, 'd')});
    ledger.postToLedger({day, "4000", -5, "O'BRIEN & SONS"});
    EXPECT_EQ(ledgerRows("select TranID, AccountNo, TranNo, CostCenterID, Amount, Description, TranCat, EntryDate, "
                         "userName from Tranxaction order by SNo"),
              "1|9999|1|01|5|" + QString(197, 'd') +
                  "...|j|2026-03-14|amina.b\n1|4000|1|01|-5|O'BRIEN & SONS|j|2026-03-14|amina.b");
}

TEST_P(LedgerTest, ADaysCashIsPostedOnceWithItsTrail) {
    layReceipt("1", 100.10, 100.10);
    layReceipt("2", 200.20, 200.20);
    layReceipt("3", 50, 50, "2026-03-15");
    EXPECT_EQ(*postDay(), 2);
    EXPECT_EQ(ledgerRows("select AccountNo, Amount, Description from Tranxaction order by Amount"),
              "4110|-300.3|Amount Recvd for CLINIC\n1001|300.3|Payment through CASH");
    EXPECT_EQ(ledgerRows("select TranDate, TranID, TranNoApp, Remarks from TranFromAppsTrail"),
              "2026-03-14|1|ReceiptDate between 14/03/2026 and 14/03/2026|RECEIPT");
    EXPECT_EQ(posted(), "1\n1\n0");
    EXPECT_EQ(rows("select count(*) from PostingNotes"), "0");
    EXPECT_EQ(postDay().refusal(), Refusal::NothingToPost);
}

TEST_P(LedgerTest, DebitsUnlikeCreditsPostNothing) {
    layReceipt("1", 100, 99.99);
    EXPECT_EQ(postDay().refusal(), Refusal::NotBalanced);
    EXPECT_EQ(ledgerRows("select TranID from Tranxaction") + ledgerRows("select TranID from TranFromAppsTrail"), "");
    EXPECT_EQ(posted() + rows("select gTranID from PostingNotes"), "0");
}

TEST_P(LedgerTest, AReceiptAndItsReversalThatNobodyHasSpreadArePostedToo) {
    run("insert into Payments (ReceiptDate, ReceiptNo, billNo, AmountPaid, PayType, PaymentFor) values "
        "('2026-03-14','7','" +
        QString(billNo) + "',300.1,'CASH','DRUGS'), ('2026-03-14','8','" + billNo +
        "',-300.1,'CASH','REVERSAL for RctNo: 7')");
    EXPECT_TRUE(postDay());
    EXPECT_EQ(posted(), "1\n1");
    EXPECT_EQ(rows("select sum(isPost) from PaymentTypes") + rows("select sum(AmountPaid) from PaymentDetails"), "20");
}

/// Breaks the statement that begins so, once, as a lost server would.
struct Cut {
    const char* statement;
    bool posted; ///< by then the ledger has it
};

TEST_P(LedgerTest, WhoeverPostsNextSettlesWhatWasCutOff) {
    const Cut cuts[] = {{"insert into TranFromAppsTrail", false},
                        {"update  PaymentDetails set isPost=1", true},
                        {"delete from PostingNotes", true}};
    int receipts = 0;
    for (const Cut& cut : cuts) {
        SCOPED_TRACE(cut.statement);
        ++receipts;
        layReceipt(QString::number(receipts), 100.10 * receipts, 100.10 * receipts);
        bool broken = false;
        data.setStatementHook([&](const QString& statement) {
            if (!broken && statement.startsWith(QLatin1String(cut.statement))) {
                broken = true;
                throw DataError("cut");
            }
        });
        EXPECT_THROW(postDay(), DataError);
        data.setStatementHook({});
        // A receipt of the same day that came in meanwhile is another posting's.
        layReceipt(QString::number(++receipts), 7, 7);
        EXPECT_EQ(rows("select count(*) from PostingNotes"), "1");
        const Given<int> next = postDay();
        EXPECT_TRUE(next);
        EXPECT_EQ(settled.size(), 1);
        EXPECT_TRUE(settled.value(0).contains(cut.posted ? "behind the ledger" : "before the ledger"));
        EXPECT_EQ(rows("select count(*) from Payments where isPost=0"), "0");
        EXPECT_EQ(rows("select count(*) from PostingNotes"), "0");
        EXPECT_EQ(ledgerRows("select sum(Amount) from Tranxaction where Amount > 0"),
                  rows("select round(sum(AmountPaid), 2) from Payments"));
    }
}

TEST_P(LedgerTest, AnUnansweredCommitIsAskedOfTheLedger) {
    layReceipt("1", 100, 100);
    for (const bool arrived : {false, true}) {
        // Commits of the note, the ledger and the flags; in front of them, the second time, of what was left over.
        int commits = arrived ? -1 : 0;
        data.setStatementHook([&](const QString& statement) {
            if (statement == QLatin1String(arrived ? "transaction committed" : "commit transaction") && ++commits == 2)
                throw DataError("the answer was lost");
        });
        if (arrived)
            EXPECT_EQ(*postDay(), 2);
        else
            EXPECT_THROW(postDay(), DataError);
        data.setStatementHook({});
        EXPECT_EQ(posted(), arrived ? "1" : "0");
        EXPECT_EQ(ledgerRows("select count(*) from Tranxaction"), arrived ? "2" : "0");
    }
    EXPECT_EQ(rows("select count(*) from PostingNotes"), "0");
}

TEST_P(LedgerTest, InvoicesArePostedOnTheLastDayOfTheirMonthAndStayFlaggedWhenThatFails) {
    openPeriod("2026/02", 202602, "2026-02-28");
    run("update hRetainership set AcctID='1001' where retainCode='0102'");
    run("insert into BillsForClients (invDate, InvNo, CoyCode, BatchNo, BillMonth, BillYear, AmountBilled) values "
        "('2026-03-01','0102/2026/02','0102','2026/02','February','2026',100.10), "
        "('2026-03-01','0201/2026/02','0201','2026/02','February','2026',50)");
    const auto post = [&] {
        LedgerDesk open = desk();
        return postInvoices(
            open, "February", "2026", [](int, int) {});
    };
    data.setStatementHook([&](const QString& statement) {
        if (statement.contains("where InvNo='0102/2026/02'") && statement.startsWith("update BillsForClients"))
            throw DataError("cut");
    });
    EXPECT_THROW(post(), DataError);
    data.setStatementHook({});
    EXPECT_EQ(rows("select InvNo from BillsForClients where isPost=1"), "0201/2026/02");
    EXPECT_EQ(ledgerRows("select TranID from TranxactionTemp"), "");

    run("update BillsForClients set isPost=0");
    EXPECT_EQ(*post(), 2);
    EXPECT_EQ(ledgerRows("select TranID, AccountNo, Amount, TranDate, Description from TranxactionTemp order by SNo"),
              "1|9999|50|2026-02-28|Invoce for: CLEARWATER HMO Inv No: 0201/2026/02)\n"
              "1|4000|-50|2026-02-28|Invoce for: CLEARWATER HMO Inv No: 0201/2026/02)\n"
              "2|1001|100.1|2026-02-28|Invoce for: HARMONY MILLS LTD Inv No: 0102/2026/02)\n"
              "2|4000|-100.1|2026-02-28|Invoce for: HARMONY MILLS LTD Inv No: 0102/2026/02)");
    EXPECT_EQ(ledgerRows("select TranNoApp, Remarks from TranFromAppsTrail order by SNo"),
              "0201/2026/02|RECEIVABLE\n0102/2026/02|RECEIVABLE");
    // What the ledger has is flagged, not posted again.
    run("update BillsForClients set isPost=0");
    EXPECT_EQ(*post(), 2);
    EXPECT_EQ(ledgerRows("select count(*) from TranxactionTemp"), "4");
    EXPECT_EQ(post().refusal(), Refusal::NothingToPost);
}

/// A run takes an invoice back, or adds to it, behind the posting's look at it.
TEST_P(LedgerTest, AnInvoiceThatChangesMeanwhileIsNotPostedAsItWasRead) {
    run("insert into Billing (billNo, InvNo) values ('001OFL0000001','0102/2026/03')");
    run("insert into BillingDetails (billNo, drgName) values ('001OFL0000001','X')");
    for (const char* const change : {"delete from BillsForClients", "update BillsForClients set Amountbilled=150"}) {
        SCOPED_TRACE(change);
        run("insert into BillsForClients (InvNo, CoyCode, BatchNo, BillMonth, BillYear, AmountBilled) values "
            "('0102/2026/03','0102','2026/03','March','2026',100.10)");
        data.setStatementHook([&](const QString& statement) {
            if (statement.startsWith("insert into TranFromAppsTrail"))
                run(QString::fromLatin1(change));
        });
        LedgerDesk open = desk();
        EXPECT_THROW(postInvoices(open, "March", "2026", [](int, int) {}), DataError);
        data.setStatementHook({});
        EXPECT_EQ(ledgerRows("select TranID from Tranxaction") + ledgerRows("select TranID from TranFromAppsTrail"),
                  "");
        EXPECT_EQ(rows("select isPost from BillingDetails"), "0");
    }
    EXPECT_EQ(rows("select isPost, AmountBilled from BillsForClients"), "0|150");
}

/// One posting of a day's cash: ways of payment as "ACCOUNT AMOUNT", what they are for likewise.
struct Odd {
    const char* what;
    const char* date;
    QString ways, shares;
    QString posted; ///< what refuses it, or account, amount and period of the legs
    bool emptyChart = false;
};

TEST_P(LedgerTest, OddInputsArePostedWholeOrNotAtAll) {
    const QString unbalanced = refusalText(Refusal::NotBalanced), longAccount(50, 'A');
    const Odd odds[] = {
        {"halves of a kobo", "2026-03-14", "1001 0.005,1001 0.005", "4110 0.01",
         "1001|0.01|2026/03\n4110|-0.01|2026/03"},
        {"half a kobo too little", "2026-03-14", "1001 100", "4110 99.995", unbalanced},
        {"debits unlike credits", "2026-03-14", "1001 100,1001 50", "4110 100,4110 49.99", unbalanced},
        {"an account as long as its column", "2026-03-14", longAccount + " 7", "4110 7",
         longAccount + "|7|2026/03\n4110|-7|2026/03"},
        {"before every period", "1999-12-31", "1001 7", "4110 7", "1001|7|2026/03\n4110|-7|2026/03"},
        {"after all periods", "2031-01-01", "1001 7", "4110 7", "1001|7|2026/03\n4110|-7|2026/03"},
        {"two months behind the last period", "2026-07-10", "1001 7", "4110 7", unbalanced},
        {"an empty chart", "2026-03-14", "1001 7", "4110 7", "9999|7|2026/03\n9999|-7|2026/03", true},
    };
    accounting.run("insert into ChartOfAccounts (AccountNo, AccountName) values ('" + longAccount + "', 'LONG')");
    for (const Odd& odd : odds) {
        SCOPED_TRACE(odd.what);
        for (const char* table : {"PaymentTypes", "PaymentDetails"})
            run(QString("delete from %1").arg(table));
        for (const char* table : {"Tranxaction", "TranxactionTemp", "TranFromAppsTrail"})
            accounting.run(QString("delete from %1").arg(table));
        if (odd.emptyChart)
            accounting.run("delete from ChartOfAccounts");
        for (const QString& way : odd.ways.split(','))
            run(QString("insert into PaymentTypes (ReceiptDate, ReceiptNo, PayType, AccountNo, AmountPaid) values "
                        "('%1','1','CASH','%2',%3)")
                    .arg(odd.date, way.section(' ', 0, 0), way.section(' ', 1)));
        for (const QString& share : odd.shares.split(','))
            run(QString("insert into PaymentDetails (ReceiptDate, ReceiptNo, revType, AccountNo, AmountPaid) values "
                        "('%1','1','CLINIC','%2',%3)")
                    .arg(odd.date, share.section(' ', 0, 0), share.section(' ', 1)));
        const QDate date = QDate::fromString(odd.date, Qt::ISODate);
        LedgerDesk open = desk();
        const Given<int> given = open.post(cashPosting(context, date, date));
        const QString legs = ledgerRows("select AccountNo, Amount, Period from Tranxaction union all select AccountNo, "
                                        "Amount, Period from TranxactionTemp order by Amount desc");
        EXPECT_EQ(given ? legs : refusalText(given.refusal()) + legs, odd.posted);
        EXPECT_EQ(ledgerRows("select count(*) from TranFromAppsTrail"), given ? "1" : "0");
        EXPECT_EQ(rows("select count(*) from PaymentTypes where isPost=0"),
                  given ? "0" : rows("select count(*) from PaymentTypes"));
    }
}

} // namespace orvane
