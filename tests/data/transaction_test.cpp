#include "data/DataError.h"
#include "data/rows/Recordset.h"
#include "data/rows/Transaction.h"
#include "support/TestHome.h"

namespace orvane {

namespace {

void addPayment(Connection& connection, qlonglong number) {
    Recordset row(connection, Sql("select * from Payments where 1=2"));
    row.addNew();
    row.set("ReceiptNo", QStringLiteral("OP001%1").arg(number, 7, 10, QChar(u'0')));
    row.set("AmountPaid", number);
    row.update();
}

} // namespace

class TransactionTest : public EngineTest {
protected:
    QString payments() { return scalar("select count(*) from Payments"); }
};

TEST_P(TransactionTest, KeepsWhatWasCommittedAndNothingElse) {
    {
        Transaction transaction(billing);
        addPayment(billing, 1);
        EXPECT_TRUE(billing.inTransaction());
        EXPECT_EQ(data.openTransactions(), 1);
        transaction.commit();
        EXPECT_EQ(data.openTransactions(), 0);
        transaction.rollback();
    }
    {
        Transaction transaction(billing);
        addPayment(billing, 2);
    }
    {
        Transaction transaction(billing);
        addPayment(billing, 3);
        transaction.rollback();
        EXPECT_FALSE(billing.inTransaction());
    }
    try {
        Transaction transaction(billing);
        addPayment(billing, 4);
        throw std::runtime_error("a fault of the screen");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(payments(), "1");
    EXPECT_EQ(data.openTransactions(), 0);
}

TEST_P(TransactionTest, AFailedStatementPoisonsIt) {
    const char* const failing[] = {"insert into Payments (NoSuchColumn) values (1)", "select * from NoSuchTable",
                                   "insert into hPatients (PNo, psurname) values ('P1', null)", "select 'not ended"};
    for (const char* statement : failing) {
        Transaction transaction(billing);
        addPayment(billing, 1);
        EXPECT_THROW(billing.run(QString::fromUtf8(statement)), DataError) << statement;
        EXPECT_THROW(addPayment(billing, 2), DataError) << "a later statement";
        EXPECT_THROW(billing.run("select 1 as x"), DataError) << "a later question";
        EXPECT_THROW(transaction.commit(), DataError);
        EXPECT_FALSE(billing.inTransaction());
        EXPECT_EQ(payments(), "0") << statement;
    }
}

TEST_P(TransactionTest, ALostUpdateRollsAllBack) {
    addPayment(billing, 1);
    Recordset row(billing, Sql("select * from Payments"));
    billing.run("update Payments set AmountPaid=77");
    Transaction transaction(billing);
    addPayment(billing, 2);
    row.set("AmountPaid", 5);
    EXPECT_THROW(row.update(), DataError);
    EXPECT_THROW(transaction.commit(), DataError);
    EXPECT_EQ(scalar("select sum(AmountPaid) from Payments"), "77");
}

TEST_P(TransactionTest, AFaultAtAnyStepSavesNothing) {
    for (const char* step : {"begin transaction", "insert into [Payments]", "update Payments", "commit transaction"}) {
        data.setStatementHook([step](const QString& tsql) {
            if (tsql.startsWith(QString::fromUtf8(step)))
                throw DataError("broken here");
        });
        const auto save = [this] {
            Transaction transaction(billing);
            addPayment(billing, 1);
            billing.execute(Sql("update Payments set isPost=1"));
            transaction.commit();
        };
        EXPECT_THROW(save(), DataError) << step;
        data.setStatementHook({});
        EXPECT_EQ(payments(), "0") << step;
        EXPECT_EQ(data.openTransactions(), 0) << step;
    }
    data.setStatementHook([](const QString& tsql) {
        if (tsql == "transaction committed")
            throw DataError("broken here");
    });
    Transaction transaction(billing);
    addPayment(billing, 1);
    EXPECT_THROW(transaction.commit(), CommitUnknown);
    EXPECT_EQ(payments(), "1");
}

TEST_P(TransactionTest, ACommitWithoutAnAnswerIsLookedUpByItsToken) {
    data.setStatementHook([](const QString& tsql) {
        if (tsql == "transaction committed")
            throw DataError("broken here");
    });
    const auto ticketOf = [this](auto&&... action) {
        try {
            Transaction transaction(billing);
            transaction.commit(action...);
        } catch (const CommitUnknown& fault) {
            return fault.ticket();
        }
        ADD_FAILURE() << "its answer came";
        return CommitTicket();
    };
    const QString longText = QString(49, u'O') + QString::fromUtf8("\U0001F600");
    const CommitTicket saved = ticketOf(SavedAction{"amina.b", longText, "frmReceiptTemp", "001OFL0000001", 1500.5});
    EXPECT_EQ(data.outcomeOf(saved), CommitOutcome::Saved);
    EXPECT_EQ(data.outcomeOf({saved.connectionString, "0"}), CommitOutcome::NotSaved);
    EXPECT_EQ(data.outcomeOf(ticketOf()), CommitOutcome::Unknown) << "it left no token";

    const Recordset rows(billing, Sql("select * from SavedActions"));
    EXPECT_EQ(rows.count(), 1);
    EXPECT_EQ(rows.text("workstation"), longText.left(49)) << "cut, no character in two";
    EXPECT_EQ(rows.text("username") + rows.text("action") + rows.text("document"),
              "amina.bfrmReceiptTemp001OFL0000001");
    EXPECT_EQ(rows.number("amount"), 1500.5);
    EXPECT_EQ(rows.date("savedAt"), QDate::currentDate());
}

/// A server may still be busy with the transaction that is looked up: what is in the gate may yet be committed.
TEST_P(TransactionTest, ATokenIsNotMissedWhileItsTransactionMayRun) {
    if (GetParam() == Engine::Sqlite)
        GTEST_SKIP() << "the engine is in this process and has ended it";
    DataSource asking(home.folder());
    asking.setWaits(100, 10);
    Transaction transaction(billing);
    EXPECT_EQ(asking.outcomeOf({TestHome::billing(), "0"}), CommitOutcome::Unknown);
    transaction.rollback();
    EXPECT_EQ(asking.outcomeOf({TestHome::billing(), "0"}), CommitOutcome::NotSaved);
}

TEST_P(TransactionTest, NeverWaitsForItsOwnWorkstation) {
    Connection other = data.open(TestHome::billing());
    Transaction transaction(billing);
    addPayment(billing, 1);
    EXPECT_THROW(Transaction second(other), DataError);
    if (GetParam() == Engine::Sqlite)
        EXPECT_THROW(addPayment(other, 2), DataError);
    EXPECT_EQ(other.run(QStringLiteral("select count(*) from Payments")).text(0), QStringLiteral("0"))
        << "sees what is committed";
    // The other database has a gate of its own.
    Connection accounting = data.open(TestHome::accounting());
    Transaction posting(accounting);
    posting.commit();
    transaction.commit();
    EXPECT_EQ(payments(), "1");
}

ORVANE_ON_EACH_ENGINE(TransactionTest);

using TransactionDeathTest = TransactionTest;

TEST_P(TransactionDeathTest, NestingIsAProgrammersError) {
    Transaction transaction(billing);
    EXPECT_DEATH(Transaction inner(billing), "assertion failed");
}

INSTANTIATE_TEST_SUITE_P(On, TransactionDeathTest, ::testing::Values(Engine::Sqlite));

} // namespace orvane
