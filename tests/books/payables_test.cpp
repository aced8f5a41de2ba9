// Vouchers and the suppliers' entries in the ledger: posted once, whatever was cut off, and what a cut leaves.
#include "BooksTest.h"
#include "books/Period.h"
#include "books/SupplierPosting.h"
#include "books/VoucherPosting.h"
#include "proof/PostingCheck.h"
#include "support/Print.h"

namespace orvane {

class PayablesTest : public BooksTest {
public:
    void SetUp() override {
        BooksTest::SetUp();
        accounting.run("update AccountMonth set Period='2026/03'");
        accounting.run("delete from AccountMonthOpen");
        accounting.run("insert into AccountMonthOpen (Period, PeriodVal, PrdClose, isClose) values "
                       "('2026/03', 202603, '2026-03-31', 0), ('2026/04', 202604, '2026-04-30', 0)");
        accounting.run("insert into ChartOfAccounts (AccountNo, AccountName, groupID) values ('1001','CASH','1'), "
                       "('5310','FUEL','5'), ('1260','DRUGS','1260000'), ('2100','MEDICO','2')");
        run("insert into suppliers (supplierID, SupplierName, AccountNo) values ('0001', 'MEDICO', '2100')");
    }
    void layVoucher() {
        run("insert into hExpensePayDetails (vouchNo, PayDate, Description, Amount, AcctNoDebit, AcctNoCreit) values "
            "('V1','2026-03-14','DIESEL',100.10,'5310','1001'), ('V1','2026-03-14','PAPER',20,'7777','1001')");
    }
    /// Entries of one invoice, by the days of their entry and invoice.
    void layEntry(const char* entered, const char* invoiced, double amount) {
        run(QStringLiteral("insert into StockEntryAcct (EntryDate, InvoiceDate, InvoiceNo, supplierID, InvAcctNo, "
                           "Amount) values ('%1', '%2', 'INV-1', '0001', '1260', %3)")
                .arg(QLatin1String(entered), QLatin1String(invoiced))
                .arg(amount));
    }
    Given<int> post(const Posting& posting) {
        LedgerDesk open(Desk(data, TestHome::billing(), context), data, TestHome::accounting());
        const Given<int> given = open.post(posting);
        settled = open.takeSettled().join('\n');
        return given;
    }
    Given<int> postSuppliers() { return post(supplierPosting(QDate(2026, 3, 10), QDate(2026, 3, 14))); }
    void cutAt(const QString& statement) {
        data.setStatementHook([statement](const QString& tsql) {
            if (tsql.startsWith(statement))
                throw DataError("cut");
        });
    }
    QString ledger(const QString& tsql) { return rowsOf(accounting, tsql); }
    QString flags() { return rows("select isPost, TranID from StockEntryAcct order by SNO"); }
    CheckReport check() {
        CheckReport report;
        checkPostings(billing, accounting, report);
        return report;
    }

    Connection accounting = data.open(TestHome::accounting());
    QString settled;
};

INSTANTIATE_TEST_SUITE_P(On, PayablesTest, ::testing::ValuesIn(testEngines()),
                         [](const auto& test) { return engineName(test.param); });

TEST_P(PayablesTest, AVoucherIsPostedOnceWhateverIsCutOff) {
    layVoucher();
    EXPECT_TRUE(
        whyNotClosed(billing, accounting, "2026/03").contains("an item of voucher V1 of 14/03/2026 is not posted"));
    const Posting posting = voucherPosting("V1", QDate(2026, 3, 14));
    for (const char* statement : {"insert into TranFromAppsTrail", "update hExpensePayDetails set isPost=1"}) {
        cutAt(statement);
        EXPECT_THROW(post(posting), DataError);
        data.setStatementHook({});
        EXPECT_EQ(check().findings, QStringList());
    }
    EXPECT_EQ(post(posting).refusal(), Refusal::NothingToPost) << "it was in the ledger";
    EXPECT_TRUE(settled.contains("the voucher V1 (transaction")) << settled.toStdString();
    EXPECT_EQ(ledger("select AccountNo, Amount, Description from Tranxaction order by SNo"),
              "5310|100.1|DIESEL\n1001|-100.1|DIESEL\n9999|20|PAPER\n1001|-20|PAPER");
    EXPECT_EQ(ledger("select TranDate, TranNoApp, Remarks from TranFromAppsTrail"), "2026-03-14|V1|EXPENSE");
    run("update hExpensePayDetails set isPost=0");
    EXPECT_EQ(check().findings.size(), 1) << "an entry without its flag";
    LedgerDesk desk(Desk(data, TestHome::billing(), context), data, TestHome::accounting());
    EXPECT_EQ(*postVouchersLeftOver(desk), QStringList()) << "the ledger has it";
    EXPECT_EQ(rows("select min(isPost) from hExpensePayDetails") + ledger("select count(*) from Tranxaction"), "14");
    run("insert into hExpensePayDetails (vouchNo, PayDate, Amount) values ('V2', '2026-03-14', 5)");
    EXPECT_EQ(*postVouchersLeftOver(desk), QStringList("V2"));
    EXPECT_EQ(check().findings, QStringList());
    EXPECT_EQ(whyNotClosed(billing, accounting, "2026/03"), QStringList());
}

TEST_P(PayablesTest, SuppliersArePostedByTheInvoicesDayAndFlaggedByTheEntrys) {
    layEntry("2026-03-14", "2026-03-10", 100.10);
    layEntry("2026-03-14", "2026-03-10", 50);
    layEntry("2026-03-20", "2026-03-12", 7);
    layEntry("2026-03-13", "2026-03-01", 9);
    for (const char* statement : {"insert into TranFromAppsTrail", "update StockEntryAcct set isPost=1"}) {
        cutAt(statement);
        EXPECT_THROW(postSuppliers(), DataError);
        data.setStatementHook({});
        EXPECT_EQ(check().findings, QStringList());
    }
    EXPECT_EQ(postSuppliers().refusal(), Refusal::NothingToPost);
    EXPECT_TRUE(settled.contains("1 entries of suppliers were in the ledger already")) << settled.toStdString();
    EXPECT_EQ(flags(), "1|1\n1|1\n1|1\n1|");
    EXPECT_EQ(ledger("select AccountNo, Amount, TranDate, Description from Tranxaction order by SNo"),
              "1260|100.1|2026-03-10|Stock Supplied by MEDICO, Inv. No: INV-1\n"
              "2100|-100.1|2026-03-10|Stock Supplied by MEDICO, Inv. No: INV-1\n"
              "1260|50|2026-03-10|Stock Supplied by MEDICO, Inv. No: INV-1\n"
              "2100|-50|2026-03-10|Stock Supplied by MEDICO, Inv. No: INV-1\n"
              "1260|7|2026-03-12|Stock Supplied by MEDICO, Inv. No: INV-1\n"
              "2100|-7|2026-03-12|Stock Supplied by MEDICO, Inv. No: INV-1");
    EXPECT_EQ(ledger("select TranDate, TranID, TranNoApp, Remarks from TranFromAppsTrail order by SNo"),
              "2026-03-10|1|INV-1|PAYABLE\n2026-03-10|1|INV-1|PAYABLE\n2026-03-12|1|INV-1|PAYABLE");
    EXPECT_EQ(check().findings, QStringList());
    EXPECT_EQ(check().notices.size(), 1) << "the one flagged and not posted";
    run("update StockEntryAcct set isPost=0 where Amount=50");
    EXPECT_EQ(check().notices.size(), 2);
    run("update StockEntryAcct set Amount=51 where Amount=50");
    EXPECT_EQ(check().findings.size(), 1);
}

} // namespace orvane
